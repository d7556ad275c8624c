// The language of a host's user.
#pragma once

#include "com/object.h"
#include "res/language.h"

#include "generated/vandra_x.h"

namespace qz {

/// English without a host and when it does not tell.
inline Language LanguageOf(IDispatch* host) {
    ComPtr<IVandraX> vandra;
    short language = 0;
    const bool told = host && SUCCEEDED(host->QueryInterface(IID_PPV_ARGS(&vandra))) &&
                      SUCCEEDED(vandra->GetLanguageId(&language));
    return LanguageFromId(told ? static_cast<std::uint16_t>(language) : 0);
}

}  // namespace qz
