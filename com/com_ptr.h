// The one smart pointer to interfaces, and what makes two of them the same object. Everything that holds an
// interface includes this instead of the system's header.
#pragma once

#include <windows.h>
#include <unknwn.h>
#include <wrl/client.h>

#ifdef __MINGW32__
// This toolchain's pointer has no comparison of its own: two of them would compare by their conversion to a
// Boolean type, and any two objects would be equal. Visual C++ has operators here that compare addresses.
namespace Microsoft::WRL {

template <class T, class U>
bool operator==(const ComPtr<T>&, const ComPtr<U>&) = delete;  // say SameObject, or compare Get()
template <class T, class U>
bool operator!=(const ComPtr<T>&, const ComPtr<U>&) = delete;

}  // namespace Microsoft::WRL
#endif

namespace qz {

using Microsoft::WRL::ComPtr;

/// Whether two references lead to the same object, through whatever interfaces: both are null, or their
/// IUnknown is the same. An object that does not tell its IUnknown is the same only behind the same pointer.
/// May call the objects.
inline bool SameObject(IUnknown* first, IUnknown* second) noexcept {
    if (first == second) return true;
    if (!first || !second) return false;
    ComPtr<IUnknown> one;
    ComPtr<IUnknown> other;
    return SUCCEEDED(first->QueryInterface(IID_PPV_ARGS(&one))) && one &&
           SUCCEEDED(second->QueryInterface(IID_PPV_ARGS(&other))) && one.Get() == other.Get();
}

template <class T, class U>
bool SameObject(const ComPtr<T>& first, const ComPtr<U>& second) noexcept {
    return SameObject(first.Get(), second.Get());
}

}  // namespace qz
