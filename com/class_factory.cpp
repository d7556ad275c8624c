#include "com/class_factory.h"

namespace qz {

namespace {

class ClassFactory : public Object<ClassFactory, IClassFactory> {
  public:
    explicit ClassFactory(CreateFunction create) noexcept : create_(create) {}

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        return Guard(__uuidof(IClassFactory), [&] { return create_(iid, object); });
    }

    STDMETHODIMP LockServer(BOOL lock) override {
        lock ? LockModule() : UnlockModule();
        return S_OK;
    }

  private:
    CreateFunction create_;
};

}  // namespace

HRESULT MakeClassFactory(CreateFunction create, REFIID iid, void** factory) noexcept {
    if (!factory) return E_POINTER;
    *factory = nullptr;
    return Guard(__uuidof(IClassFactory),
                 [&] { return MakeObject<ClassFactory>(create)->QueryInterface(iid, factory); });
}

}  // namespace qz
