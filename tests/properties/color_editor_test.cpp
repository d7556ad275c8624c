// The editor of colors: what the field takes, and the palette.
#include "tests/properties/inspector_fixture.h"
#include "ui/gdi.h"

namespace qz {
namespace {

void PutOnClipboard(const std::wstring& text) {
    const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL data = GlobalAlloc(GMEM_MOVEABLE, bytes);
    memcpy(GlobalLock(data), text.c_str(), bytes);
    GlobalUnlock(data);
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, data);
    CloseClipboard();
}

class ColorEditor : public InspectorTest {
  protected:
    ColorEditor() {
        Open();
        Inspect(field);
        EXPECT_TRUE(Choose(L"FillColor"));
    }

    HWND Text() const { return Field(QZ_EDITOR_TEXT); }
    HWND Box(int index) const { return Field(QZ_EDITOR_COLOR_BOXES + index); }
    void ClickBox(int index) const { SendMessageW(Box(index), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2)); }
    unsigned Fill() const {
        const _variant_t value = Value(L"Objects[F]", L"FillColor");
        EXPECT_EQ(value.vt, VT_I4);
        return static_cast<unsigned>(value.lVal);
    }
    /// Pixels of a box, below its border, that do not have its color.
    static int MarkedPixels(HWND box) {
        RECT bounds{};
        GetClientRect(box, &bounds);
        InflateRect(&bounds, -2, -2);
        const auto colour = static_cast<COLORREF>(GetWindowLongPtrW(box, GWLP_USERDATA)) & 0xFFFFFF;
        const MemoryDc dc;
        const DibSection pixels(bounds.right + 2, bounds.bottom + 2);
        const SelectScope selected(dc.Get(), pixels.Get());
        SendMessageW(box, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.Get()), PRF_CLIENT);
        int marked = 0;
        for (LONG x = bounds.left; x < bounds.right; ++x) {
            marked += GetPixel(dc.Get(), x, bounds.top) != colour;
        }
        return marked;
    }

    ComPtr<IDispatch> field = Create(typeField, L"F");
};

TEST_F(ColorEditor, DigitsAreWrittenAfterAPause) {
    EXPECT_EQ(TextOf(Text()), L"");  // -1: no color
    Type(Text(), L"00fF00");
    EXPECT_EQ(Fill(), 0xFFFFFFFF);
    LetWritingHappen();
    EXPECT_EQ(Fill(), 0xFF00FF00);
    Type(Text(), L"80FF0000");
    LetWritingHappen();
    EXPECT_EQ(Fill(), 0x800000FF);
    const long writes = CallCount(host.Get(), L"Attribute.Value");
    for (const wchar_t* text : {L"", L"F0F", L"1234567"}) {
        Type(Text(), text);
        LetWritingHappen();
        EXPECT_EQ(TextOf(Text()), text);
    }
    EXPECT_EQ(CallCount(host.Get(), L"Attribute.Value"), writes) << "other lengths are no colors";
    Type(Text(), L"FFFFFF");
    Press(Text(), VK_RETURN);
    EXPECT_EQ(Fill(), 0x00FFFFFFu) << "opaque white is not the mark of no color";
    Click(Field(QZ_EDITOR_NO_COLOR));
    EXPECT_EQ(Fill(), 0xFFFFFFFF);
    EXPECT_EQ(TextOf(Text()), L"");
    SetValue(L"Objects[F]", L"FillColor", 0x00030201L);
    PumpMessages();
    EXPECT_EQ(TextOf(Text()), L"FF010203") << "changed by the host";
}

TEST_F(ColorEditor, OnlyDigitsComeIntoTheField) {
    Type(Text(), L"1 g2#x3-\x661");
    EXPECT_EQ(TextOf(Text()), L"123");
    SendMessageW(Text(), WM_CHAR, VK_BACK, 1);
    EXPECT_EQ(TextOf(Text()), L"12");
    Type(Text(), L"123456789a");
    EXPECT_EQ(TextOf(Text()), L"12345678");
    const auto paste = [&](const wchar_t* text, UINT message, WPARAM key) {
        PutOnClipboard(text);
        SendMessageW(Text(), EM_SETSEL, 0, -1);
        SendMessageW(Text(), message, key, 0);
        return TextOf(Text());
    };
    EXPECT_EQ(paste(L"80ABcdEF", WM_PASTE, 0), L"80ABcdEF");
    EXPECT_EQ(paste(L"123456", WM_CHAR, 0x16), L"123456");
    for (const wchar_t* refused : {L"123456789", L"#123456", L"12 34", L"red", L"12\r\n"}) {
        EXPECT_EQ(paste(refused, WM_PASTE, 0), L"123456") << refused;
        EXPECT_EQ(paste(refused, WM_CHAR, 0x16), L"123456") << refused;
    }
    for (const wchar_t* refused : {L"blue", L"123456789"}) {
        SendMessageW(Text(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(refused));
        EXPECT_EQ(TextOf(Text()), L"123456") << "put there by a program";
    }
    LetWritingHappen();
    EXPECT_EQ(Fill(), 0xFF563412);
}

TEST_F(ColorEditor, BoxesAreChosenByClickAndKeys) {
    for (int i = 0; i < 64; ++i) {
        wchar_t name[20] = L"";
        GetClassNameW(Box(i), name, 20);
        EXPECT_STREQ(name, L"QZ_COLOR_BOX");
        const auto colour = static_cast<unsigned>(GetWindowLongPtrW(Box(i), GWLP_USERDATA)) & 0xFFFFFF;
        EXPECT_EQ(colour, i / 16 * 85U + i / 4 % 4 * 85U * 256 + i % 4 * 85U * 65536);
    }
    Type(Text(), L"123456");
    ClickBox(16);
    EXPECT_EQ(Fill(), 0xFF000055) << "at once, instead of what was typed";
    EXPECT_EQ(TextOf(Text()), L"FF550000");
    EXPECT_GT(MarkedPixels(Box(16)), 0);
    ClickBox(63);
    EXPECT_EQ(Fill(), 0x00FFFFFFu);
    EXPECT_EQ(MarkedPixels(Box(16)), 0) << "clicked before";
    EXPECT_GT(MarkedPixels(Box(63)), 0);
    SetFocus(Box(63));
    Press(Box(63), VK_UP);  // by a row, however many are in one
    const HWND above = GetFocus();
    Press(above, VK_LEFT);
    const HWND reached = GetFocus();
    EXPECT_TRUE(reached == Box(46) || reached == Box(54));
    EXPECT_EQ(Fill(), 0x00FFFFFFu) << "reaching is not choosing";
    EXPECT_NE(GetWindowLongW(reached, GWL_STYLE) & WS_TABSTOP, 0);
    EXPECT_EQ(GetWindowLongW(Box(63), GWL_STYLE) & WS_TABSTOP, 0) << "one stop for all boxes";
    Press(reached, VK_SPACE);
    EXPECT_EQ(Fill(), static_cast<unsigned>(GetWindowLongPtrW(reached, GWLP_USERDATA)));
    Press(reached, VK_HOME);
    Type(Text(), L"ABC");
    Press(Box(0), VK_RETURN);
    EXPECT_EQ(Fill(), 0xFF000000) << "Return is the box's own";
}

TEST_F(ColorEditor, TheClassOfTheBoxesStaysAsLongAsThereIsAnEditor) {
    const HMODULE library = GetModuleHandleW(L"qzVandraExt.dll");
    WNDCLASSW known{};
    ASSERT_TRUE(GetClassInfoW(library, L"QZ_COLOR_BOX", &known));
    {
        ComPtr<IqzPropCtrl> second;
        module.Make(CLSID_qzPropCtrl, second);
        const PaneWindow other(second.Get(), {320, 480}, {400, 0});
        ThrowIfFailed(second->put_VandraX(host.Get()));
        ThrowIfFailed(second->put_Object(field.Get()));  // the attribute chosen last opens by itself
        ASSERT_TRUE(Choose(L"Locked"));
        EXPECT_TRUE(GetClassInfoW(library, L"QZ_COLOR_BOX", &known)) << "the other's editor";
        ASSERT_TRUE(Choose(L"FillColor"));
        second->put_VandraX(nullptr);
    }
    ClickBox(1);
    EXPECT_EQ(Fill(), 0xFF550000);
    End();
    EXPECT_FALSE(GetClassInfoW(library, L"QZ_COLOR_BOX", &known));
}

}  // namespace
}  // namespace qz
