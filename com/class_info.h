// IProvideClassInfo2: lets a container find an object's default event interface.
#pragma once

#include "com/type_info.h"

#include <ocidl.h>

namespace qz {

/// Base of an object of class `ClassId` whose default event interface is `EventsId` (GUID_NULL: none).
template <const CLSID& ClassId, const IID& EventsId>
class ProvideClassInfo : public IProvideClassInfo2 {
  public:
    static void* FindInterface(ProvideClassInfo* self, REFIID iid) noexcept {
        const bool known = iid == __uuidof(IProvideClassInfo2) || iid == __uuidof(IProvideClassInfo);
        return known ? static_cast<IProvideClassInfo2*>(self) : nullptr;
    }

    STDMETHODIMP GetClassInfo(ITypeInfo** info) override {
        if (!info) return E_POINTER;
        *info = nullptr;
        return Guard(__uuidof(IProvideClassInfo), [&] { *info = LoadTypeInfo(ClassId).Detach(); });
    }

    STDMETHODIMP GetGUID(DWORD kind, GUID* id) override {
        if (!id) return E_POINTER;
        *id = GUID_NULL;
        if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID || EventsId == GUID_NULL) return E_INVALIDARG;
        *id = EventsId;
        return S_OK;
    }
};

}  // namespace qz
