// The editor of formats: what it offers, and its preview.
#include "tests/properties/inspector_fixture.h"

namespace qz {
namespace {

class FormatEditor : public InspectorTest {
  protected:
    FormatEditor() { Open(); }

    void Reopen() {
        Inspect(field);
        ASSERT_TRUE(Choose(L"Format"));
    }
    HWND Text() const { return Field(QZ_EDITOR_TEXT); }
    HWND List() const { return Field(QZ_EDITOR_FORMATS); }
    Texts Offered() const {
        Texts formats;
        for (LRESULT i = 0; i < SendMessageW(List(), LB_GETCOUNT, 0, 0); ++i) {
            wchar_t text[100] = L"";
            SendMessageW(List(), LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            formats.emplace_back(text);
        }
        return formats;
    }
    void Pick(int entry) const {
        SendMessageW(List(), LB_SETCURSEL, static_cast<WPARAM>(entry), 0);
        SendMessageW(Editor(), WM_COMMAND, MAKEWPARAM(QZ_EDITOR_FORMATS, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(List()));
    }
    int Picked() const { return static_cast<int>(SendMessageW(List(), LB_GETCURSEL, 0, 0)); }
    std::wstring Preview() const { return TextOf(Field(QZ_EDITOR_PREVIEW)); }
    std::wstring Format() const {
        const _variant_t value = Value(L"Objects[F]", L"Format");
        EXPECT_EQ(value.vt, VT_BSTR);
        return value.vt == VT_BSTR ? std::wstring(_bstr_t(value)) : std::wstring();
    }

    ComPtr<IDispatch> field = Create(typeField, L"F"), picture = Create(typePicture, L"P");
};

TEST_F(FormatEditor, TheKindOfDataDecidesWhatIsOffered) {
    const Texts numbers{L"#", L"#,###.00"}, times{L"hh:MM:SS", L"HH:MM:SS", L"HH:MM:SS T"};
    const Texts dates{L"dddd/mmm/yyyy", L"dd\\m\\yyyy", L"mm/dd/yyyy"};
    const Texts perType[] = {numbers, dates, times, {}, {}, {}};
    for (long type = 0; type < 6; ++type) {
        SetValue(L"Objects[F]", L"DataType", type);
        Reopen();
        EXPECT_EQ(Offered(), perType[type]) << type;
    }
    Texts all = numbers;
    all.insert(all.end(), dates.begin(), dates.end());
    all.insert(all.end(), times.begin(), times.end());
    for (const _variant_t& unknown : {_variant_t(6L), _variant_t(-1L), _variant_t(L"money"), _variant_t()}) {
        Override(L"Objects[F]", L"DataType", unknown);
        Reopen();
        EXPECT_EQ(Offered(), all) << unknown.vt;
    }
    // An object without such an attribute.
    Add(L"Objects[P]", L"Pattern", L'*', 0, 15, L"#");
    Inspect(picture);
    ASSERT_TRUE(Choose(L"Pattern"));
    EXPECT_EQ(Offered(), all);
}

TEST_F(FormatEditor, WhatIsTypedIsSeenAtOnceAndWrittenLater) {
    Reopen();
    EXPECT_EQ(TextOf(Text()), L"#,###.00");
    EXPECT_EQ(Picked(), 1);
    EXPECT_EQ(Preview(), L"1,234.57");
    SendMessageW(Text(), EM_SETSEL, 8, 8);
    SendMessageW(Text(), WM_CHAR, L'0', 1);
    EXPECT_EQ(Preview(), L"1,234.567");
    EXPECT_EQ(Picked(), -1);
    EXPECT_EQ(Format(), L"#,###.00");
    LetWritingHappen();
    EXPECT_EQ(Format(), L"#,###.000");
    Type(Text(), L"");
    LetWritingHappen();
    EXPECT_EQ(Format(), L"");
    EXPECT_EQ(Preview(), L"1234.567") << "as without a format";
    const struct {
        long type;
        const wchar_t *format, *preview;
    } samples[] = {{1, L"mm/dd/yyyy", L"03/25/2026"},
                   {2, L"HH:MM:SS", L"14:05:09"},
                   {3, L"yyyy-mm-dd HH:MM", L"2026-03-25 14:05"},
                   {4, L"0.0%", L"12.3%"},
                   {5, L"#,##0.00 \"EUR\"", L"1,234.57 EUR"}};
    for (const auto& sample : samples) {
        SetValue(L"Objects[F]", L"DataType", sample.type);
        Reopen();
        Type(Text(), sample.format);
        EXPECT_EQ(Preview(), sample.preview);
    }
}

TEST_F(FormatEditor, AChoiceIsWrittenAtOnce) {
    SetValue(L"Objects[F]", L"DataType", 2L);
    SetValue(L"Objects[F]", L"Format", L"HH:MM:SS");
    Reopen();
    EXPECT_EQ(Picked(), 1) << "the formats differ in the case of letters only";
    Type(Text(), L"unfinished");
    Pick(0);
    EXPECT_EQ(Format(), L"hh:MM:SS");
    EXPECT_EQ(TextOf(Text()), L"hh:MM:SS");
    EXPECT_EQ(Picked(), 0);
    Press(List(), VK_ESCAPE);
    EXPECT_EQ(Format(), L"HH:MM:SS");
    EXPECT_EQ(Picked(), 1);
    // Of no known kind: the sample is of the kind that the format is for.
    Override(L"Objects[F]", L"DataType", 99L);
    Reopen();
    Pick(7);
    EXPECT_EQ(Preview().substr(0, 8), L"14:05:09");
}

}  // namespace
}  // namespace qz
