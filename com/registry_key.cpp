#include "com/registry_key.h"

#include "com/error.h"

namespace qz {

namespace {

bool NotThere(LSTATUS status) { return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND; }

void Check(LSTATUS status, const wchar_t* what, const std::wstring& path) {
    if (status == ERROR_SUCCESS) return;
    const HRESULT code = HRESULT_FROM_WIN32(static_cast<DWORD>(status));
    Throw(code, std::wstring(what) + L" \"" + path + L"\": " + DescribeError(code));
}

}  // namespace

RegistryValue RegistryValue::Text(const std::wstring& text) {
    const auto* const first = reinterpret_cast<const BYTE*>(text.c_str());
    return {REG_SZ, {first, first + (text.size() + 1) * sizeof(wchar_t)}};
}

RegistryKey::~RegistryKey() {
    if (key_) RegCloseKey(key_);
}

std::optional<RegistryKey> RegistryKey::Open(HKEY parent, const std::wstring& path, REGSAM access) {
    HKEY key = nullptr;
    const LSTATUS status = RegOpenKeyExW(parent, path.c_str(), 0, access, &key);
    if (NotThere(status)) return std::nullopt;
    Check(status, L"Cannot open the registry key", path);
    return RegistryKey(key);
}

RegistryKey RegistryKey::Create(HKEY parent, const std::wstring& path, bool* created) {
    HKEY key = nullptr;
    DWORD disposition = 0;
    Check(RegCreateKeyExW(parent, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE,
                          nullptr, &key, &disposition),
          L"Cannot make the registry key", path);
    if (created) *created = disposition == REG_CREATED_NEW_KEY;
    return RegistryKey(key);
}

std::optional<RegistryValue> RegistryKey::Value(const std::wstring& name) const {
    constexpr std::size_t usuallyEnough = 1024;
    RegistryValue value{REG_NONE, std::vector<BYTE>(usuallyEnough)};
    for (;;) {
        DWORD size = static_cast<DWORD>(value.bytes.size());
        const LSTATUS status =
            RegQueryValueExW(key_, name.c_str(), nullptr, &value.type, value.bytes.data(), &size);
        if (NotThere(status)) return std::nullopt;
        const bool fits = status == ERROR_SUCCESS && size <= value.bytes.size();
        value.bytes.resize(size);
        if (fits) return value;
        if (status != ERROR_MORE_DATA) Check(status, L"Cannot read the registry value", name);
    }
}

void RegistryKey::SetValue(const std::wstring& name, const RegistryValue& value) const {
    const auto size = static_cast<DWORD>(value.bytes.size());
    Check(RegSetValueExW(key_, name.c_str(), 0, value.type, value.bytes.data(), size),
          L"Cannot write the registry value", name);
}

void RegistryKey::DeleteValue(const std::wstring& name) const {
    const LSTATUS status = RegDeleteValueW(key_, name.c_str());
    if (!NotThere(status)) Check(status, L"Cannot delete the registry value", name);
}

std::vector<std::wstring> RegistryKey::SubkeyNames() const {
    std::vector<std::wstring> names;
    constexpr DWORD longestKeyName = 255;
    for (DWORD index = 0;; ++index) {
        std::wstring name(longestKeyName + 1, L'\0');
        auto length = static_cast<DWORD>(name.size());
        const LSTATUS status =
            RegEnumKeyExW(key_, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
        if (status == ERROR_NO_MORE_ITEMS) return names;
        Check(status, L"Cannot list the registry key", {});
        names.push_back(name.substr(0, length));
    }
}

std::vector<std::wstring> RegistryKey::ValueNames() const {
    std::vector<std::wstring> names;
    constexpr DWORD longestValueName = 16383;
    std::wstring name(longestValueName + 1, L'\0');
    for (DWORD index = 0;; ++index) {
        auto length = static_cast<DWORD>(name.size());
        const LSTATUS status =
            RegEnumValueW(key_, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
        if (status == ERROR_NO_MORE_ITEMS) return names;
        Check(status, L"Cannot list the values of the registry key", {});
        names.push_back(name.substr(0, length));
    }
}

void DeleteKey(HKEY parent, const std::wstring& path) {
    const LSTATUS status = RegDeleteKeyW(parent, path.c_str());
    if (!NotThere(status)) Check(status, L"Cannot delete the registry key", path);
}

void DeleteTree(HKEY parent, const std::wstring& path) {
    const LSTATUS status = RegDeleteTreeW(parent, path.c_str());
    if (!NotThere(status)) Check(status, L"Cannot delete the registry key", path);
}

RegistryTree RegistryTree::Read(const RegistryKey& key, std::wstring name) {
    RegistryTree tree;
    tree.name = std::move(name);
    for (const std::wstring& valueName : key.ValueNames()) {
        if (auto value = key.Value(valueName)) tree.values.emplace_back(valueName, std::move(*value));
    }
    for (const std::wstring& subkeyName : key.SubkeyNames()) {
        if (const auto subkey = RegistryKey::Open(key.Get(), subkeyName)) {
            tree.subkeys.push_back(Read(*subkey, subkeyName));
        }
    }
    return tree;
}

void RegistryTree::Write(const RegistryKey& key) const {
    for (const auto& [valueName, value] : values) key.SetValue(valueName, value);
    for (const RegistryTree& subkey : subkeys) subkey.Write(RegistryKey::Create(key.Get(), subkey.name));
}

}  // namespace qz
