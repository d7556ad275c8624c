// The dialog of the export to DOCX, run by the dispatcher.
#include "dialogs/docx/docx_fields.h"
#include "settings/docx_settings.h"
#include "tests/dialogs/record_dialogs.h"
#include "tests/support/message_box_answer.h"

#include <dlgs.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <variant>

namespace qz {
namespace {

class DocxDialogTest : public RecordDialogTest {
  protected:
    static int Id(std::wstring_view key, int first = QZ_DOCX_FIELDS) {
        int id = first;
        for (const SettingField& field : DocxFields()) {
            if (field.key == key) return id;
            ++id;
        }
        ADD_FAILURE() << "no such key";
        return -1;
    }
    static void ShowPage(int page) {
        const HWND list = Item(QZ_DOCX_SECTIONS);
        SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(page), 0);
        SendMessageW(Window(), WM_COMMAND, MAKEWPARAM(QZ_DOCX_SECTIONS, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
    }
    static void PressOk() {
        Press(IDOK);
        if (IsWindowVisible(Window())) Press(IDCANCEL);
    }
    /// Runs the dialog until OK; what was handed back.
    std::unique_ptr<zrDocxSettings> Record(const std::function<void()>& enter) const {
        _variant_t out;
        EXPECT_EQ(Run(qzExportToDOCX, nullptr, &out,
                      [&] {
                          enter();
                          PressOk();
                      }),
                  S_OK);
        auto record = std::make_unique<zrDocxSettings>();
        Load(out, *record);
        return record;
    }
};

TEST_F(DocxDialogTest, EveryKeyHasAFieldOfItsKind) {
    const zrDocxSettings record;
    ASSERT_EQ(DocxFields().size(), record.Table().rows.size());
    std::vector<int> rows(DocxPages().size());
    for (std::size_t i = 0; i < DocxFields().size(); ++i) {
        const SettingField& field = DocxFields()[i];
        const SettingsRow& row = record.Table().rows[i];
        EXPECT_STREQ(field.key, row.key);
        const bool check = field.kind == FieldKind::Check;
        const bool number = field.kind == FieldKind::Number || field.kind == FieldKind::Length ||
                            field.kind == FieldKind::Colour;
        EXPECT_EQ(check, row.field.index() == 0) << i;
        EXPECT_EQ(number, row.field.index() == 1 || row.field.index() == 2) << i;
        EXPECT_TRUE(row.field.index() != 2 || field.most <= 255) << i;
        const SettingField* const gate = DocxGateOf(field);
        EXPECT_TRUE(gate || !field.enabledBy) << i;
        EXPECT_TRUE(!gate || gate->kind == FieldKind::Check) << i;
        ASSERT_LT(DocxPageOf(field), rows.size()) << i;
        EXPECT_LE(++rows[DocxPageOf(field)], 2 * docxRowsInColumn) << i;
    }
}

TEST_F(DocxDialogTest, EveryEntryReachesTheRecord) {
    const auto record = Record([] {
        for (int i = 0; i < static_cast<int>(DocxFields().size()); ++i) {
            const SettingField& field = DocxFields()[static_cast<std::size_t>(i)];
            const int id = QZ_DOCX_FIELDS + i;
            if (field.kind == FieldKind::Check)
                Press(id);
            else if (field.kind == FieldKind::Length)
                Enter(id, (std::to_wstring(1000 + i) + L" tw").c_str());
            else
                Enter(id, std::to_wstring(i % 100 + 1).c_str());
        }
    });
    zrDocxSettings defaults;
    for (int i = 0; i < static_cast<int>(DocxFields().size()); ++i) {
        const SettingField& field = DocxFields()[static_cast<std::size_t>(i)];
        if (field.kind == FieldKind::Check)
            EXPECT_NE(record->GetBool(field.key), defaults.GetBool(field.key)) << i;
        else
            EXPECT_EQ(record->GetInt(field.key), field.kind == FieldKind::Length ? 1000 + i : i % 100 + 1)
                << i;
    }
    EXPECT_EQ(record->pageWidth, 1001) << "members follow";
    zrDocxSettings kept;
    EXPECT_TRUE(SettingsStore().Read(kept));
    EXPECT_EQ(kept.Text(), record->Text());
}

TEST_F(DocxDialogTest, OkWithoutChangesKeepsUnknownValuesAndDefaultsReplaceThem) {
    zrDocxSettings before;
    before.SetInt(L"Standard:PageWidth", 7);
    before.SetInt(L"Configurable:HFAutomaticResize", -1);
    before.SetInt(L"ExportToJPEG:CompressionLevel", 4711);
    before.SetString(L"Watermark:Text", L"\"quoted\" > text");
    before.SetString(L"Mine:Own", L"stays");
    ASSERT_TRUE(SettingsStore().Write(before).stored);
    EXPECT_EQ(Record([] {})->Text(), before.Text());
    zrDocxSettings defaults;
    const auto record = Record([] { Press(QZ_SETTINGS_DEFAULTS); });
    for (const SettingField& field : DocxFields()) {
        EXPECT_EQ(record->GetString(field.key), defaults.GetString(field.key)) << field.key;
    }
    EXPECT_EQ(record->GetString(L"Mine:Own"), L"stays");
}

TEST_F(DocxDialogTest, RefusedEntriesAreShownOnTheirPageAndNothingIsWritten) {
    struct Entry {
        const wchar_t* key;
        const wchar_t* text;
        int page;
    };
    constexpr Entry entries[] = {{L"Standard:OutputFileName", L"a < b", 0},
                                 {L"DocumentProtection:Password", L"a&b", 2},
                                 {L"Configurable:HFMarginSizeHeader", L"-1", 3},
                                 {L"Configurable:HFAutoDiscoveryPages", L"256", 3},
                                 {L"ExportToTIFF:Resolution", L"many", 8}};
    for (const Entry& entry : entries) {
        const MessageBoxAnswer answer(IDOK);
        HWND focus = nullptr, expected = nullptr;
        LRESULT page = -1;
        EXPECT_EQ(
            Run(qzExportToDOCX, nullptr, nullptr,
                [&] {
                    for (const wchar_t* gate : {L"DocumentProtection:Enabled", L"ExportToTIFF:Enabled"}) {
                        Press(Id(gate));
                    }
                    Enter(Id(L"Standard:OCRLanguage"), L"changed");
                    Enter(Id(entry.key), entry.text);
                    Press(IDOK);
                    focus = GetFocus();
                    expected = Item(Id(entry.key));
                    page = SendMessageW(Item(QZ_DOCX_SECTIONS), LB_GETCURSEL, 0, 0);
                    Press(IDCANCEL);
                }),
            S_FALSE);
        EXPECT_TRUE(answer.Shown()) << entry.key;
        EXPECT_EQ(focus, expected) << entry.key;
        EXPECT_EQ(page, entry.page) << entry.key;
    }
    EXPECT_FALSE(RegistryKey::Open(HKEY_CURRENT_USER, SettingsPlace().key, KEY_READ));
}

TEST_F(DocxDialogTest, WhatAnotherCheckDecidesIsEnabledByIt) {
    Run(qzExportToDOCX, nullptr, nullptr, [] {
        const auto enabled = [](const wchar_t* key) { return IsWindowEnabled(Item(Id(key))) != FALSE; };
        EXPECT_TRUE(enabled(L"Standard:FontEmbeddingPartial"));
        EXPECT_FALSE(enabled(L"Watermark:UseFile"));
        Press(Id(L"Watermark:Enabled"));
        EXPECT_TRUE(enabled(L"Watermark:UseFile"));
        EXPECT_FALSE(enabled(L"Watermark:File"));
        Press(Id(L"Watermark:UseFile"));
        EXPECT_TRUE(enabled(L"Watermark:File"));
        EXPECT_TRUE(IsWindowEnabled(Item(Id(L"Watermark:File", QZ_DOCX_CHOOSERS))));
        Press(Id(L"Watermark:Enabled"));
        EXPECT_FALSE(enabled(L"Watermark:File")) << "though a file is used";
        Press(IDCANCEL);
    });
}

/// Fills in the chooser that opens over the dialog, then presses its OK.
class ChooserAnswer {
  public:
    ChooserAnswer(HWND over, std::function<void(HWND)> fill) : timer_(SetTimer(nullptr, 0, 50, &OnTimer)) {
        over_ = over;
        fill_ = std::move(fill);
    }
    ~ChooserAnswer() { KillTimer(nullptr, timer_); }

  private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        HWND chooser = nullptr;
        do {
            chooser = FindWindowExW(nullptr, chooser, L"#32770", nullptr);
        } while (chooser && (GetWindow(chooser, GW_OWNER) != over_ || !GetDlgItem(chooser, IDOK)));
        if (!chooser || !fill_) return;
        std::exchange(fill_, nullptr)(chooser);
        PostMessageW(chooser, WM_COMMAND, IDOK, 0);
    }

    static inline HWND over_ = nullptr;
    static inline std::function<void(HWND)> fill_;
    UINT_PTR timer_;
};

TEST_F(DocxDialogTest, ChoosersFillTheirEntries) {
    const std::filesystem::path file = std::filesystem::temp_directory_path() / L"qz merge.docx";
    std::ofstream(file) << "x";
    const auto choose = [](std::wstring_view key, const std::function<void(HWND)>& fill) {
        const ChooserAnswer answer(Window(), fill);
        const int id = Id(key, QZ_DOCX_CHOOSERS);
        SendMessageW(Window(), WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(Item(id)));
        return Shown(Id(key));
    };
    const auto record = Record([&] {
        constexpr int green = 707;  // in the system's colour chooser
        Enter(Id(L"Watermark:Color"), L"255");
        EXPECT_EQ(choose(L"Watermark:Color", [](HWND chooser) { SetDlgItemInt(chooser, green, 128, FALSE); }),
                  std::to_wstring(RGB(255, 128, 0)));
        EXPECT_EQ(choose(L"Merge:File",
                         [&](HWND chooser) {
                             const int entry = GetDlgItem(chooser, edt1) ? edt1 : cmb13;
                             SetDlgItemTextW(chooser, entry, file.c_str());
                         }),
                  file.wstring());
    });
    EXPECT_EQ(record->GetString(L"Merge:File"), file.wstring());
    std::filesystem::remove(file);
}

}  // namespace
}  // namespace qz
