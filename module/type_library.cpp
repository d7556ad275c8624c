#include "module/type_library.h"

#include <oleauto.h>

#include <iterator>

#ifdef __MINGW32__
// The system has had them since Windows Vista; this toolchain's headers have not.
STDAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* path, OLECHAR* helpFolder);
STDAPI UnRegisterTypeLibForUser(REFGUID id, WORD major, WORD minor, LCID locale, SYSKIND system);
#endif

namespace qz {

namespace {

std::wstring GuidText(REFGUID id) {
    wchar_t text[39] = {};
    StringFromGUID2(id, text, static_cast<int>(std::size(text)));
    return text;
}

// The id of an interface that registration gives a key of its own; GUID_NULL for other types.
GUID InterfaceId(ITypeLib* library, UINT index) {
    ComPtr<ITypeInfo> info;
    TYPEATTR* attributes = nullptr;
    ThrowIfFailed(library->GetTypeInfo(index, &info));
    ThrowIfFailed(info->GetTypeAttr(&attributes));
    const bool isInterface =
        attributes->typekind == TKIND_INTERFACE || attributes->typekind == TKIND_DISPATCH;
    const GUID id = isInterface ? attributes->guid : GUID_NULL;
    info->ReleaseTypeAttr(attributes);
    return id;
}

}  // namespace

TypeLibrary::TypeLibrary(std::wstring modulePath) : path_(std::move(modulePath)) {
    ThrowIfFailed(LoadTypeLibEx(path_.c_str(), REGKIND_NONE, &library_),
                  L"The type library cannot be loaded");
    TLIBATTR* attributes = nullptr;
    ThrowIfFailed(library_->GetLibAttr(&attributes));
    attributes_ = *attributes;
    library_->ReleaseTLibAttr(attributes);
}

void TypeLibrary::Register(RegistrationScope scope) const {
    auto* const path = const_cast<wchar_t*>(path_.c_str());  // the system does not write there
    ThrowIfFailed(scope == RegistrationScope::Machine ? RegisterTypeLib(library_.Get(), path, nullptr)
                                                      : RegisterTypeLibForUser(library_.Get(), path, nullptr),
                  L"The type library cannot be registered");
}

HRESULT TypeLibrary::Unregister(RegistrationScope scope) const {
    const auto unregister =
        scope == RegistrationScope::Machine ? UnRegisterTypeLib : UnRegisterTypeLibForUser;
    return unregister(attributes_.guid, attributes_.wMajorVerNum, attributes_.wMinorVerNum, attributes_.lcid,
                      attributes_.syskind);
}

std::wstring TypeLibrary::VersionKey() const {
    wchar_t version[16] = {};
    swprintf_s(version, L"%x.%x", attributes_.wMajorVerNum, attributes_.wMinorVerNum);
    return L"TypeLib\\" + GuidText(attributes_.guid) + L"\\" + version;
}

std::vector<std::wstring> TypeLibrary::RegistryKeys() const {
    std::vector<std::wstring> keys;
    const auto add = [&keys](const std::wstring& key) {
        keys.push_back(key);
        keys.push_back(L"Wow6432Node\\" + key);  // 32-bit programs see the interfaces as well
    };
    add(L"TypeLib\\" + GuidText(attributes_.guid));
    for (UINT index = 0; index < library_->GetTypeInfoCount(); ++index) {
        const GUID id = InterfaceId(library_.Get(), index);
        if (id != GUID_NULL) add(L"Interface\\" + GuidText(id));
    }
    return keys;
}

}  // namespace qz
