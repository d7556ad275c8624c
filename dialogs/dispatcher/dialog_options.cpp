#include "dialogs/dispatcher/dialog_options.h"

#include "com/registry_key.h"
#include "host/attributes.h"
#include "host/late_bound.h"

namespace qz {

namespace {

constexpr wchar_t valueName[] = L"UIDialogsPluginOptions";

std::optional<std::wstring> KeyPathOf(IDispatch* host) {
    std::optional<std::wstring> path;
    LateBoundMember settingsKeyPath(L"SettingsKeyPath");
    Guard(IID_NULL, [&] {
        std::wstring told = ToText(settingsKeyPath.Get(host));
        if (!told.empty()) path = std::move(told);
    });
    return path;
}

}  // namespace

void DialogOptions::LoadOnce(IDispatch* host) {
    if (loaded_ || !host) return;
    loaded_ = true;
    key_ = KeyPathOf(host);
    if (!key_) return;
    Guard(IID_NULL, [this] {
        const auto key = RegistryKey::Open(HKEY_CURRENT_USER, *key_, KEY_READ);
        const auto value = key ? key->Value(valueName) : std::nullopt;
        if (value && value->type == REG_BINARY && value->bytes.size() == 1) bits_ = value->bytes[0];
    });
}

void DialogOptions::Save() const noexcept {
    if (!key_) return;
    Guard(IID_NULL, [this] {
        RegistryKey::Create(HKEY_CURRENT_USER, *key_).SetValue(valueName, {REG_BINARY, {bits_}});
    });
}

}  // namespace qz
