// The document settings: page setup and fonts.
#include "tests/dialogs/document_settings_fixture.h"
#include "tests/support/dialog_fit.h"

namespace qz {
namespace {

using PageSetupTest = DocumentSettingsTest;

TEST_F(PageSetupTest, WritesInOrder) {
    EXPECT_EQ(host->put_LogEnabled(1), S_OK);
    Run([&] {
        Press(QZ_SETUP_LANDSCAPE);
        Choose(QZ_SETUP_PAPER, 8);
        EXPECT_EQ(Shown(QZ_SETUP_WIDTH), L"11906");
        EXPECT_FALSE(IsWindowEnabled(Item(QZ_SETUP_WIDTH)));
        Choose(QZ_SETUP_BIN, 0);
        Enter(QZ_SETUP_MARGIN_LEFT, L"garbage");
        Enter(QZ_SETUP_MARGIN_TOP, L"720");
        Press(IDOK);
    });
    std::vector<std::wstring> written;
    for (const std::wstring& line : LogLines(host.Get())) {
        for (const wchar_t* name :
             {L"Landscape", L"PaperSize", L"Width", L"Length", L"PaperBin", L"Margin"}) {
            if (line.find(name) != line.npos) written.push_back(line);
        }
    }
    ASSERT_EQ(written.size(), 18u) << "nine reads, nine writes";
    const wchar_t* const order[] = {L"Landscape", L"PaperSize",    L"Width",      L"Length",     L"PaperBin",
                                    L"TopMargin", L"BottomMargin", L"LeftMargin", L"RightMargin"};
    for (std::size_t i = 0; i < 9; ++i) EXPECT_NE(written[9 + i].find(order[i]), std::wstring::npos);
    EXPECT_TRUE(static_cast<bool>(Value(L"Landscape")));
    EXPECT_EQ(Number(L"PaperSize"), 9);
    EXPECT_EQ(Number(L"Width"), 16838);
    EXPECT_EQ(Number(L"Length"), 11906);
    EXPECT_EQ(Number(L"PaperBin"), 1);
    EXPECT_EQ(Number(L"TopMargin"), 720);
    EXPECT_EQ(Number(L"LeftMargin"), 0);
}

TEST_F(PageSetupTest, CustomSizesAreReadInTheUnitOfTheDocument) {
    Set(L"MeasurementUnit", 1L);
    Set(L"PaperSize", 9L);
    Run([&] {
        EXPECT_EQ(Shown(QZ_SETUP_WIDTH), L"8.50");
        EXPECT_EQ(Shown(QZ_SETUP_UNIT), L"(inches)");
        EXPECT_EQ(Shown(QZ_SETUP_MARGINS), L"Margins (inches)");
        Choose(QZ_SETUP_PAPER, 68);
        EXPECT_TRUE(IsWindowEnabled(Item(QZ_SETUP_WIDTH)));
        Enter(QZ_SETUP_WIDTH, L"8.99");
        Enter(QZ_SETUP_MARGIN_BOTTOM, L"2.5");
        Press(QZ_SETUP_LANDSCAPE);
        Press(IDOK);
    });
    EXPECT_EQ(Number(L"PaperSize"), 9) << "not written";
    EXPECT_EQ(Number(L"Width"), 11520);
    EXPECT_EQ(Number(L"Length"), 15840);
    EXPECT_EQ(Number(L"BottomMargin"), 2880);
}

TEST_F(PageSetupTest, ListsEveryPaperAndBin) {
    Set(L"PaperSize", 69L);
    Run([] {
        EXPECT_EQ(Send(QZ_SETUP_PAPER, CB_GETCOUNT), 69);
        EXPECT_EQ(Send(QZ_SETUP_BIN, CB_GETCOUNT), 16);
        wchar_t text[100] = L"";
        Send(QZ_SETUP_PAPER, CB_GETLBTEXT, 67, reinterpret_cast<LPARAM>(text));
        EXPECT_STREQ(text, L"A3 Extra Transverse 322 x 445 mm");
        Send(QZ_SETUP_PAPER, CB_GETLBTEXT, 49, reinterpret_cast<LPARAM>(text));
        EXPECT_STREQ(text, L"Letter Extra 9 \x00BD x 12 in");
        EXPECT_EQ(Chosen(QZ_SETUP_PAPER), 68) << "a custom size";
    });
}

TEST_F(PageSetupTest, GoesToTheChosenPagesWhichAreRemembered) {
    EXPECT_EQ(host->SetCurrentPage(2), S_OK);
    const auto setWidth = [this](const wchar_t* width, int scopeBefore, int scope) {
        Run([&] {
            EXPECT_TRUE(Ticked(scopeBefore));
            Press(scope);
            Enter(QZ_SETUP_WIDTH, width);
            Press(IDOK);
        });
        return std::vector{Number(L"Width", L"Pages[1]"), Number(L"Width", L"Pages[2]"),
                           Number(L"Width", L"Pages[3]")};
    };
    EXPECT_EQ(setWidth(L"3000", QZ_SETUP_SCOPE_ALL, QZ_SETUP_SCOPE_CURRENT),
              (std::vector{12240L, 3000L, 12240L}));
    EXPECT_EQ(setWidth(L"4000", QZ_SETUP_SCOPE_CURRENT, QZ_SETUP_SCOPE_FROM_HERE),
              (std::vector{12240L, 4000L, 4000L}));
    EXPECT_EQ(setWidth(L"5000", QZ_SETUP_SCOPE_FROM_HERE, QZ_SETUP_SCOPE_ALL), (std::vector(3, 5000L)));
}

TEST_F(PageSetupTest, AFailedWriteShowsTheTabAndKeepsTheEntries) {
    Run([&] {
        Enter(QZ_SETUP_WIDTH, L"-5");
        Enter(QZ_SETUP_MARGIN_TOP, L"99");
        // Six of the information, four reads of the security; the scope's first two writes succeed.
        EXPECT_EQ(host->FailCall(12, E_FAIL), S_OK);
        const MessageBoxAnswer told(IDOK);
        Press(IDOK);
        EXPECT_TRUE(told.Shown());
        EXPECT_EQ(ShownTab(), 2);
        EXPECT_EQ(Shown(QZ_SETUP_MARGIN_TOP), L"99");
        EXPECT_EQ(host->ClearFaults(), S_OK);
        Press(IDOK);
        EXPECT_EQ(Window(), nullptr) << "and may be tried again";
    });
    EXPECT_EQ(Number(L"TopMargin"), 99);
}

/// A list of fonts as a document gives it.
class FontsTest : public DocumentSettingsTest {
  protected:
    using Texts = std::vector<std::wstring>;

    ComPtr<IDispatch> Font(const wchar_t* id, const wchar_t* name, const wchar_t* original, long embedding) {
        ComPtr<IDispatch> font;
        EXPECT_EQ(host->CreateObject(53, _bstr_t(id), &font), S_OK);
        const std::wstring path = L"Objects[" + std::wstring(id) + L"]";
        const auto add = [&](const wchar_t* attribute, long type, const _variant_t& value) {
            EXPECT_EQ(host->AddAttribute(_bstr_t(path.c_str()), _bstr_t(attribute), '*', 0, type,
                                         _bstr_t(L""), _bstr_t(L""), value),
                      S_OK);
        };
        if (name) add(L"FontName", 14, name);
        add(L"OriginalName", 14, original);
        add(L"FontType", 14, L"TrueType");
        add(L"Embedding", 3, embedding);
        add(L"Encoding", 14, id);
        fonts.push_back(font);
        return font;
    }
    void GiveFonts() const { Override(L"Fonts", ObjectArray(fonts)); }

    static Texts Column(int column) {
        Texts texts;
        for (int row = 0; row < Rows(QZ_FONTS_LIST); ++row) texts.push_back(Cell(QZ_FONTS_LIST, row, column));
        return texts;
    }
    static void Notify(NMHDR& header, UINT code) {
        header = {Item(QZ_FONTS_LIST), QZ_FONTS_LIST, code};
        SendMessageW(GetParent(header.hwndFrom), WM_NOTIFY, QZ_FONTS_LIST, reinterpret_cast<LPARAM>(&header));
    }
    static void ClickColumn(int column) {
        NMLISTVIEW details{};
        details.iItem = -1;
        details.iSubItem = column;
        Notify(details.hdr, LVN_COLUMNCLICK);
    }
    static void Select(int row) {
        LVITEMW item{};
        item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
        Send(QZ_FONTS_LIST, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    }
    /// Return in the list, then the action in the dialog that opens.
    static void Activate(int row, const std::function<void()>& action) {
        Send(QZ_DOCUMENT_TABS, TCM_SETCURFOCUS, 3);
        Select(row);
        const DuringModal during([&] {
            Uncover(QZ_FONT_EMBED_NONE);
            action();
            if (EmbeddingWindow()) SendMessageW(EmbeddingWindow(), WM_COMMAND, IDCANCEL, 0);
        });
        Send(QZ_FONTS_LIST, WM_KEYDOWN, VK_RETURN);
    }
    static void PressThere(int id) { SendDlgItemMessageW(EmbeddingWindow(), id, BM_CLICK, 0, 0); }

    std::vector<ComPtr<IDispatch>> fonts;
};

TEST_F(FontsTest, ListsThemAndSortsByColumn) {
    Font(L"F1", L"Zapf", L"", 2);
    Font(L"F2", L"ABCDEF+Arial", L"Arial", 0);
    Font(L"F3", nullptr, L"nameless", 0);
    Font(L"F4", L"Mono+", L"no subset", 17);
    Font(L"F5", L"", L"nameless", 0);
    GiveFonts();
    Run([] {
        EXPECT_EQ(Column(0), (Texts{L"Zapf", L"Arial", L"Mono+"})) << "as the document has them";
        EXPECT_EQ(Column(1), (Texts(3, L"TrueType")));
        EXPECT_EQ(Column(2), (Texts{L"Full Embedding", L"Partial Embedding", L"No Embedding"}));
        EXPECT_EQ(Column(3), (Texts{L"F1", L"F2", L"F4"}));
        Select(0);
        ClickColumn(0);
        EXPECT_EQ(Column(0), (Texts{L"Arial", L"Mono+", L"Zapf"}));
        EXPECT_EQ(Send(QZ_FONTS_LIST, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), 2)
            << "the same font stays selected";
        ClickColumn(0);
        EXPECT_EQ(Column(0), (Texts{L"Zapf", L"Mono+", L"Arial"}));
        ClickColumn(2);
        EXPECT_EQ(Column(0), (Texts{L"Mono+", L"Arial", L"Zapf"}));
    });
}

TEST_F(FontsTest, TheEmbeddingIsReadableInEveryLanguage) {
    for (const long level : {0L, 1L, 2L}) Font((L"F" + std::to_wstring(level)).c_str(), L"Zapf", L"", level);
    GiveFonts();
    for (const long language : {0x0409, 0x0407, 0x0C0A, 0x040C, 0x0410, 0x0411, 0x041D}) {
        EXPECT_EQ(host->put_LanguageId(language), S_OK);
        Run([&] {
            const LRESULT room = Send(QZ_FONTS_LIST, LVM_GETCOLUMNWIDTH, 2) - 12;  // the margins of a cell
            for (const std::wstring& text : Column(2)) {
                EXPECT_LE(Send(QZ_FONTS_LIST, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text.c_str())),
                          room)
                    << language;
            }
            SCROLLINFO across{sizeof(SCROLLINFO), SIF_RANGE | SIF_PAGE, 0, 0, 0, 0, 0};
            if (GetScrollInfo(Item(QZ_FONTS_LIST), SB_HORZ, &across)) {
                EXPECT_LE(across.nMax, static_cast<int>(across.nPage)) << "all columns show, " << language;
            }
        });
    }
}

TEST_F(FontsTest, AChoiceIsWrittenAtOnce) {
    Font(L"F1", L"Zapf", L"", 1);
    Font(L"F2", L"ABCDEF+Arial", L"Arial", 0);
    GiveFonts();
    Run([&] {
        Activate(0, [] {
            EXPECT_EQ(SendDlgItemMessageW(EmbeddingWindow(), QZ_FONT_EMBED_PARTIALLY, BM_GETCHECK, 0, 0),
                      BST_CHECKED);
            EXPECT_EQ(CutOffTexts(EmbeddingWindow()), Texts());
            EXPECT_EQ(BadMnemonics(EmbeddingWindow()), Texts());
            PressThere(QZ_FONT_EMBED_FULLY);
            PressThere(IDOK);
        });
        EXPECT_EQ(Number(L"Embedding", L"Objects[F1]"), 2);
        EXPECT_EQ(Cell(QZ_FONTS_LIST, 0, 2), L"Full Embedding");
        Activate(0, [] {
            PressThere(QZ_FONT_EMBED_NONE);
            PressThere(IDCANCEL);
        });
        EXPECT_EQ(Number(L"Embedding", L"Objects[F1]"), 2);
        Activate(1, [] {
            PressThere(QZ_FONT_EMBED_FULLY);
            PressThere(IDOK);
        });
        EXPECT_EQ(Number(L"Embedding", L"Objects[F2]"), 2);
        EXPECT_EQ(Cell(QZ_FONTS_LIST, 1, 2), L"Partial Embedding") << "a subset";
        const MessageBoxAnswer told(IDOK);
        Activate(0, [&] {
            EXPECT_EQ(host->FailCall(1, E_FAIL), S_OK);
            PressThere(IDOK);
        });
        EXPECT_TRUE(told.Shown());
        EXPECT_NE(Window(), nullptr);
    });
}

}  // namespace
}  // namespace qz
