// The language of a host's user.
#pragma once

#include "com/object.h"
#include "res/language.h"

#include <optional>

namespace qz {

/// English without a host and when it does not tell.
Language LanguageOf(IDispatch* host);

/// The language that the host had to which a component of this module, any of them, was attached last;
/// nothing before the first one. Thread-safe, as is the noting.
std::optional<Language> LastHostLanguage() noexcept;

/// To be called when a component is attached to a host. What is no host, or does not tell, changes nothing.
void NoteAttachedHost(IDispatch* host) noexcept;
/// The same for a host whose language was read.
void NoteHostLanguage(std::uint16_t languageId) noexcept;

}  // namespace qz
