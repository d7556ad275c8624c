#include "settings/settings_store.h"

#include "com/registry_key.h"

#include <optional>

namespace qz {

namespace {

std::optional<RegistryValue> StoredValue(const SettingsPlace& place, const wchar_t* name) {
    const std::optional<RegistryKey> key = RegistryKey::Open(place.root, place.key, KEY_READ);
    return key ? key->Value(name) : std::nullopt;
}

}  // namespace

bool SettingsStore::Read(zrSettings& record) const {
    std::optional<RegistryValue> value;
    try {
        value = StoredValue(place_, record.Table().storedAs);
    } catch (const ComError&) {
        return false;
    }
    if (value && value->type == REG_BINARY) return record.Load(std::as_bytes(std::span(value->bytes)));
    record.TakeDefaults();
    return !value;
}

StoreResult SettingsStore::Write(zrSettings& record) const {
    const SettingsTable& table = record.Table();
    const std::string text = record.Text();
    try {
        RegistryKey::Create(place_.root, place_.key)
            .SetValue(table.storedAs, {REG_BINARY, std::vector<BYTE>(text.begin(), text.end())});
    } catch (const ComError&) {
        return {};
    }
    return {true, WriteDebugCopy(place_.debugFile, table.debugCopyKey, text)};
}

}  // namespace qz
