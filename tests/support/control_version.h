// Which version of the common controls a window is of, and which activation context is active.
#pragma once

#include <windows.h>

#include <algorithm>
#include <string>

namespace qz {

/// Whether the window's class is of version 6, which lies in the system's folder of assemblies; the other
/// versions are the window manager's and the system folder's.
inline bool IsVersion6(HWND window) {
    const auto procedure = reinterpret_cast<const wchar_t*>(GetClassLongPtrW(window, GCLP_WNDPROC));
    constexpr DWORD how =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE module = nullptr;
    wchar_t name[MAX_PATH] = L"";
    if (!GetModuleHandleExW(how, procedure, &module)) return false;
    GetModuleFileNameW(module, name, MAX_PATH);
    std::wstring path = name;
    std::ranges::transform(path, path.begin(), [](wchar_t letter) { return std::towlower(letter); });
    return path.find(L"\\winsxs\\") != std::wstring::npos && path.ends_with(L"\\comctl32.dll");
}

/// Whether this thread is under an activation context other than the program's own.
inline bool UnderAContext() {
    HANDLE context = nullptr;
    if (!GetCurrentActCtx(&context) || !context) return false;
    ReleaseActCtx(context);
    return true;
}

}  // namespace qz
