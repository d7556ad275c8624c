// What is done because the user has asked for it.
#pragma once

#include <windows.h>

#include <utility>

namespace qz {

/// Runs it, and tells the user when it fails. The failure goes on to the caller.
template <class Body>
void AskedByUser(Body&& body) {
    try {
        std::forward<Body>(body)();
    } catch (...) {
        MessageBeep(MB_ICONWARNING);
        throw;
    }
}

}  // namespace qz
