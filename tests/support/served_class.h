// Objects of a test's own in place of those of a class of the system's.
#pragma once

#include "com/object.h"

#include <windows.h>
#include <ole2.h>

namespace qz {

/// As long as it lives, whoever in this process creates an object of the class gets the one given.
class ServedClass {
  public:
    ServedClass(REFCLSID id, IUnknown* object) {
        const auto factory = MakeObject<Factory>(object);
        ThrowIfFailed(CoRegisterClassObject(id, factory->Identity(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                            &cookie_));
    }
    ~ServedClass() { CoRevokeClassObject(cookie_); }
    ServedClass(const ServedClass&) = delete;
    ServedClass& operator=(const ServedClass&) = delete;

  private:
    class Factory final : public Object<Factory, IClassFactory> {
      public:
        explicit Factory(IUnknown* object) : object_(object) {}
        STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
            return outer ? CLASS_E_NOAGGREGATION : object_->QueryInterface(iid, object);
        }
        STDMETHODIMP LockServer(BOOL) override { return S_OK; }

      private:
        ComPtr<IUnknown> object_;
    };

    DWORD cookie_ = 0;
};

}  // namespace qz
