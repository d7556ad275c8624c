// FormatData over what a variant can hold.
#include "formatter_fixture.h"

#include "com/object.h"
#include "tests/support/silent_dispatch.h"

#include <cmath>
#include <functional>

namespace qz {
namespace {

constexpr DATE tuesday = 37320.629247685187;  // 2002-03-05 15:06:07

class FormatData : public FormatterTest {
  protected:
    Answer Format(const wchar_t* pattern, const VARIANT& data) const {
        return AnswerOf([&](BSTR* slot) { return formatter->FormatData(_bstr_t(pattern), data, slot); });
    }
    std::optional<std::wstring> Text(const wchar_t* pattern, const VARIANT& data) const {
        const Answer answer = Format(pattern, data);
        EXPECT_EQ(answer.code, answer.text ? S_OK : answer.code);
        return answer.text;
    }
};

VARIANT Reference(VARIANT& to) {
    VARIANT reference{};
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = &to;
    return reference;
}

/// By reference to the value within `to`.
VARIANT ReferenceInto(VARIANT& to) {
    VARIANT reference{};
    reference.vt = static_cast<VARTYPE>(VT_BYREF | to.vt);
    reference.byref = &to.byref;
    return reference;
}

template <class T>
VARIANT Value(VARTYPE type, T VARIANT::*member, T value) {
    VARIANT made{};
    made.vt = type;
    made.*member = value;
    return made;
}

struct Row {
    VARIANT value;
    const wchar_t* pattern;
    const wchar_t* text;
};

TEST_F(FormatData, ShowsNumbersDatesAndTextsByValueAndByReference) {
    _variant_t text(L"abcde");
    const Row rows[] = {
        {Value(VT_I1, &VARIANT::cVal, CHAR{-128}), L"0", L"-128"},
        {Value(VT_UI1, &VARIANT::bVal, BYTE{255}), L"0", L"255"},
        {Value(VT_I2, &VARIANT::iVal, SHORT{-32768}), L"0", L"-32768"},
        {Value(VT_UI2, &VARIANT::uiVal, USHORT{65535}), L"0", L"65535"},
        {Value(VT_I4, &VARIANT::lVal, LONG{-2147483647L}), L"#,##0", L"-2,147,483,647"},
        {Value(VT_UI4, &VARIANT::ulVal, ULONG{4294967295}), L"0", L"4294967295"},
        {Value(VT_INT, &VARIANT::intVal, INT{-5}), L"0;(0)", L"(5)"},
        {Value(VT_UINT, &VARIANT::uintVal, UINT{4294967295}), L"0", L"4294967295"},
        {Value(VT_R4, &VARIANT::fltVal, 0.1f), L"0.##########", L"0.1"},
        {Value(VT_R8, &VARIANT::dblVal, 1234567.891), L"#,###.00", L"1,234,567.89"},
        {Value(VT_DATE, &VARIANT::date, tuesday), L"dd/mm/yyyy hh:MM:SS", L"05/03/2002 15:06:07"},
        {text, L"@@@-@@", L"abc-de"},
        {Value(VT_BSTR, &VARIANT::bstrVal, BSTR{}), L"@@;\"none\"", L"none"},
    };
    for (const Row& row : rows) {
        VARIANT value = row.value;
        EXPECT_EQ(Text(row.pattern, value), row.text) << value.vt;
        VARIANT into = ReferenceInto(value);
        EXPECT_EQ(Text(row.pattern, into), row.text) << value.vt;
        EXPECT_EQ(Text(row.pattern, Reference(value)), row.text) << value.vt;
        EXPECT_EQ(Text(row.pattern, Reference(into)), row.text) << value.vt;
    }
}

TEST_F(FormatData, RefusesEveryOtherType) {
    _variant_t array;
    array.vt = VT_ARRAY | VT_R8;
    array.parray = SafeArrayCreateVector(VT_R8, 0, 3);
    _variant_t number(1.0);
    VARIANT reference = Reference(number);
    struct Refused {
        VARIANT value;
        const wchar_t* told;
    };
    const Refused rows[] = {
        {_variant_t(true), L"Boolean"},
        {Value(VT_CY, &VARIANT::cyVal, CY{.int64 = 12345}), L"money"},
        {Value(VT_I8, &VARIANT::llVal, LONGLONG{5}), L"64-bit"},
        {Value(VT_UI8, &VARIANT::ullVal, ULONGLONG{5}), L"64-bit"},
        {Value(VT_ERROR, &VARIANT::scode, SCODE{DISP_E_PARAMNOTFOUND}), L"missing"},
        {Value(VT_UNKNOWN, &VARIANT::punkVal, static_cast<IUnknown*>(formatter.Get())), L"object"},
        {_variant_t(), L"empty"},
        {Value(VT_NULL, &VARIANT::lVal, 0L), L"null"},
        {Value(VT_DECIMAL, &VARIANT::ullVal, 0ULL), L"decimal"},
        {array, L"array"},
        {Reference(array), L"array"},
        {ReferenceInto(array), L"array"},
        {Reference(reference), L"type 12"},
        {Value(VT_RECORD, &VARIANT::lVal, 0L), L"type 36"},
    };
    for (const Refused& row : rows) {
        const Answer answer = Format(L"#,###.00", row.value);
        EXPECT_EQ(answer.code, E_FAIL) << row.value.vt;
        EXPECT_EQ(answer.text, std::nullopt) << row.value.vt;
        EXPECT_NE(TakeErrorText().find(row.told), std::wstring::npos) << row.value.vt;
    }
    EXPECT_EQ(Format(L"0", Value(VT_BYREF | VT_R8, &VARIANT::byref, PVOID{})).code, E_POINTER);
    EXPECT_EQ(Format(L"0", Value(VT_BYREF | VT_VARIANT, &VARIANT::byref, PVOID{})).code, E_POINTER);
}

TEST_F(FormatData, ConvertsPlainlyWithoutAFormat) {
    _variant_t plain(12.5);
    plain.ChangeType(VT_BSTR);
    EXPECT_EQ(Text(L"", _variant_t(12.5)), std::wstring(_bstr_t(plain)));
    EXPECT_EQ(AnswerOf([&](BSTR* slot) { return formatter->FormatData(nullptr, _variant_t(7L), slot); }).text,
              L"7");
    EXPECT_EQ(Text(L"", _variant_t()), L"");
    EXPECT_EQ(Text(L"", Value(VT_I8, &VARIANT::llVal, LONGLONG{-9007199254740993})), L"-9007199254740993");
    EXPECT_EQ(Text(L"", Value(VT_BSTR, &VARIANT::bstrVal, BSTR{})), L"");
    const std::wstring withNull(L"a\0b", 3);
    _variant_t text;
    text.vt = VT_BSTR;
    text.bstrVal = SysAllocStringLen(withNull.data(), 3);
    EXPECT_EQ(Text(L"", text), withNull);
    EXPECT_EQ(Text(L"", Reference(text)), withNull);
    EXPECT_EQ(Text(L"", ReferenceInto(text)), withNull);

    _variant_t array;
    array.vt = VT_ARRAY | VT_R8;
    array.parray = SafeArrayCreateVector(VT_R8, 0, 3);
    SetErrorInfo(0, nullptr);
    for (const VARIANT& inconvertible : {Value(VT_NULL, &VARIANT::lVal, 0L), VARIANT(array)}) {
        const Answer answer = Format(L"", inconvertible);
        EXPECT_EQ(answer.code, S_FALSE) << inconvertible.vt;
        EXPECT_EQ(answer.text, std::nullopt) << inconvertible.vt;
        EXPECT_EQ(TakeErrorText(), L"");
    }
}

std::wstring SystemsDate(int month, int day) {
    SYSTEMTIME date{};
    date.wYear = 2002;
    date.wMonth = static_cast<WORD>(month);
    date.wDay = static_cast<WORD>(day);
    wchar_t text[200] = {};
    GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &date, L"ddd dddd MMM MMMM", text, 200, nullptr);
    return text;
}

TEST_F(FormatData, NamesDaysAndMonthsAsTheSystemDoes) {
    for (int i = 0; i < 12; ++i) {
        SYSTEMTIME date{};
        date.wYear = 2002;
        date.wMonth = static_cast<WORD>(i + 1);
        date.wDay = static_cast<WORD>(i + 1);
        DATE serial = 0;
        ASSERT_TRUE(SystemTimeToVariantTime(&date, &serial));
        EXPECT_EQ(Text(L"ddd dddd mmm mmmm", Value(VT_DATE, &VARIANT::date, serial)),
                  SystemsDate(i + 1, i + 1));
    }
    EXPECT_EQ(Text(L">", _variant_t(L"stra\u00DFe \u00E9\u03C9")), L"STRA\u00DFE \u00C9\u03A9");
    EXPECT_EQ(Text(L"<", _variant_t(L"\u00C9\u03A9")), L"\u00E9\u03C9");
}

TEST_F(FormatData, FollowsTheSeparatorsAndThePattern) {
    const _variant_t number(1234.5);
    EXPECT_EQ(Text(L"#,###.00", number), L"1,234.50");
    EXPECT_EQ(formatter->put_DecimalSeperator(L','), S_OK);
    EXPECT_EQ(formatter->put_ThousandSeperator(L'.'), S_OK);
    EXPECT_EQ(Text(L"#,###.00", number), L"1.234,50");
    EXPECT_EQ(Text(L"0.0", number), L"1234,5");
    EXPECT_EQ(Text(L"#,###.00", number), L"1.234,50");
    EXPECT_EQ(Text(L"0.0", _variant_t(L"text")), L"0.0") << "each type has a language of its own";
    EXPECT_EQ(Text(L"0.0", number), L"1234,5");

    for (const short refused : std::initializer_list<short>{59, 0, 32, -44, 0x2C2C}) {
        EXPECT_EQ(formatter->put_DecimalSeperator(refused), static_cast<HRESULT>(0x80040001));
        EXPECT_NE(TakeErrorText().find(L"decimal separator"), std::wstring::npos);
        EXPECT_EQ(formatter->put_ThousandSeperator(refused), static_cast<HRESULT>(0x80040007));
        EXPECT_NE(TakeErrorText().find(L"thousands separator"), std::wstring::npos);
    }
    EXPECT_EQ(Text(L"#,###.00", number), L"1.234,50");
    EXPECT_EQ(formatter->put_DecimalSeperator(L'.'), S_OK) << "the two need not differ";
    short sign = 0;
    EXPECT_EQ(formatter->get_DecimalSeperator(&sign), S_OK);
    EXPECT_EQ(sign, L'.');
}

TEST_F(FormatData, BeginsWithTheUsersSeparators) {
    const auto fresh = Make<IqzFormatter>(CLSID_qzFormatter);
    short decimal = 0;
    short thousands = 0;
    EXPECT_EQ(fresh->get_DecimalSeperator(&decimal), S_OK);
    EXPECT_EQ(fresh->get_ThousandSeperator(&thousands), S_OK);
    wchar_t text[16] = {};
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, text, 16);
    EXPECT_EQ(decimal, static_cast<short>(text[0]));
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_STHOUSAND, text, 16);
    EXPECT_EQ(thousands, static_cast<short>(text[0]));
}

/// An object that answers only the question for its default value.
class Valued final : public Object<Valued, SilentDispatch> {
  public:
    std::function<HRESULT(VARIANT*, EXCEPINFO*)> tell;

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT*) override {
        if (id != DISPID_VALUE || flags != DISPATCH_PROPERTYGET || parameters->cArgs != 0)
            return E_UNEXPECTED;
        return tell(result, exception);
    }
};

ComPtr<Valued> MakeValued(const VARIANT& value) {
    auto object = MakeObject<Valued>();
    object->tell = [value = _variant_t(value)](VARIANT* result, EXCEPINFO*) mutable {
        return VariantCopy(result, &value);
    };
    return object;
}

TEST_F(FormatData, AsksObjectsForTheirDefaultValue) {
    const auto number = MakeValued(_variant_t(1234.5));
    _variant_t object(number.Get());
    EXPECT_EQ(Text(L"#,###.00", object), L"1,234.50");
    EXPECT_EQ(Text(L"#,###.00", Reference(object)), L"1,234.50");
    EXPECT_EQ(Text(L"#,###.00", ReferenceInto(object)), L"1,234.50");
    EXPECT_EQ(Text(L"", _variant_t(MakeValued(_variant_t(L"text")).Get())), L"text");
    EXPECT_EQ(Format(L"0", _variant_t(MakeValued(object).Get())).code, E_FAIL) << "one step only";

    _variant_t referred(5L);
    EXPECT_EQ(Text(L"0.0", _variant_t(MakeValued(Reference(referred)).Get())), L"5.0");
}

TEST_F(FormatData, TellsWhenAnObjectHasNoDefaultValue) {
    const auto failing = MakeObject<Valued>();
    failing->tell = [](VARIANT*, EXCEPINFO* exception) {
        exception->scode = E_ACCESSDENIED;
        exception->bstrDescription = SysAllocString(L"It is a secret");
        return DISP_E_EXCEPTION;
    };
    const auto lacking = MakeObject<Valued>();
    lacking->tell = [](VARIANT*, EXCEPINFO*) { return DISP_E_MEMBERNOTFOUND; };
    for (const wchar_t* pattern : {L"0", L""}) {
        EXPECT_EQ(Format(pattern, _variant_t(failing.Get())).code, static_cast<HRESULT>(0x80040006));
        EXPECT_NE(TakeErrorText().find(L"It is a secret"), std::wstring::npos);
        const Answer answer = Format(pattern, _variant_t(lacking.Get()));
        EXPECT_EQ(answer.code, static_cast<HRESULT>(0x80040006));
        EXPECT_EQ(answer.text, std::nullopt);
        EXPECT_FALSE(TakeErrorText().empty());
        EXPECT_EQ(
            Format(pattern, Value(VT_DISPATCH, &VARIANT::pdispVal, static_cast<IDispatch*>(nullptr))).code,
            static_cast<HRESULT>(0x80040006));
    }
}

TEST_F(FormatData, SurvivesWhatAnObjectDoesWhenAsked) {
    const auto object = MakeObject<Valued>();
    object->tell = [&](VARIANT* result, EXCEPINFO*) {
        EXPECT_EQ(Text(L"0.000", _variant_t(1.0)), L"1.000");
        formatter.Reset();
        *result = Value(VT_R8, &VARIANT::dblVal, 2.5);
        return S_OK;
    };
    IqzFormatter* const released = formatter.Get();
    EXPECT_EQ(AnswerOf([&](BSTR* slot) {
                  return released->FormatData(_bstr_t(L"0.0"), _variant_t(object.Get()), slot);
              }).text,
              L"2.5");
    EXPECT_FALSE(formatter);
}

}  // namespace
}  // namespace qz
