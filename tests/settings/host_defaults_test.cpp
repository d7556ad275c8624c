#include "settings/host_defaults.h"
#include "tests/support/host_under_test.h"

#include <comdef.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace qz {
namespace {

class HostDefaults : public testing::Test {
  protected:
    ~HostDefaults() override { std::filesystem::remove(path_); }

    bool Apply(const std::string& text) {
        std::ofstream(path_, std::ios::binary) << text;
        return ApplyHostDefaults(host_.Get(), path_.wstring());
    }
    _variant_t Setting(const wchar_t* name) {
        _variant_t value;
        EXPECT_EQ(host_->GetObjectAttribute(_bstr_t(L"Document"), _bstr_t(name), &value), S_OK) << name;
        return value;
    }
    long Written() { return CallCount(host_.Get(), L"ApplyObjectSetting"); }

    ComPtr<IReferenceHost> host_ = MakeHost(1);
    std::filesystem::path path_ = std::filesystem::temp_directory_path() / L"qzVandraExt host defaults.ini";
};

TEST_F(HostDefaults, KnownSettingsOfTheFileReachTheDocument) {
    EXPECT_TRUE(
        Apply("MaxClippingPathPoints = -7\nOCRLanguage = \" \xE5\xB1\xA4 \"\nPageBackDropLevel=1\n"
              "PageBackdropLevel=2\nuseImageBrushForXPSImageBrushFills=x\nUnknown=1\nusegdiplus=1\n"
              "[Section]\nTemplateMode=1\n"));
    EXPECT_EQ(Written(), 5) << "both spellings, and nothing that is absent, unknown or in a section";
    EXPECT_EQ(Setting(L"MaxClippingPathPoints").vt, VT_I4);
    EXPECT_EQ(Setting(L"MaxClippingPathPoints").lVal, -7);
    EXPECT_EQ(std::wstring(_bstr_t(Setting(L"OCRLanguage"))), L" \u5C64 ");
    EXPECT_EQ(Setting(L"PageBackDropLevel").lVal, 1);
    EXPECT_EQ(Setting(L"PageBackdropLevel").lVal, 2);
    EXPECT_EQ(Setting(L"useImageBrushForXPSImageBrushFills").lVal, 0);
}

TEST_F(HostDefaults, WithoutAFileNothingHappens) {
    EXPECT_FALSE(ApplyHostDefaults(host_.Get(), L"C:\\no such folder\\file.ini"));
    EXPECT_TRUE(Apply(""));
    EXPECT_EQ(Written(), 0);
    EXPECT_THROW(ApplyHostDefaults(nullptr, path_.wstring()), ComError);
}

TEST_F(HostDefaults, ARefusalEndsItAndNamesTheSetting) {
    host_->FailOperation(_bstr_t(L"ApplyObjectSetting"), E_ACCESSDENIED);
    try {
        Apply("TemplateMode=1\nUseGdiPlus=1\n");
        FAIL() << "not told";
    } catch (const ComError& error) {
        EXPECT_EQ(error.code, E_ACCESSDENIED);
        EXPECT_NE(error.text.find(L"TemplateMode"), std::wstring::npos);
    }
    EXPECT_EQ(Written(), 1);
}

}  // namespace
}  // namespace qz
