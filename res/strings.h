// Texts and other resources of this module, in a language that the caller names: two hosts in one process may
// have two languages, so there is no current one.
#pragma once

#include "res/language.h"

#include <windows.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace qz {

/// A resource of a module in exactly that language; empty when there is none. Valid while the module is
/// loaded.
std::span<const std::byte> FindResourceIn(HINSTANCE module, Language language, const wchar_t* type,
                                          const wchar_t* name) noexcept;

/// A text of a module's string table in exactly that language; nothing when there is none.
std::optional<std::wstring> FindText(HINSTANCE module, Language language, unsigned id);

/// A text of this module (res/text_ids.h), in English when the language lacks it. Throws when there is none.
std::wstring LoadText(Language language, unsigned id);

}  // namespace qz
