// Categories and formats as collections: ids, membership, life.
#include "formatter_fixture.h"

#include <climits>
#include <vector>

namespace qz {
namespace {

class FormatCollections : public FormatterTest {
  protected:
    ComPtr<IqzCategory> Category(long id) const {
        return ObjectFrom<IqzCategory>([&](VARIANT* slot) { return formatter->get_Item(id, slot); });
    }
    ComPtr<IqzCategory> AddCategory(const wchar_t* name) const {
        return ObjectFrom<IqzCategory>([&](VARIANT* slot) { return formatter->Add(_bstr_t(name), slot); });
    }
    static ComPtr<IqzFormat> AddFormat(const ComPtr<IqzCategory>& category, const wchar_t* text) {
        return ObjectFrom<IqzFormat>([&](VARIANT* slot) { return category->Add(_bstr_t(text), slot); });
    }
    static long IdOf(const ComPtr<IqzCategory>& category) {
        long id = -99;
        EXPECT_EQ(category->get_CategoryID(&id), S_OK);
        return id;
    }
    static std::optional<std::wstring> NameOf(const ComPtr<IqzCategory>& category) {
        return AnswerOf([&](BSTR* slot) { return category->get_Name(slot); }).text;
    }
    static std::optional<std::wstring> TextOf(const ComPtr<IqzFormat>& format) {
        return AnswerOf([&](BSTR* slot) { return format->get_FormatString(slot); }).text;
    }
    long Count() const {
        long count = -1;
        EXPECT_EQ(formatter->get_Count(&count), S_OK);
        return count;
    }
};

TEST_F(FormatCollections, BeginWithThePredefinedCategories) {
    std::wstring names;
    for (long id = 0; id < Count(); ++id) {
        const auto category = Category(id);
        ASSERT_TRUE(category) << id;
        EXPECT_EQ(IdOf(category), id);
        names += (id ? L"\t" : L"") + NameOf(category).value();
        long count = -1;
        EXPECT_EQ(category->get_Count(&count), S_OK);
        std::wstring formats;
        for (long format = 0; format < count; ++format) {
            const auto item =
                ObjectFrom<IqzFormat>([&](VARIANT* slot) { return category->get_Formats(format, slot); });
            formats += (format ? L"\t" : L"") + TextOf(item).value();
        }
        const Answer listed =
            AnswerOf([&](BSTR* slot) { return formatter->EnumFormats(static_cast<int>(id), slot); });
        EXPECT_EQ(listed.text, formats) << id;
    }
    EXPECT_EQ(names, L"General Number\tDate\tTime\tDate and Time\tPercentage\tCurrency");
    EXPECT_EQ(AnswerOf([&](BSTR* slot) { return formatter->EnumCategories(slot); }).text, names);
}

TEST_F(FormatCollections, TheListsArePredefinedWhateverIsAdded) {
    const std::wstring dates = L"dddd/mmm/yyyy\tdd\\m\\yyyy\tmm/dd/yyyy";
    AddCategory(L"Own");
    AddFormat(Category(1), L"yy");
    EXPECT_EQ(formatter->Remove(2), S_OK);
    EXPECT_EQ(AnswerOf([&](BSTR* slot) { return formatter->EnumFormats(0, slot); }).text, L"#\t#,###.00");
    EXPECT_EQ(AnswerOf([&](BSTR* slot) { return formatter->EnumFormats(1, slot); }).text, dates);
    EXPECT_EQ(AnswerOf([&](BSTR* slot) { return formatter->EnumFormats(2, slot); }).text,
              L"hh:MM:SS\tHH:MM:SS\tHH:MM:SS T");
    EXPECT_EQ(AnswerOf([&](BSTR* slot) { return formatter->EnumFormats(3, slot); }).text, L"");
    for (const int category : {6, -1, INT_MAX, INT_MIN}) {
        const Answer refused = AnswerOf([&](BSTR* slot) { return formatter->EnumFormats(category, slot); });
        EXPECT_EQ(refused.code, static_cast<HRESULT>(0x80040002)) << category;
        EXPECT_EQ(refused.text, std::nullopt);
        EXPECT_NE(TakeErrorText().find(std::to_wstring(category)), std::wstring::npos);
    }
}

TEST_F(FormatCollections, IdsAreNeverGivenTwice) {
    EXPECT_EQ(IdOf(AddCategory(L"six")), 6);
    EXPECT_EQ(IdOf(AddCategory(L"seven")), 7);
    EXPECT_EQ(formatter->Remove(7), S_OK);
    EXPECT_EQ(formatter->Remove(0), S_OK);
    EXPECT_EQ(IdOf(AddCategory(L"eight")), 8);
    EXPECT_EQ(Count(), 7);

    const auto raised = Category(6);
    EXPECT_EQ(raised->put_CategoryID(100), S_OK);
    EXPECT_EQ(raised->put_CategoryID(-5), S_OK);
    EXPECT_EQ(IdOf(AddCategory(L"after the raised one")), 101);
    EXPECT_EQ(raised->put_CategoryID(LONG_MAX), S_OK);
    VARIANT slot;
    EXPECT_EQ(formatter->Add(_bstr_t(L"no id is left"), &slot), E_FAIL);
    EXPECT_FALSE(TakeErrorText().empty());
    EXPECT_EQ(Count(), 8);
}

TEST_F(FormatCollections, ItemsAreFoundByTheIdTheyHaveNow) {
    const auto date = Category(1);
    EXPECT_EQ(date->put_CategoryID(1), S_OK) << "its own";
    EXPECT_EQ(date->put_CategoryID(0), E_INVALIDARG);
    EXPECT_NE(TakeErrorText().find(L"category has the id 0"), std::wstring::npos);
    EXPECT_EQ(IdOf(date), 1);
    EXPECT_EQ(date->put_CategoryID(-7), S_OK);
    EXPECT_TRUE(SameObject(Category(-7), date));
    for (const long unknown : {1L, 6L, -1L, LONG_MAX}) {
        EXPECT_FALSE(Category(unknown));
        EXPECT_NE(TakeErrorText().find(std::to_wstring(unknown)), std::wstring::npos);
        EXPECT_EQ(formatter->Remove(unknown), DISP_E_BADINDEX);
        EXPECT_NE(TakeErrorText().find(std::to_wstring(unknown)), std::wstring::npos);
    }
    EXPECT_EQ(formatter->Remove(-7), S_OK);
    EXPECT_EQ(Count(), 5);

    const auto first = AddFormat(date, L"yy");
    EXPECT_EQ(first->put_FormatID(2), E_INVALIDARG) << "formats have ids of their own in each category";
    EXPECT_EQ(first->put_FormatID(20), S_OK);
    EXPECT_EQ(date->Remove(3), DISP_E_BADINDEX);
    EXPECT_EQ(date->Remove(20), S_OK);
}

TEST_F(FormatCollections, RemovedOnesLiveOnByThemselves) {
    const auto category = Category(1);
    const auto format = ObjectFrom<IqzFormat>([&](VARIANT* slot) { return category->get_Item(2, slot); });
    EXPECT_EQ(formatter->Remove(1), S_OK);
    EXPECT_EQ(category->put_CategoryID(0), S_OK) << "any id is free to it";
    EXPECT_EQ(NameOf(Category(0)), L"General Number");
    EXPECT_EQ(category->put_Name(_bstr_t(L"Mine")), S_OK);
    formatter.Reset();
    EXPECT_EQ(NameOf(category), L"Mine");
    EXPECT_EQ(format->put_FormatID(0), E_INVALIDARG) << "the category holds its formats still";
    EXPECT_EQ(category->Remove(2), S_OK);
    EXPECT_EQ(format->put_FormatID(0), S_OK);
    EXPECT_EQ(TextOf(format), L"mm/dd/yyyy");
}

TEST_F(FormatCollections, StandAloneWhenMadeAlone) {
    const auto category = Make<IqzCategory>(CLSID_qzCategory);
    const auto format = Make<IqzFormat>(CLSID_qzFormat);
    EXPECT_EQ(IdOf(category), 0);
    EXPECT_EQ(NameOf(category), L"");
    EXPECT_EQ(TextOf(format), L"");
    EXPECT_EQ(format->put_FormatID(-3), S_OK);
    EXPECT_EQ(format->put_FormatString(_bstr_t(L"0.0")), S_OK);
    EXPECT_EQ(TextOf(format), L"0.0");
    EXPECT_EQ(format->put_FormatString(nullptr), S_OK);
    EXPECT_EQ(TextOf(format), L"");
    long id = 0;
    EXPECT_EQ(format->get_FormatID(&id), S_OK);
    EXPECT_EQ(id, -3);
    EXPECT_EQ(TextOf(AddFormat(category, L"#")), L"#");
}

TEST_F(FormatCollections, AnEnumeratorShowsWhatWasThere) {
    Category(0)->put_CategoryID(50);
    ComPtr<IUnknown> unknown;
    ComPtr<IEnumVARIANT> enumerator;
    ASSERT_EQ(formatter->get__NewEnum(&unknown), S_OK);
    ASSERT_EQ(unknown.As(&enumerator), S_OK);
    ASSERT_EQ(formatter->Remove(3), S_OK);
    AddCategory(L"later");
    formatter.Reset();
    std::vector<long> ids;
    _variant_t item;
    while (enumerator->Next(1, &item, nullptr) == S_OK) {
        ComPtr<IqzCategory> category;
        ASSERT_EQ(item.vt, VT_DISPATCH);
        ASSERT_EQ(item.pdispVal->QueryInterface(IID_PPV_ARGS(&category)), S_OK);
        ids.push_back(IdOf(category));
        item.Clear();
    }
    EXPECT_EQ(ids, (std::vector<long>{1, 2, 3, 4, 5, 50}));
}

TEST_F(FormatCollections, NullSlotsAreRefused) {
    const auto category = Category(0);
    const auto format = Make<IqzFormat>(CLSID_qzFormat);
    _bstr_t text(L"#");
    const HRESULT results[] = {
        formatter->get_DecimalSeperator(nullptr),
        formatter->get_ThousandSeperator(nullptr),
        formatter->EnumCategories(nullptr),
        formatter->EnumFormats(0, nullptr),
        formatter->FormatData(text, {}, nullptr),
        formatter->get_Count(nullptr),
        formatter->Add(text, nullptr),
        formatter->get__NewEnum(nullptr),
        formatter->get_Item(0, nullptr),
        category->get_CategoryID(nullptr),
        category->get_Name(nullptr),
        category->get_Count(nullptr),
        category->Add(text, nullptr),
        category->get_Item(0, nullptr),
        category->get__NewEnum(nullptr),
        category->get_Formats(0, nullptr),
        format->get_FormatID(nullptr),
        format->get_FormatString(nullptr),
    };
    for (const HRESULT result : results) EXPECT_EQ(result, E_POINTER);
    EXPECT_EQ(Count(), 6) << "nothing was added";
}

}  // namespace
}  // namespace qz
