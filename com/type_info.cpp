#include "com/type_info.h"

namespace qz {

ComPtr<ITypeInfo> LoadTypeInfo(REFGUID id) {
    // The system keeps a loaded library as long as anybody holds part of it, so this is cheap but for the
    // first object. Nothing is kept here: a static reference would outlive OLE at process end.
    ComPtr<ITypeLib> library;
    ComPtr<ITypeInfo> info;
    ThrowIfFailed(LoadTypeLibEx(ThisModulePath().c_str(), REGKIND_NONE, &library),
                  L"The module's type library cannot be loaded");
    ThrowIfFailed(library->GetTypeInfoOfGuid(id, &info), L"The type library lacks a description");
    return info;
}

}  // namespace qz
