// The language of a host's user.
#pragma once

#include "res/language.h"

#include "generated/vandra_x.h"

namespace qz {

/// English when the host does not tell.
inline Language LanguageOf(IVandraX* host) {
    short language = 0;
    if (FAILED(host->GetLanguageId(&language))) language = 0;
    return LanguageFromId(static_cast<std::uint16_t>(language));
}

}  // namespace qz
