// Colours, images, sizes, names and what is saved with a form.
#include "host/late_bound.h"
#include "outline_fixture.h"

namespace qz {
namespace {

constexpr OLE_COLOR treesOwn = 0xFFFFFFFF;

class Appearance : public OutlineTest {
  protected:
    /// Whether a pixel of that colour is among those of an item's row.
    bool RowHas(HTREEITEM item, COLORREF colour) const {
        RECT row{};
        *reinterpret_cast<HTREEITEM*>(&row) = item;
        SendMessageW(Tree(), TVM_GETITEMRECT, FALSE, reinterpret_cast<LPARAM>(&row));
        for (LONG y = row.top; y < row.bottom; ++y) {
            for (LONG x = 0; x < 100; ++x) {
                if (window->PixelAt(x, y) == colour) return true;
            }
        }
        return false;
    }
    long Get(const wchar_t* property) const { return LateBoundMember(property).Get(pane.Get()); }
    void Put(const wchar_t* property, long value) const { LateBoundMember(property).Put(pane.Get(), value); }
    HIMAGELIST Images() const {
        return reinterpret_cast<HIMAGELIST>(SendMessageW(Tree(), TVM_GETIMAGELIST, TVSIL_NORMAL, 0));
    }
};

TEST_F(Appearance, TheTextColourIsTheTrees) {
    OLE_COLOR colour = 1;
    EXPECT_EQ(pane->get_TextColor(&colour), S_OK);
    EXPECT_EQ(colour, treesOwn);
    EXPECT_EQ(pane->put_TextColor(RGB(10, 20, 30)), S_OK);
    ShowOutline();
    EXPECT_EQ(SendMessageW(Tree(), TVM_GETTEXTCOLOR, 0, 0), RGB(10, 20, 30));
    SendMessageW(Tree(), TVM_SETTEXTCOLOR, 0, RGB(40, 50, 60));
    EXPECT_EQ(pane->get_TextColor(&colour), S_OK);
    EXPECT_EQ(colour, RGB(40, 50, 60));
    window.reset();
    EXPECT_EQ(pane->get_TextColor(&colour), S_OK);
    EXPECT_EQ(colour, RGB(40, 50, 60)) << "kept without the window";

    Show();
    EXPECT_EQ(pane->put_TextColor(0x80000000u | COLOR_HIGHLIGHT), S_OK);
    EXPECT_EQ(SendMessageW(Tree(), TVM_GETTEXTCOLOR, 0, 0),
              static_cast<LRESULT>(GetSysColor(COLOR_HIGHLIGHT)));
    EXPECT_EQ(pane->get_TextColor(&colour), S_OK);
    EXPECT_EQ(colour, 0x80000000u | COLOR_HIGHLIGHT) << "a system colour stays one";
    EXPECT_EQ(pane->put_TextColor(treesOwn), S_OK);
    EXPECT_EQ(static_cast<DWORD>(SendMessageW(Tree(), TVM_GETTEXTCOLOR, 0, 0)), treesOwn);
    EXPECT_EQ(pane->put_TextColor(0x12345678), E_INVALIDARG);
    EXPECT_NE(TakeErrorText(), L"");
    EXPECT_EQ(pane->get_TextColor(nullptr), E_POINTER);
}

TEST_F(Appearance, ColoursAreDrawn) {
    ShowOutline();
    EXPECT_EQ(pane->put_BackColor(RGB(1, 99, 2)), S_OK);
    SendMessageW(Tree(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(Find(L"B")));
    EXPECT_EQ(pane->put_SelectedTextBackColor(RGB(200, 3, 4)), S_OK);
    EXPECT_EQ(pane->put_SelectedTextColor(RGB(5, 6, 250)), S_OK);
    PumpMessages();
    EXPECT_EQ(window->PixelAt(190, 290), RGB(1, 99, 2));
    EXPECT_TRUE(RowHas(Find(L"B"), RGB(200, 3, 4)));
    EXPECT_FALSE(RowHas(Find(L"A"), RGB(200, 3, 4)));
    EXPECT_EQ(pane->put_SelectedTextBackColor(treesOwn), S_OK);
    PumpMessages();
    EXPECT_FALSE(RowHas(Find(L"B"), RGB(200, 3, 4)));
    EXPECT_EQ(pane->put_SelectedTextColor(0x12345678), E_INVALIDARG);
    EXPECT_EQ(pane->put_SelectedTextBackColor(0x12345678), E_INVALIDARG);
}

TEST_F(Appearance, IconSets) {
    ShowOutline();
    EXPECT_EQ(Images(), nullptr);
    for (const auto set : {qzBookmarksCtrlIconSet_Style1, qzBookmarksCtrlIconSet_Style2}) {
        EXPECT_EQ(pane->put_IconSet(set), S_OK);
        EXPECT_EQ(ImageList_GetImageCount(Images()), 3);
        EXPECT_EQ(Shown(), L"A+ B C+");
    }
    EXPECT_EQ(pane->put_IconSet(static_cast<qzBookmarksCtrlIconSetConsts>(3)), E_INVALIDARG);
    qzBookmarksCtrlIconSetConsts set{};
    EXPECT_EQ(pane->get_IconSet(&set), S_OK);
    EXPECT_EQ(set, qzBookmarksCtrlIconSet_Style2);
    EXPECT_EQ(pane->put_IconSet(qzBookmarksCtrlIconSet_None), S_OK);
    EXPECT_EQ(Images(), nullptr);
}

TEST_F(Appearance, FitToParentTakesTheParentsSizeAndKeepsThePlace) {
    ShowOutline();
    SetWindowPos(window->Window(), nullptr, 15, 25, 50, 60, SWP_NOZORDER);
    EXPECT_EQ(pane->put_FitToParent(0), S_OK);
    RECT control{};
    GetWindowRect(window->Window(), &control);
    EXPECT_EQ(control.right - control.left, 50);
    EXPECT_EQ(pane->put_FitToParent(1), S_OK);
    GetWindowRect(window->Window(), &control);
    MapWindowPoints(nullptr, window->Frame(), reinterpret_cast<POINT*>(&control), 2);
    EXPECT_EQ(control.left, 15);
    EXPECT_EQ(control.top, 25);
    EXPECT_EQ(control.right, 15 + 200);
    EXPECT_EQ(control.bottom, 25 + 300);
    RECT tree{};
    GetWindowRect(Tree(), &tree);
    EXPECT_EQ(tree.right - tree.left, 200);
    EXPECT_EQ(tree.bottom - tree.top, 300);
}

TEST_F(Appearance, NamesAreInTheHostsLanguage) {
    host->put_LanguageId(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN));
    ShowOutline();
    for (const HWND named : {window->Window(), Tree()}) {
        wchar_t text[64] = {};
        GetWindowTextW(named, text, 64);
        EXPECT_STREQ(text, L"Lesezeichen");
    }
}

TEST_F(Appearance, PropertiesAreSaved) {
    struct Saved {
        const wchar_t* name;
        long initial;
        long changed;
    };
    constexpr Saved properties[] = {{L"FitToParent", 1, 0},
                                    {L"ReadOnly", 0, 7},
                                    {L"EnableDragDrop", 1, 0},
                                    {L"TextColor", -1, 0x010203},
                                    {L"SelectedTextColor", -1, static_cast<long>(0x80000000u | COLOR_WINDOW)},
                                    {L"SelectedTextBackColor", -1, 0x040506},
                                    {L"IconSet", 0, 1}};
    for (const Saved& each : properties) {
        EXPECT_EQ(Get(each.name), each.initial) << each.name;
        Put(each.name, each.changed);
    }
    ComPtr<IStream> stream;
    ComPtr<IPersistStreamInit> saved;
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    ASSERT_EQ(pane.As(&saved), S_OK);
    EXPECT_EQ(saved->IsDirty(), S_OK);
    ASSERT_EQ(saved->Save(stream.Get(), TRUE), S_OK);
    for (const Saved& each : properties) Put(each.name, each.initial);
    ASSERT_EQ(stream->Seek({}, STREAM_SEEK_SET, nullptr), S_OK);
    ASSERT_EQ(saved->Load(stream.Get()), S_OK);
    for (const Saved& each : properties) EXPECT_EQ(Get(each.name), each.changed) << each.name;
}

}  // namespace
}  // namespace qz
