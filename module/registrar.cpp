#include "module/registrar.h"

namespace qz {

RegistrationRun::~RegistrationRun() {
    for (auto step = undo_.rbegin(); step != undo_.rend(); ++step) {
        try {
            (*step)();
        } catch (...) {
            // The failure that ended the run is what the caller hears of; the other steps are still undone.
        }
    }
}

void RegistrationRun::Apply(const RegistrationScript& script) {
    for (const ScriptEntry& entry : script) Apply(entry);
}

void RegistrationRun::Apply(const ScriptEntry& entry) {
    if (entry.forceRemove) {
        Protect(entry.key);
        DeleteTree(classes_.Get(), entry.key);
    }
    const RegistryKey key = MakeKey(entry.key);
    if (entry.text) SetValue(key, entry);
}

void RegistrationRun::Protect(const std::wstring& path) {
    const auto key = RegistryKey::Open(classes_.Get(), path);
    const auto before = key ? std::optional(RegistryTree::Read(*key)) : std::nullopt;
    undo_.push_back([this, path, before] {
        DeleteTree(classes_.Get(), path);
        if (before) before->Write(RegistryKey::Create(classes_.Get(), path));
    });
}

RegistryKey RegistrationRun::MakeKey(const std::wstring& path) {
    // Part by part, to know which of them were there before.
    RegistryKey key;
    for (std::size_t end = 0; end != std::wstring::npos;) {
        end = path.find(L'\\', end + 1);
        const std::wstring part = path.substr(0, end);
        bool created = false;
        key = RegistryKey::Create(classes_.Get(), part, &created);
        if (created) undo_.push_back([this, part] { DeleteKey(classes_.Get(), part); });
    }
    return key;
}

void RegistrationRun::SetValue(const RegistryKey& key, const ScriptEntry& entry) {
    undo_.push_back([this, path = entry.key, name = entry.valueName, old = key.Value(entry.valueName)] {
        const auto again = RegistryKey::Open(classes_.Get(), path);
        if (!again) return;
        old ? again->SetValue(name, *old) : again->DeleteValue(name);
    });
    key.SetValue(entry.valueName, RegistryValue::Text(*entry.text));
}

namespace {

void RemoveEntry(const RegistryKey& classes, const ScriptEntry& entry) {
    if (entry.forceRemove) return DeleteTree(classes.Get(), entry.key);
    const auto key = RegistryKey::Open(classes.Get(), entry.key);
    if (!key) return;
    if (entry.text && key->Value(entry.valueName) == RegistryValue::Text(*entry.text)) {
        key->DeleteValue(entry.valueName);
    }
    if (key->Empty()) DeleteKey(classes.Get(), entry.key);
}

}  // namespace

void RemoveScript(const RegistryKey& classes, const RegistrationScript& script) {
    for (auto entry = script.rbegin(); entry != script.rend(); ++entry) RemoveEntry(classes, *entry);
}

}  // namespace qz
