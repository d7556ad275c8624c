// What a class writes into the registry, as plain data. Keys are relative to a Classes key.
#pragma once

#include "module/class_table.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace qz {

/// One step: the key is made if it is missing, then the value is set. An entry without text is a flag key.
struct ScriptEntry {
    std::wstring key;
    std::wstring valueName;  // empty: the key's default value
    std::optional<std::wstring> text;
    bool forceRemove = false;  // the key belongs to the class wholly: it is emptied before, and removed whole

    bool operator==(const ScriptEntry&) const = default;
};

/// Steps in the order in which they are taken; they are undone in the reverse order.
using RegistrationScript = std::vector<ScriptEntry>;

/// Texts by the name that stands for them between percent signs.
using Replacements = std::map<std::wstring, std::wstring, std::less<>>;

/// The script of a class, with what depends on the module still between percent signs.
RegistrationScript ScriptOf(const ClassRow& row);

/// What depends on the module: "MODULE" (its path), "QZ_TYPELIBID", "QZ_PROGID_VERSTR" and "APPID".
Replacements ModuleReplacements(const std::wstring& modulePath);

/// Replaces every "%NAME%" whose name is known; other percent signs stay. Replaced text is not looked at
/// again.
std::wstring Expand(const std::wstring& text, const Replacements& replacements);
RegistrationScript Expand(RegistrationScript script, const Replacements& replacements);

}  // namespace qz
