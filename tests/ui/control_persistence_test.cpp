#include "tests/ui/test_control.h"

#include "com/stream.h"
#include "ui/property_image.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

void Rewind(IStream* stream) { stream->Seek({}, STREAM_SEEK_SET, nullptr); }

ComPtr<IStream> StreamOf(std::span<const std::byte> bytes) {
    ComPtr<IStream> stream = MakeMemoryStream();
    WriteBytes(stream.Get(), bytes);
    Rewind(stream.Get());
    return stream;
}

std::vector<std::byte> ImageOf(TestControl& control) {
    const ComPtr<IStream> stream = MakeMemoryStream();
    EXPECT_EQ(control.Save(stream.Get(), FALSE), S_OK);
    Rewind(stream.Get());
    return ReadToEnd(stream.Get());
}

OLE_COLOR BackColorOf(TestControl& control) {
    _variant_t value;
    DISPPARAMS none{};
    control.Invoke(DISPID_BACKCOLOR, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr);
    return value.ulVal;
}

ComPtr<TestControl> Changed() {
    auto control = MakeObject<TestControl>();
    control->count = -17;
    control->caption = std::wstring(L"Seite \x9801\0!", 9);
    _variant_t colour;
    colour.vt = VT_UI4;
    colour.ulVal = 0x8000000F;
    DISPPARAMS parameters{&colour, nullptr, 1, 0};
    control->Invoke(DISPID_BACKCOLOR, IID_NULL, 0, DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr,
                    nullptr);
    SIZEL extent{1234, 0};
    control->SetExtent(DVASPECT_CONTENT, &extent);
    return control;
}

void ExpectChanged(TestControl& control) {
    SIZEL extent{};
    control.GetExtent(DVASPECT_CONTENT, &extent);
    EXPECT_EQ(control.count, -17);
    EXPECT_EQ(control.caption, std::wstring(L"Seite \x9801\0!", 9));
    EXPECT_EQ(BackColorOf(control), 0x8000000Fu);
    EXPECT_EQ(extent.cx, 1234);
    EXPECT_EQ(extent.cy, 0);
}

void ExpectInitial(TestControl& control) {
    SIZEL extent{};
    control.GetExtent(DVASPECT_CONTENT, &extent);
    EXPECT_EQ(control.count, 5);
    EXPECT_EQ(control.caption, L"untitled");
    EXPECT_EQ(BackColorOf(control), 0xFFFFFFu);
    EXPECT_EQ(extent.cx, 5080);
}

TEST(StreamPersistence, TwoControlsInOneStreamComeBack) {
    const ComPtr<IStream> stream = MakeMemoryStream();
    const auto first = Changed();
    const auto second = MakeObject<TestControl>();
    ASSERT_EQ(first->Save(stream.Get(), TRUE), S_OK);
    ASSERT_EQ(second->Save(stream.Get(), TRUE), S_OK);
    Rewind(stream.Get());
    const auto back = MakeObject<TestControl>();
    ASSERT_EQ(back->Load(stream.Get()), S_OK);
    ExpectChanged(*back.Get());
    EXPECT_EQ(back->IsDirty(), S_FALSE);
    ASSERT_EQ(back->Load(stream.Get()), S_OK);
    ExpectInitial(*back.Get());
}

TEST(StreamPersistence, KnowsItsSizeAndWhetherItIsDirty) {
    const auto control = Changed();
    ULARGE_INTEGER size{};
    ASSERT_EQ(control->GetSizeMax(&size), S_OK);
    EXPECT_EQ(size.QuadPart, ImageOf(*control.Get()).size());
    EXPECT_EQ(control->IsDirty(), S_OK);
    const ComPtr<IStream> stream = MakeMemoryStream();
    ASSERT_EQ(control->Save(stream.Get(), TRUE), S_OK);
    EXPECT_EQ(control->IsDirty(), S_FALSE);
}

TEST(StreamPersistence, NewControlIsDirtyAndLoadedOneIsNotNew) {
    const auto control = MakeObject<TestControl>();
    EXPECT_EQ(control->IsDirty(), S_FALSE);
    EXPECT_EQ(control->InitNew(), S_OK);
    EXPECT_EQ(control->IsDirty(), S_OK);
    ASSERT_EQ(control->Load(StreamOf(ImageOf(*Changed().Get())).Get()), S_OK);
    EXPECT_EQ(control->InitNew(), E_UNEXPECTED);
    ExpectChanged(*control.Get());
}

TEST(StreamPersistence, MalformedContentIsAnErrorThatChangesNothing) {
    using Properties = std::vector<StoredProperty>;
    const std::int64_t one = 1;
    const struct {
        HRESULT result;
        Properties properties;
    } rows[] = {
        {DISP_E_TYPEMISMATCH, {{u"Caption", u"new"}, {u"Count", u"no number"}}},
        {DISP_E_OVERFLOW, {{u"Caption", u"new"}, {u"Count", one << 40}}},
        {STG_E_DOCFILECORRUPT, {{u"Caption", u"new"}, {u"_cx", -one}}},
        // Refused by the property itself when the others have been set already.
        {E_INVALIDARG, {{u"Caption", u"new"}, {u"Count", one}, {u"BackColor", one << 28}}},
    };
    for (const auto& row : rows) {
        const auto control = MakeObject<TestControl>();
        EXPECT_EQ(control->Load(StreamOf(EncodeProperties(row.properties)).Get()), row.result);
        EXPECT_FALSE(TakeErrorText().empty());
        ExpectInitial(*control.Get());
    }
    const auto control = MakeObject<TestControl>();
    EXPECT_EQ(control->Load(StreamOf(std::vector<std::byte>(100)).Get()), STG_E_INVALIDHEADER);
    EXPECT_EQ(control->Load(static_cast<IStream*>(nullptr)), E_POINTER);
}

TEST(StreamPersistence, MissingPropertiesStayAndUnknownOnesAreSkipped) {
    const std::vector<StoredProperty> properties = {{u"Future", true}, {u"Count", std::int64_t{8}}};
    const auto control = Changed();
    ASSERT_EQ(control->Load(StreamOf(EncodeProperties(properties)).Get()), S_OK);
    EXPECT_EQ(control->count, 8);
    EXPECT_EQ(BackColorOf(*control.Get()), 0x8000000Fu);
}

TEST(StreamPersistence, LoadingRaisesNoEvents) {
    Container container;
    ComPtr<IConnectionPoint> point;
    DWORD cookie = 0;
    ASSERT_EQ(container.control->FindConnectionPoint(IID_IPropertyNotifySink, &point), S_OK);
    ASSERT_EQ(point->Advise(static_cast<IPropertyNotifySink*>(container.site.Get()), &cookie), S_OK);
    container.site->answers["OnRequestEdit"] = [] { return S_FALSE; };
    ASSERT_EQ(container.control->Load(StreamOf(ImageOf(*Changed().Get())).Get()), S_OK);
    ExpectChanged(*container.control.Get());
    EXPECT_FALSE(container.site->Saw("OnChanged"));
    EXPECT_EQ(point->Unadvise(cookie), S_OK);
}

/// A bag and an error log in memory.
class Bag final : public Object<Bag, IPropertyBag, IErrorLog> {
  public:
    std::map<std::wstring, _variant_t> values;
    std::map<std::wstring, HRESULT> failures;
    std::vector<std::wstring> errors;
    HRESULT writeAnswer = S_OK;

    STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
        if (const auto failure = failures.find(name); failure != failures.end()) return failure->second;
        const auto found = values.find(name);
        return found == values.end() ? E_INVALIDARG : VariantCopy(value, &found->second);
    }
    STDMETHODIMP Write(LPCOLESTR name, VARIANT* value) override {
        values[name] = *value;
        return writeAnswer;
    }
    STDMETHODIMP AddError(LPCOLESTR name, EXCEPINFO* exception) override {
        errors.push_back(std::wstring(name) + (exception->bstrDescription ? L"" : L" without a text"));
        return S_OK;
    }
};

TEST(BagPersistence, ComesBack) {
    const auto bag = MakeObject<Bag>();
    const auto control = Changed();
    ASSERT_EQ(control->Save(bag.Get(), TRUE, TRUE), S_OK);
    EXPECT_EQ(control->IsDirty(), S_FALSE);
    EXPECT_EQ(bag->values.size(), 5u);
    const auto back = MakeObject<TestControl>();
    ASSERT_EQ(back->Load(bag.Get(), bag.Get()), S_OK);
    ExpectChanged(*back.Get());
    EXPECT_TRUE(bag->errors.empty());
}

TEST(BagPersistence, ConvertsWhatItCan) {
    const auto bag = MakeObject<Bag>();
    bag->values = {{L"Count", L"42"}, {L"Caption", 7L}, {L"BackColor", static_cast<long>(0x8000000F)}};
    const auto control = MakeObject<TestControl>();
    ASSERT_EQ(control->Load(bag.Get(), bag.Get()), S_OK);
    EXPECT_EQ(control->count, 42);
    EXPECT_EQ(control->caption, L"7");
    EXPECT_EQ(BackColorOf(*control.Get()), 0x8000000Fu);
    EXPECT_TRUE(bag->errors.empty());
}

TEST(BagPersistence, LogsWhatItCannotUseAndTakesTheRest) {
    const auto bag = MakeObject<Bag>();
    bag->values = {{L"Count", 5000L}, {L"Caption", L"good"}, {L"BackColor", L"red"}, {L"_cx", -5L}};
    bag->failures = {{L"_cy", E_FAIL}};
    const auto control = MakeObject<TestControl>();
    ASSERT_EQ(control->Load(bag.Get(), bag.Get()), S_OK);
    EXPECT_EQ(control->caption, L"good");
    control->caption = L"untitled";
    ExpectInitial(*control.Get());
    EXPECT_EQ(bag->errors, (std::vector<std::wstring>{L"Count", L"BackColor", L"_cx", L"_cy"}));
    ASSERT_EQ(control->Load(bag.Get(), nullptr), S_OK);
}

TEST(BagPersistence, ReportsAFailingBag) {
    const auto bag = MakeObject<Bag>();
    bag->writeAnswer = STG_E_MEDIUMFULL;
    const auto control = Changed();
    EXPECT_EQ(control->Save(bag.Get(), TRUE, TRUE), STG_E_MEDIUMFULL);
    EXPECT_EQ(control->IsDirty(), S_OK);
    EXPECT_EQ(control->Save(static_cast<IPropertyBag*>(nullptr), TRUE, TRUE), E_POINTER);
    EXPECT_EQ(control->Load(nullptr, nullptr), E_POINTER);
}

}  // namespace
}  // namespace qz
