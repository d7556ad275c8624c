#include "module/registration_script.h"

namespace qz {

namespace {

enum class For { EveryClass, Versioned, Control };

struct ScriptLine {
    For applies;
    const wchar_t* key;
    const wchar_t* valueName;
    const wchar_t* text;  // null: a flag key
    bool forceRemove = false;
};

constexpr bool forceRemove = true;

// clang-format off
constexpr ScriptLine scriptLines[] = {
    {For::Versioned,  L"%VERSIONED%",                                L"", L"%CLASS% Class"},
    {For::Versioned,  L"%VERSIONED%\\CLSID",                         L"", L"%QZ_CLSID%"},
    {For::EveryClass, L"%INDEPENDENT%",                              L"", L"%CLASS% Class"},
    {For::EveryClass, L"%INDEPENDENT%\\CLSID",                       L"", L"%QZ_CLSID%"},
    {For::Versioned,  L"%INDEPENDENT%\\CurVer",                      L"", L"%VERSIONED%"},
    {For::EveryClass, L"CLSID\\%QZ_CLSID%",                          L"", L"%CLASS% Class", forceRemove},
    {For::EveryClass, L"CLSID\\%QZ_CLSID%\\ProgID",                  L"", L"%PROGID%"},
    {For::EveryClass, L"CLSID\\%QZ_CLSID%\\VersionIndependentProgID", L"", L"%NAMED%"},
    {For::EveryClass, L"CLSID\\%QZ_CLSID%\\Programmable",            L"", nullptr},
    {For::EveryClass, L"CLSID\\%QZ_CLSID%\\InprocServer32",          L"", L"%MODULE%"},
    {For::EveryClass, L"CLSID\\%QZ_CLSID%\\InprocServer32",          L"ThreadingModel", L"%THREADING%"},
    {For::Control,    L"CLSID\\%QZ_CLSID%\\Control",                 L"", nullptr},
    {For::Control,    L"CLSID\\%QZ_CLSID%\\Insertable",              L"", nullptr},
    {For::Control,    L"CLSID\\%QZ_CLSID%\\ToolboxBitmap32",         L"", L"%MODULE%, 101"},
    {For::Control,    L"CLSID\\%QZ_CLSID%\\MiscStatus",              L"", L"0"},
    {For::Control,    L"CLSID\\%QZ_CLSID%\\MiscStatus\\1",           L"", L"131473"},
    {For::EveryClass, L"CLSID\\%QZ_CLSID%\\TypeLib",                 L"", L"%QZ_TYPELIBID%"},
    {For::EveryClass, L"CLSID\\%QZ_CLSID%\\Version",                 L"", L"%VERSION%"},
};
// clang-format on

bool Applies(const ScriptLine& line, const ClassRow& row) {
    switch (line.applies) {
        case For::Versioned:
            return row.versionedKey != nullptr;
        case For::Control:
            return row.control;
        case For::EveryClass:
            break;
    }
    return true;
}

Replacements ClassReplacements(const ClassRow& row) {
    const wchar_t* const versioned = row.versionedKey ? row.versionedKey : L"";
    return {
        {L"CLASS", row.name},
        {L"QZ_CLSID", row.classId},
        {L"INDEPENDENT", row.progIdKey},
        {L"VERSIONED", versioned},
        {L"PROGID", row.versionedKey ? versioned : row.progIdKey},
        {L"NAMED", row.versionIndependentProgId},
        {L"THREADING", row.threadingModel},
        {L"VERSION", moduleVersion},
    };
}

}  // namespace

RegistrationScript ScriptOf(const ClassRow& row) {
    RegistrationScript script;
    for (const ScriptLine& line : scriptLines) {
        if (!Applies(line, row)) continue;
        ScriptEntry entry{line.key, line.valueName, std::nullopt, line.forceRemove};
        if (line.text) entry.text = line.text;
        script.push_back(std::move(entry));
    }
    return Expand(std::move(script), ClassReplacements(row));
}

Replacements ModuleReplacements(const std::wstring& modulePath) {
    return {
        {L"MODULE", modulePath},
        {L"QZ_TYPELIBID", typeLibraryId},
        {L"QZ_PROGID_VERSTR", progIdVersion},
        {L"APPID", applicationId},
    };
}

std::wstring Expand(const std::wstring& text, const Replacements& replacements) {
    std::wstring result;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text[at] == L'%' ? text.find(L'%', at + 1) : std::wstring::npos;
        const auto found = end == std::wstring::npos ? replacements.end()
                                                     : replacements.find(text.substr(at + 1, end - at - 1));
        if (found == replacements.end()) {
            result += text[at++];
        } else {
            result += found->second;
            at = end + 1;
        }
    }
    return result;
}

RegistrationScript Expand(RegistrationScript script, const Replacements& replacements) {
    for (ScriptEntry& entry : script) {
        entry.key = Expand(entry.key, replacements);
        if (entry.text) entry.text = Expand(*entry.text, replacements);
    }
    return script;
}

}  // namespace qz
