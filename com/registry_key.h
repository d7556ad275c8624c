// A registry key: the owner of an open handle and the few operations that are needed.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qz {

/// A value as the registry holds it, whatever its type.
struct RegistryValue {
    DWORD type = REG_NONE;
    std::vector<BYTE> bytes;

    static RegistryValue Text(const std::wstring& text);
    bool operator==(const RegistryValue&) const = default;
};

/// The owner of an open key. Paths are relative to it. Failures other than "not there" are thrown.
class RegistryKey {
  public:
    RegistryKey() = default;
    RegistryKey(RegistryKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}
    RegistryKey& operator=(RegistryKey&& other) noexcept {
        std::swap(key_, other.key_);
        return *this;
    }
    ~RegistryKey();

    /// Nothing when the key is not there. A predefined key is as good a parent as any.
    static std::optional<RegistryKey> Open(HKEY parent, const std::wstring& path,
                                           REGSAM access = KEY_READ | KEY_WRITE);
    /// Makes the last part of the path if need be; `created` tells.
    static RegistryKey Create(HKEY parent, const std::wstring& path, bool* created = nullptr);

    HKEY Get() const noexcept { return key_; }

    std::optional<RegistryValue> Value(const std::wstring& name) const;
    void SetValue(const std::wstring& name, const RegistryValue& value) const;
    void DeleteValue(const std::wstring& name) const;

    std::vector<std::wstring> SubkeyNames() const;
    std::vector<std::wstring> ValueNames() const;
    bool Empty() const { return SubkeyNames().empty() && ValueNames().empty(); }

  private:
    explicit RegistryKey(HKEY key) noexcept : key_(key) {}

    HKEY key_ = nullptr;
};

/// Deletes a key that has no subkeys. A missing one is no failure.
void DeleteKey(HKEY parent, const std::wstring& path);
/// Deletes a key and all below it. A missing one is no failure.
void DeleteTree(HKEY parent, const std::wstring& path);

/// A key's content and all below it, to be written back.
struct RegistryTree {
    std::wstring name;
    std::vector<std::pair<std::wstring, RegistryValue>> values;
    std::vector<RegistryTree> subkeys;

    /// The topmost tree's name stays empty unless it is given.
    static RegistryTree Read(const RegistryKey& key, std::wstring name = {});
    void Write(const RegistryKey& key) const;
};

}  // namespace qz
