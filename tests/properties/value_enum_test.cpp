// Enumerations and lists of numbers.
#include "tests/properties/inspector_fixture.h"

namespace qz {
namespace {

class ValueEnum : public InspectorTest {
  protected:
    void InspectField() {
        const auto field = Create(typeField, L"F");
        Open();
        Inspect(field);
    }
    HWND Text() const { return Field(QZ_EDITOR_TEXT); }
    HWND Button(int index) const { return Field(QZ_EDITOR_CHOICES + index); }
    /// The index of the button checked; -1 for none.
    int Checked() const {
        for (int i = 0; Button(i); ++i) {
            if (SendMessageW(Button(i), BM_GETCHECK, 0, 0) == BST_CHECKED) return i;
        }
        return -1;
    }
    RECT Place(HWND control) const {
        RECT place{};
        GetWindowRect(control, &place);
        MapWindowPoints(nullptr, Editor(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    bool IsInside(HWND control) const {
        RECT client{}, place = Place(control), common{};
        GetClientRect(Editor(), &client);
        IntersectRect(&common, &client, &place);
        return EqualRect(&common, &place) != FALSE;
    }
};

TEST_F(ValueEnum, ChoicesAreWrittenAtOnce) {
    InspectField();
    ASSERT_TRUE(Choose(L"BorderStyle"));
    EXPECT_EQ(TextOf(Button(2)), L"2 Dashed");
    EXPECT_EQ(Button(4), nullptr);
    EXPECT_EQ(Checked(), 1);
    EXPECT_EQ(TextOf(Text()), L"1");
    Click(Button(2));
    EXPECT_EQ(static_cast<long>(Value(L"Objects[F]", L"BorderStyle")), 2);
    EXPECT_EQ(TextOf(Text()), L"2");
    Press(Button(2), VK_DOWN);
    EXPECT_EQ(static_cast<long>(Value(L"Objects[F]", L"BorderStyle")), 3) << "the arrow keys choose";
    EXPECT_EQ(GetFocus(), Button(3));
    Press(Button(3), VK_ESCAPE);
    EXPECT_EQ(static_cast<long>(Value(L"Objects[F]", L"BorderStyle")), 1);
    EXPECT_EQ(Checked(), 1);
    ASSERT_TRUE(Choose(L"BorderWidth"));
    Click(Button(0));
    EXPECT_EQ(static_cast<double>(Value(L"Objects[F]", L"BorderWidth")), 0.25);
    Override(L"Objects[F]", L"BorderWidth", _variant_t(2.5F));
    SetValue(L"Objects[F]", L"Top", 5L);
    EXPECT_EQ(Checked(), 3) << "the same number in single precision";
    Override(L"Objects[F]", L"BorderWidth", _variant_t());
    SetValue(L"Objects[F]", L"Top", 6L);
    EXPECT_EQ(Checked(), -1);
    host->ClearLog();
    SetFocus(Button(1));
    EXPECT_EQ(CallCount(host.Get(), L"UpdateView"), 0) << "the focus alone chooses nothing";
    EXPECT_NE(GetWindowLongPtrW(Button(0), GWL_STYLE) & WS_TABSTOP, 0);
}

TEST_F(ValueEnum, TypedNumbersLieBetweenTheChoices) {
    const auto field = Create(typeField, L"F");
    Add(L"Objects[F]", L"Tens", L'*', 0, 512, 10L, L"10 Ten|12 A & B|20 Twenty");
    Add(L"Objects[F]", L"Free", L'*', 0, 512, 10L);
    Open();
    Inspect(field);
    ASSERT_TRUE(Choose(L"Tens"));
    EXPECT_EQ(TextOf(Button(1)), L"12 A && B");
    Type(Text(), L"15");
    EXPECT_EQ(Checked(), -1);
    LetWritingHappen();
    EXPECT_EQ(static_cast<long>(Value(L"Objects[F]", L"Tens")), 15);
    Type(Text(), L"12");
    EXPECT_EQ(Checked(), 1);
    Press(Text(), VK_RETURN);
    EXPECT_EQ(static_cast<long>(Value(L"Objects[F]", L"Tens")), 12);
    for (const auto& [typed, left] :
         {std::pair{L"x", L"12"}, {L"12.", L"12"}, {L"21", L"2"}, {L"9", L"9"}, {L"", L""}}) {
        Type(Text(), typed);
        EXPECT_EQ(TextOf(Text()), left) << typed << ", what can no longer get between them put back at once";
        LetWritingHappen();
        EXPECT_EQ(TextOf(Text()), L"12") << typed;
        EXPECT_EQ(Checked(), 1);
    }
    SetFocus(Text());
    Type(Text(), L"9");
    SetFocus(Button(0));
    EXPECT_EQ(TextOf(Text()), L"9");
    Sleep(50);
    PumpMessages();
    EXPECT_EQ(TextOf(Text()), L"12") << "left, without waiting for the pause";
    ASSERT_TRUE(Choose(L"Free"));
    EXPECT_EQ(Button(0), nullptr);
    Type(Text(), L"-77");
    ASSERT_TRUE(Choose(L"Left"));
    EXPECT_EQ(static_cast<long>(Value(L"Objects[F]", L"Free")), -77);
}

TEST_F(ValueEnum, ManyChoicesAreScrolled) {
    std::wstring labels;
    for (int i = 0; i < 50; ++i) labels += (i ? L"|" : L"") + std::to_wstring(i) + L" A rather long label";
    const auto field = Create(typeField, L"F");
    Add(L"Objects[F]", L"Many", L'*', 0, 512, 10L, labels.c_str());
    Open({200, 400});
    Inspect(field);
    ASSERT_TRUE(Choose(L"Many"));
    EXPECT_NE(GetWindowLongPtrW(Editor(), GWL_STYLE) & WS_VSCROLL, 0);
    EXPECT_TRUE(IsInside(Text()) && IsInside(Button(0)) && !IsInside(Button(49)));
    SetFocus(Button(49));
    EXPECT_TRUE(IsInside(Button(49)) && !IsInside(Text()));
    SendMessageW(Editor(), WM_VSCROLL, SB_TOP, 0);
    EXPECT_TRUE(IsInside(Text()));
    SendMessageW(Button(3), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    EXPECT_FALSE(IsInside(Text()));
    SendMessageW(Editor(), WM_VSCROLL, SB_PAGEUP, 0);
    EXPECT_TRUE(IsInside(Text()));
    for (int i = 0; i < 50; ++i) {
        for (int other = 0; other < i; ++other) {
            const RECT one = Place(Button(i)), two = Place(Button(other));
            RECT common{};
            ASSERT_FALSE(IntersectRect(&common, &one, &two)) << i << " and " << other;
        }
    }
    ASSERT_TRUE(Choose(L"BorderStyle"));
    EXPECT_EQ(GetWindowLongPtrW(Editor(), GWL_STYLE) & WS_VSCROLL, 0);
}

TEST_F(ValueEnum, ListsAreTextsOfNumbers) {
    InspectField();
    const auto typed = [&](const wchar_t* name, const wchar_t* text) {
        if (!Choose(name)) return std::wstring(L"not listed");
        Type(Text(), text);
        LetWritingHappen();
        const std::wstring left = TextOf(Text());
        Choose(L"Locked");
        Choose(name);
        return left + L" -> " + TextOf(Text());
    };
    ASSERT_TRUE(Choose(L"TabStops"));
    EXPECT_EQ(TextOf(Text()), L"720\r\n1440\r\n2160");
    Type(Text(), L"9");
    EXPECT_EQ(Value(L"Objects[F]", L"TabStops").parray->rgsabound[0].cElements, 3U) << "not yet";
    EXPECT_EQ(typed(L"TabStops", L"1, -2\r70000"), L"1, -2\r\n70000 -> 1\r\n-2\r\n70000");
    EXPECT_EQ(typed(L"TabStops", L"1; x"), L"1; x -> 1\r\n-2\r\n70000") << "no list: not written";
    EXPECT_EQ(typed(L"ShadingStops", L"32768"), L"32768 -> 0\r\n50\r\n100") << "16 bits";
    EXPECT_EQ(typed(L"ShadingStops", L"7"), L"7 -> 7");
    EXPECT_EQ(typed(L"ShadingStops", L""), L" -> ");
}

}  // namespace
}  // namespace qz
