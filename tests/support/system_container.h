// The system's own generic container for one control (atl.dll, window class "AtlAxWin").
#pragma once

#include <windows.h>
#include <unknwn.h>

namespace qz {

/// An entry of atl.dll. The library stays loaded: it owns the window class.
template <class Function>
Function SystemContainerEntry(const char* name) {
    static const HMODULE library = LoadLibraryW(L"atl.dll");
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

/// A container's window of that size, null when it cannot be made.
inline HWND MakeSystemContainer(int width, int height) {
    // Once in a process: not every system lets it be called again.
    static const BOOL registered = SystemContainerEntry<BOOL(WINAPI*)()>("AtlAxWinInit")();
    if (!registered) return nullptr;
    return CreateWindowExW(0, L"AtlAxWin", L"", WS_POPUP | WS_VISIBLE, 0, 0, width, height, nullptr, nullptr,
                           nullptr, nullptr);
}

/// Puts a control into such a window and activates it. `container` is the caller's to release.
inline HRESULT AttachToSystemContainer(IUnknown* control, HWND window, IUnknown** container) {
    using Attach = HRESULT(WINAPI*)(IUnknown*, HWND, IUnknown**);
    return SystemContainerEntry<Attach>("AtlAxAttachControl")(control, window, container);
}

}  // namespace qz
