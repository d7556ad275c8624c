#include "com/object.h"
#include "settings/docx_settings.h"
#include "settings/nup_settings.h"
#include "tests/settings/memory_text.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace qz {
namespace {

bool Load(zrSettings& record, std::string_view text) { return record.Load(StreamOf(text).Get()); }

constexpr char newNUpSettings[] =
    "<zrNUpSettings>\n"
    " <Dest_PaperSize:KeepOriginal>\nf </Dest_PaperSize:KeepOriginal>\n"
    " <Dest_PaperSize:Predefined>\n0 </Dest_PaperSize:Predefined>\n"
    " <Dest_PaperSize:UserDefined>\nf </Dest_PaperSize:UserDefined>\n"
    " <Dest_PaperSize:Width>\n12240 </Dest_PaperSize:Width>\n"
    " <Dest_PaperSize:Length>\n15840 </Dest_PaperSize:Length>\n"
    " <Dest_PaperSize:Orientation>\n0 </Dest_PaperSize:Orientation>\n"
    " <Dest_NUp:Rows>\n1 </Dest_NUp:Rows>\n"
    " <Dest_NUp:Columns>\n1 </Dest_NUp:Columns>\n"
    " <Dest_NUp:DrawBorders>\nf </Dest_NUp:DrawBorders>\n"
    " <Dest_NUp:ColumnsFirst>\nf </Dest_NUp:ColumnsFirst>\n"
    " <Dest_NUp:RightToLeft>\nf </Dest_NUp:RightToLeft>\n"
    " <Dest_NUp:DrawPerforationLines>\nf </Dest_NUp:DrawPerforationLines>\n"
    " <Dest_NUp:SkipPageContent>\nf </Dest_NUp:SkipPageContent>\n"
    " <Dest_NUp:InnerGap>\n0 </Dest_NUp:InnerGap>\n"
    " <Source:Scale>\n1 </Source:Scale>\n"
    " <Source:ScaleCustomValue>\n100 </Source:ScaleCustomValue>\n"
    "</zrNUpSettings>\n";

TEST(SettingsRecord, ANewOneHoldsEveryKeyInOrder) {
    zrNUpSettings record;
    EXPECT_EQ(record.Text(), newNUpSettings);
    EXPECT_EQ(record.width, 12240);
    EXPECT_EQ(record.scaleCustomValue, 100);
    const ComPtr<IStream> stream = MakeMemoryStream();
    EXPECT_TRUE(record.Save(stream.Get()));
    EXPECT_EQ(TextOf(stream.Get()), newNUpSettings);
}

bool ShareAMember(const SettingsRow& one, const SettingsRow& other) {
    const auto sameMember = [](const auto& first, const auto& second) {
        if constexpr (std::is_same_v<decltype(first), decltype(second)>) {
            return first.member && first.member == second.member;
        } else {
            return false;
        }
    };
    return std::visit(sameMember, one.field, other.field);
}

// The tables are data: what a slip would leave behind.
TEST(SettingsRecord, EveryKeyIsOneElementAndHasItsOwnMember) {
    zrDocxSettings record;
    std::set<std::wstring> keys;
    const auto rows = record.Table().rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_TRUE(keys.insert(rows[i].key).second) << rows[i].key;
        EXPECT_TRUE(record.GetString(rows[i].key)) << rows[i].key;
        for (std::size_t k = 0; k < i; ++k) EXPECT_FALSE(ShareAMember(rows[k], rows[i])) << rows[i].key;
    }
    EXPECT_EQ(keys.size(), 99U);
    EXPECT_EQ(record.GetString(L"ExportToTIFF:CompressionStr"), L"CCITT Fax");
    EXPECT_EQ(record.encryption, 0);
    EXPECT_EQ(record.hfAutoDiscoveryPages, 4);
    EXPECT_EQ(record.renderAsImageDpi, 300);
    EXPECT_TRUE(record.generateTableOfContent);
}

TEST(SettingsRecord, WhatIsLoadedReachesMembersAndComesBackWhole) {
    zrDocxSettings record;
    record.SetString(L"Standard:OutputFileName", L" C:\\\u5C64 ");
    record.SetInt(L"Configurable:HFAutoDiscoveryPages", 0x1FF);
    record.SetBool(L"Standard:Landscape", true);
    record.SetFloat(L"Unknown:Key", 1.5F);
    record.SetBool(L"Watermark:Enabled", true);
    const std::string text = record.Text();

    zrDocxSettings loaded;
    EXPECT_TRUE(Load(loaded, text));
    EXPECT_EQ(loaded.Text(), text);
    EXPECT_EQ(loaded.outputFileName, L" C:\\\u5C64 ");
    EXPECT_EQ(loaded.hfAutoDiscoveryPages, 0xFF) << "its last 8 bits";
    EXPECT_TRUE(loaded.landscape);
    EXPECT_EQ(loaded.GetInt(L"Unknown:Key"), 1);
    EXPECT_EQ(loaded.GetBool(L"Watermark:Enabled"), true);
    EXPECT_EQ(loaded.GetInt(L"No:Key"), std::nullopt);
}

TEST(SettingsRecord, MissingKeysAreAddedAndOthersKept) {
    zrNUpSettings record;
    record.SetInt(L"Dest_NUp:Rows", 9);
    EXPECT_TRUE(Load(record,
                     "<other x='1'><Mine:Own>m</Mine:Own><Dest_NUp:Columns>3</Dest_NUp:Columns>"
                     "<Dest_NUp:Columns>4</Dest_NUp:Columns><Source:Scale>x</Source:Scale></other>"));
    EXPECT_EQ(record.rows, 1) << "nothing of before";
    EXPECT_EQ(record.columns, 3);
    EXPECT_EQ(record.scale, 0) << "no number";
    const std::string text = record.Text();
    EXPECT_TRUE(
        text.starts_with("<zrNUpSettings x=\"1\">\n <Mine:Own>\nm </Mine:Own>\n <Dest_NUp:Columns>\n3 "))
        << text;
    EXPECT_TRUE(
        text.ends_with(" <Source:ScaleCustomValue>\n100 </Source:ScaleCustomValue>\n</zrNUpSettings>\n"));
    EXPECT_TRUE(Load(record, text));
    EXPECT_EQ(record.Text(), text) << "attributes are not doubled";
}

TEST(SettingsRecord, AMalformedDocumentLeavesDefaults) {
    for (const std::string& text : {std::string(), std::string("no XML"), std::string(2'000'000, '<'),
                                    std::string(newNUpSettings).substr(0, 500),
                                    std::string("<a><Dest_NUp:Rows>5</Dest_NUp:Rows><b></a>")}) {
        zrNUpSettings record;
        record.SetInt(L"Dest_NUp:Rows", 9);
        EXPECT_FALSE(record.Load(std::as_bytes(std::span(text))));
        EXPECT_EQ(record.rows, 1);
        EXPECT_EQ(record.Text(), newNUpSettings);
    }
    zrNUpSettings record;
    EXPECT_FALSE(record.Load(nullptr));
    EXPECT_EQ(record.Text(), newNUpSettings);
}

TEST(SettingsRecord, TextsThatCannotBeSavedAreRefused) {
    zrDocxSettings record;
    record.SetString(L"Standard:OCRLanguage", L"before");
    const std::string text = record.Text();
    for (const wchar_t* bad : {L"<", L"a & b", L"]]>", L"\x01", L"\xFFFF"}) {
        for (const wchar_t* key : {L"Standard:OCRLanguage", L"New:Key"}) {
            try {
                record.SetString(key, bad);
                FAIL() << bad;
            } catch (const ComError& error) {
                EXPECT_EQ(error.code, E_INVALIDARG);
                EXPECT_NE(error.text.find(key), std::wstring::npos);
            }
        }
    }
    EXPECT_EQ(record.Text(), text);
    EXPECT_EQ(record.ocrLanguage, L"before");
    record.SetString(L"Standard:OCRLanguage", L"\"> 'x");
    record.SetString(L"Standard:ConvertToHyperlinks", nullptr);
    zrDocxSettings again;
    EXPECT_TRUE(Load(again, record.Text()));
    EXPECT_EQ(again.ocrLanguage, L"\"> 'x");
}

TEST(SettingsRecord, AResetLetsGo) {
    const ComPtr<IStream> object = MakeMemoryStream();
    const auto references = [&] {
        object->AddRef();
        return object->Release();
    };
    zrNUpSettings record;
    record.Keep(object.Get());
    EXPECT_EQ(references(), 2U);
    record.Reset();
    EXPECT_EQ(references(), 1U);
    EXPECT_EQ(record.Text(), "<root/>\n");
    record.ReadAll();
    EXPECT_EQ(record.Text(), newNUpSettings);
}

}  // namespace
}  // namespace qz
