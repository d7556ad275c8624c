#include "module/registration_script.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace qz {
namespace {

RegistrationScript Expanded(const wchar_t* className, const std::wstring& modulePath = L"C:\\m.dll") {
    const auto row = std::ranges::find(ClassTable(), std::wstring_view(className), &ClassRow::name);
    if (row == ClassTable().end()) return {};
    return Expand(ScriptOf(*row), ModuleReplacements(modulePath));
}

// The default value of a key; "(flag)" for a key without one, "(none)" for a key that is not written.
std::wstring DefaultOf(const RegistrationScript& script, const std::wstring& key) {
    for (const ScriptEntry& entry : script) {
        if (entry.key == key && entry.valueName.empty()) return entry.text.value_or(L"(flag)");
    }
    return L"(none)";
}

// What is written for each class: the keys and values that containers are known to look up.
struct Row {
    const wchar_t* name;
    const wchar_t* classId;
    const wchar_t* key;
    const wchar_t* currentVersion;
    const wchar_t* versionIndependent;
    const wchar_t* threading;
    bool control;
};

const Row scriptRows[] = {
    {L"qzBookmarkCtrl", L"{B12592F0-6748-46E2-BCC8-38788B852506}", L"QzVandraExt.qzBookmarkCtrl",
     L"QzVandraExt.qzBookmarkCtrl.1", L"QzVandraExt.qzBookmarkCtrl", L"Apartment", true},
    {L"qzLayersCtrl", L"{CC8649C0-24F7-483B-8F09-505077C23D94}", L"QzVandraExt.qzLayersCtrl",
     L"QzVandraExt.qzLayersCtrl.1", L"QzVandraExt.qzLayersCtrl", L"Apartment", true},
    {L"qzStatusCtrl", L"{AA4B6D08-6252-4080-819A-3BDE87080668}", L"QzVandraExt.qzStatusCtrl",
     L"QzVandraExt.qzStatusCtrl.1", L"qzVandraExt.qzStatusCtrl", L"Apartment", true},
    {L"qzPropCtrl", L"{302D8D00-3D56-42FB-A979-954C7D9AC4C5}", L"QzPropertyDialog.qzPropCtrl",
     L"QzVandraExt.qzPropCtrl.1", L"qzVandraExt.qzPropCtrl", L"Apartment", true},
    {L"qzPropertiesDlg", L"{F7C96B43-3F7A-403B-87CA-646D629C45BA}", L"QzVandraExt.qzPropertiesDlg",
     L"QzVandraExt.qzPropertiesDlg.1", L"QzVandraExt.qzPropertiesDlg", L"Apartment", false},
    {L"qzGridUnitsDlg", L"{D153159E-EE13-475E-94EA-47FB0E82FCDD}", L"QzVandraExt.qzGridUnitsDlg",
     L"QzVandraExt.qzGridUnitsDlg.1", L"QzVandraExt.qzGridUnitsDlg", L"Apartment", false},
    {L"qzDocSettingsDlg", L"{C176F8FB-F1E9-460B-9C41-E34493FF1C45}", L"QzvandraExt.qzDocSettingsDlg",
     L"QzvandraExt.qzDocSettingsDlg.1", L"QzVandraExt.qzDocSettingsDlg", L"Apartment", false},
    {L"qzFormatter", L"{816F7E96-8C4D-4E9C-ACF0-088C2F3505C4}", L"QzVandraExt.qzFormatter",
     L"QzVandraExt.qzFormatter.1", L"QzVandraExt.qzFormatter", L"both", false},
    {L"qzCategory", L"{591FB06F-1EEB-4C9C-8C3A-ACA84FAE477F}", L"QzVandraExt.qzCategory",
     L"QzVandraExt.qzCategory.1", L"QzVandraExt.qzCategory", L"Both", false},
    {L"qzFormat", L"{27081A24-B18E-4FE8-BFC1-7B3B594508EA}", L"QzVandraExt.qzFormat",
     L"QzVandraExt.qzFormat.1", L"QzVandraExt.qzFormat", L"Both", false},
};

TEST(RegistrationScript, NamesAKeyForTheInspectorThatNothingWrites) {
    EXPECT_EQ(DefaultOf(Expanded(L"qzPropCtrl"), L"qzVandraExt.qzPropCtrl"), L"(none)");
}

TEST(RegistrationScript, IsWithoutOpenPlaces) {
    for (const ClassRow& row : ClassTable()) {
        for (const ScriptEntry& entry : Expanded(row.name)) {
            EXPECT_EQ(entry.key.find(L'%'), std::wstring::npos);
            EXPECT_EQ(entry.text.value_or(L"").find(L'%'), std::wstring::npos);
        }
    }
}

TEST(Expand, ReplacesKnownNamesOnceAndLeavesOtherPercentSigns) {
    const Replacements replacements = {{L"A", L"one"}, {L"B", L"%A%"}};
    EXPECT_EQ(Expand(L"", replacements), L"");
    EXPECT_EQ(Expand(L"%A%%A%", replacements), L"oneone");
    EXPECT_EQ(Expand(L"%B%", replacements), L"%A%");
    EXPECT_EQ(Expand(L"100%", replacements), L"100%");
    EXPECT_EQ(Expand(L"%x%A%", replacements), L"%xone");
    EXPECT_EQ(Expand(L"%%", replacements), L"%%");
}

TEST(Expand, KeepsAModulePathThatLooksLikeAPlace) {
    const std::wstring path = L"C:\\%QZ_CLSID%\\100%\\m.dll";
    const RegistrationScript script = Expanded(L"qzThumbnailCtrl", path);
    EXPECT_EQ(DefaultOf(script, L"CLSID\\{560395C7-50BB-4B91-971B-B7432D935AA6}\\InprocServer32"), path);
}

}  // namespace
}  // namespace qz
