// The dialog of several pages on one sheet, run by the dispatcher.
#include "settings/nup_settings.h"
#include "tests/dialogs/record_dialogs.h"
#include "tests/support/message_box_answer.h"
#include "ui/gdi.h"

#include <algorithm>
#include <memory>

namespace qz {
namespace {

class NUpDialogTest : public RecordDialogTest {
  protected:
    static constexpr int customPaper = 11;  // in the list
    static constexpr int a4 = 6;

    static void ChoosePaper(int place) {
        SendMessageW(Item(QZ_NUP_PAPER), CB_SETCURSEL, static_cast<WPARAM>(place), 0);
        SendMessageW(Window(), WM_COMMAND, MAKEWPARAM(QZ_NUP_PAPER, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(Item(QZ_NUP_PAPER)));
    }
    /// Runs the dialog until OK; what was handed back.
    std::unique_ptr<zrNUpSettings> Record(const std::function<void()>& enter,
                                          VARIANT* dataIn = nullptr) const {
        _variant_t out;
        EXPECT_EQ(Run(qzNUpSettings, dataIn, &out,
                      [&] {
                          enter();
                          Press(IDOK);
                          if (IsWindowVisible(Window())) Press(IDCANCEL);
                      }),
                  S_OK);
        auto record = std::make_unique<zrNUpSettings>();
        Load(out, *record);
        return record;
    }
    static void Keep(const std::function<void(zrNUpSettings&)>& change) {
        zrNUpSettings record;
        change(record);
        ASSERT_TRUE(SettingsStore().Write(record).stored);
    }
    /// How many pixels of the picture have a colour.
    static std::ptrdiff_t Pixels(COLORREF colour) {
        RECT bounds{};
        GetClientRect(Item(QZ_NUP_PICTURE), &bounds);
        const DibSection pixels(bounds.right, bounds.bottom);
        const MemoryDc memory;
        {
            const SelectScope selected(memory.Get(), pixels.Get());
            DRAWITEMSTRUCT item{};
            item.CtlType = ODT_STATIC;
            item.CtlID = QZ_NUP_PICTURE;
            item.hwndItem = Item(QZ_NUP_PICTURE);
            item.hDC = memory.Get();
            item.rcItem = bounds;
            SendMessageW(Window(), WM_DRAWITEM, QZ_NUP_PICTURE, reinterpret_cast<LPARAM>(&item));
        }
        GdiFlush();
        const DWORD wanted = RGB(GetBValue(colour), GetGValue(colour), GetRValue(colour));  // in memory order
        return std::ranges::count_if(pixels.Pixels(),
                                     [&](DWORD pixel) { return (pixel & 0xFFFFFF) == wanted; });
    }
};

TEST_F(NUpDialogTest, HandsBackAndKeepsWhatWasEntered) {
    const auto record = Record([] {
        ChoosePaper(a4);
        EXPECT_FALSE(IsWindowEnabled(Item(QZ_NUP_WIDTH))) << "the paper says it";
        Press(QZ_NUP_LANDSCAPE);
        Enter(QZ_NUP_ROWS, L"2");
        Enter(QZ_NUP_COLUMNS, L"3");
        Enter(QZ_NUP_GAP, L"10 mm");
        for (const int id : {QZ_NUP_COLUMNS_FIRST, QZ_NUP_RIGHT_TO_LEFT, QZ_NUP_BORDERS, QZ_NUP_PERFORATION,
                             QZ_NUP_SKIP_CONTENT}) {
            Press(id);
        }
        Press(QZ_NUP_CUSTOM_SCALE);
        Enter(QZ_NUP_PERCENT, L"75");
    });
    EXPECT_EQ(record->GetInt(L"Dest_PaperSize:Predefined"), 6);
    EXPECT_EQ(record->width, 11906);
    EXPECT_EQ(record->length, 16838);
    EXPECT_EQ(record->orientation, 1);
    EXPECT_EQ(record->rows, 2);
    EXPECT_EQ(record->columns, 3);
    EXPECT_EQ(record->innerGap, 567);
    EXPECT_TRUE(record->columnsFirst && record->rightToLeft && record->drawBorders &&
                record->drawPerforationLines && record->skipPageContent);
    EXPECT_EQ(record->scale, 2);
    EXPECT_EQ(record->scaleCustomValue, 75);
    zrNUpSettings kept;
    EXPECT_TRUE(SettingsStore().Read(kept));
    EXPECT_EQ(kept.Text(), record->Text());
}

TEST_F(NUpDialogTest, CancelChangesNothing) {
    VARIANT out{};
    out.vt = VT_I4;
    out.lVal = 12345;
    EXPECT_EQ(Run(qzNUpSettings, nullptr, &out,
                  [] {
                      Enter(QZ_NUP_ROWS, L"5");
                      Press(QZ_SETTINGS_DEFAULTS);
                      Press(IDCANCEL);
                  }),
              S_FALSE);
    EXPECT_EQ(out.lVal, 12345);
    EXPECT_FALSE(RegistryKey::Open(HKEY_CURRENT_USER, SettingsPlace().key, KEY_READ));
}

TEST_F(NUpDialogTest, OkWithoutChangesKeepsUnknownValues) {
    Keep([](zrNUpSettings& record) {
        record.SetInt(L"Dest_PaperSize:Predefined", 77);
        record.SetInt(L"Dest_PaperSize:Orientation", 5);
        record.SetInt(L"Dest_NUp:Rows", 99);
        record.SetInt(L"Dest_NUp:InnerGap", -3);
        record.SetInt(L"Source:Scale", 9);
        record.SetString(L"Mine:Own", L"stays");
    });
    zrNUpSettings before;
    ASSERT_TRUE(SettingsStore().Read(before));
    EXPECT_EQ(Record([] {})->Text(), before.Text());
}

TEST_F(NUpDialogTest, ModeSelectsWhatIsOffered) {
    struct Offer {
        _variant_t dataIn;
        bool paper, scale;
    };
    short number = 1;
    _variant_t byReference;
    byReference.vt = VT_BYREF | VT_I2;
    byReference.piVal = &number;
    const _variant_t missing(DISP_E_PARAMNOTFOUND, VT_ERROR);
    const Offer offers[] = {
        {_variant_t(short{0}), false, true}, {_variant_t(short{1}), true, false},
        {_variant_t(7L), true, true},        {_variant_t(65536L), false, true},  // the low 16 bits count
        {_variant_t(L"0"), false, true},     {byReference, true, false},
        {_variant_t(), true, true},          {missing, true, true},
        {_variant_t(L"none"), true, true},   {_variant_t(1e30), true, true},
    };
    for (const Offer& offer : offers) {
        bool paper = false, scale = false, pages = false;
        _variant_t dataIn(offer.dataIn);
        EXPECT_EQ(Run(qzNUpSettings, &dataIn, nullptr,
                      [&] {
                          paper = Offered(QZ_NUP_PAPER) && Offered(QZ_NUP_LANDSCAPE);
                          scale = Offered(QZ_NUP_FIT) && Offered(QZ_NUP_PERCENT);
                          pages = Offered(QZ_NUP_ROWS) && Offered(QZ_NUP_PICTURE);
                          Press(IDCANCEL);
                      }),
                  S_FALSE);
        EXPECT_EQ(paper, offer.paper) << offer.dataIn.vt;
        EXPECT_EQ(scale, offer.scale) << offer.dataIn.vt;
        EXPECT_TRUE(pages);
    }
}

TEST_F(NUpDialogTest, WhatTheModeDoesNotOfferStays) {
    Keep([](zrNUpSettings& record) {
        record.SetBool(L"Dest_PaperSize:UserDefined", true);
        record.SetInt(L"Dest_PaperSize:Width", 4000);
        record.SetInt(L"Source:Scale", 0);
    });
    _variant_t printing(short{0});
    const auto record = Record([] { Press(QZ_SETTINGS_DEFAULTS); }, &printing);
    EXPECT_EQ(record->width, 4000);
    EXPECT_EQ(record->GetBool(L"Dest_PaperSize:UserDefined"), true);
    EXPECT_EQ(record->scale, 1) << "offered, and at its default";
}

TEST_F(NUpDialogTest, RefusedEntriesAreToldAndNothingIsWritten) {
    struct Entry {
        int id;
        const wchar_t* text;
    };
    for (const Entry& entry : {Entry{QZ_NUP_ROWS, L"0"},
                               {QZ_NUP_COLUMNS, L"three"},
                               {QZ_NUP_GAP, L"-1"},
                               {QZ_NUP_GAP, L"400 in"},
                               {QZ_NUP_WIDTH, L"1 tw"},
                               {QZ_NUP_PERCENT, L"1001"}}) {
        const MessageBoxAnswer answer(IDOK);
        HWND focus = nullptr, expected = nullptr;
        EXPECT_EQ(Run(qzNUpSettings, nullptr, nullptr,
                      [&] {
                          ChoosePaper(customPaper);
                          Press(QZ_NUP_CUSTOM_SCALE);
                          Enter(entry.id, entry.text);
                          Press(IDOK);
                          focus = GetFocus();
                          expected = Item(entry.id);
                          Press(IDCANCEL);
                      }),
                  S_FALSE)
            << entry.id;
        EXPECT_TRUE(answer.Shown()) << entry.id;
        EXPECT_EQ(answer.Text().find(L"%s"), std::wstring::npos);
        EXPECT_EQ(focus, expected) << entry.id;
    }
    EXPECT_FALSE(RegistryKey::Open(HKEY_CURRENT_USER, SettingsPlace().key, KEY_READ));
}

TEST_F(NUpDialogTest, GapsMustLeaveRoomForPages) {
    const MessageBoxAnswer answer(IDOK);
    EXPECT_EQ(Run(qzNUpSettings, nullptr, nullptr,
                  [] {
                      Enter(QZ_NUP_COLUMNS, L"3");
                      Enter(QZ_NUP_GAP, L"5 in");
                      Press(IDOK);
                      Press(IDCANCEL);
                  }),
              S_FALSE);
    EXPECT_TRUE(answer.Shown());
}

TEST_F(NUpDialogTest, PictureFollowsTheEntries) {
    constexpr COLORREF white = RGB(255, 255, 255), page = RGB(232, 238, 247), cut = RGB(160, 60, 60);
    Run(qzNUpSettings, nullptr, nullptr, [&] {
        const std::ptrdiff_t full = Pixels(page);
        EXPECT_GT(full, 10000);
        EXPECT_EQ(Pixels(cut), 0);
        Enter(QZ_NUP_COLUMNS, L"2");
        EXPECT_GT(Pixels(white), full / 4) << "upright pages in narrow cells leave room above and below";
        Press(QZ_NUP_PERFORATION);
        EXPECT_GT(Pixels(cut), 20);
        Press(QZ_NUP_SKIP_CONTENT);
        EXPECT_EQ(Pixels(page), 0);
        Enter(QZ_NUP_COLUMNS, L"nonsense");
        EXPECT_EQ(Pixels(white), 0) << "no sheet";
        Press(IDCANCEL);
    });
}

}  // namespace
}  // namespace qz
