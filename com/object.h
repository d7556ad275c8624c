// The base of every COM object: reference count, QueryInterface over a list of interfaces, module lock.
#pragma once

#include "com/com_ptr.h"
#include "com/error.h"
#include "com/module.h"

#include <windows.h>
#include <unknwn.h>
#include <oaidl.h>

#include <concepts>

namespace qz {

/// An entry of an object's interface list that answers more ids than its own type's has a static
/// `FindInterface(self, iid)` giving the interface pointer or null.
template <class I>
concept FindsInterfaces = requires(I* self, REFIID iid) {
    { I::FindInterface(self, iid) } -> std::same_as<void*>;
};

template <class I>
void* FindInterfaceIn(I* self, REFIID iid) noexcept {
    if constexpr (FindsInterfaces<I>) {
        return I::FindInterface(self, iid);
    } else {
        return iid == __uuidof(I) ? static_cast<void*>(self) : nullptr;
    }
}

/// An interface that also answers for the interfaces it extends.
template <class I, class... Bases>
struct Chain : I {
    static void* FindInterface(I* self, REFIID iid) noexcept {
        return iid == __uuidof(I) || ((iid == __uuidof(Bases)) || ...) ? static_cast<void*>(self) : nullptr;
    }
};

/// Base of a COM object. Made by `MakeObject`, with one reference. A `FinalRelease()` of the derived class is
/// called, while the object is still whole, when the last reference goes. Reference counting is thread-safe.
/// Aggregation is not supported.
template <class Derived, class... Interfaces>
class Object : public Interfaces..., public ISupportErrorInfo {
  public:
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** result) override {
        if (!result) return E_POINTER;
        *result = Find(iid);
        if (!*result) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&references_)); }

    STDMETHODIMP_(ULONG) Release() override {
        const LONG left = InterlockedDecrement(&references_);
        if (left == 0) Destroy();
        return static_cast<ULONG>(left);
    }

    /// Every interface of ours reports errors.
    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override { return Find(iid) ? S_OK : S_FALSE; }

    IUnknown* Identity() noexcept { return static_cast<ISupportErrorInfo*>(this); }

  protected:
    Object() = default;
    virtual ~Object() = default;

  private:
    void* Find(REFIID iid) noexcept {
        if (iid == __uuidof(IUnknown)) return Identity();
        if (iid == __uuidof(ISupportErrorInfo)) return static_cast<ISupportErrorInfo*>(this);
        void* found = nullptr;
        static_cast<void>(((found = FindInterfaceIn<Interfaces>(this, iid)) || ...));
        return found;
    }

    void Destroy() {
        references_ = teardown;  // calls made while the object takes leave must not destroy it again
        if constexpr (requires(Derived & self) { self.FinalRelease(); }) {
            static_cast<Derived*>(this)->FinalRelease();
        }
        delete static_cast<Derived*>(this);
    }

    static constexpr LONG teardown = 0x40000000;
    LONG references_ = 1;
    ModuleLock moduleLock_;
};

/// Makes an object; the caller owns the one reference.
template <class T, class... Arguments>
ComPtr<T> MakeObject(Arguments&&... arguments) {
    ComPtr<T> object;
    // Not by Attach, which counts a reference of its own in one of the toolchains.
    *object.GetAddressOf() = new T(std::forward<Arguments>(arguments)...);
    return object;
}

}  // namespace qz
