// The members that are called by name.
#include "tests/host_reference/host_fixture.h"

#include "com/safe_array.h"

namespace qz::sample {
namespace {

struct HostObjects : HostTest {
    /// A member called as a script calls it.
    static _variant_t Invoke(IDispatch* object, const wchar_t* name, WORD kind,
                             std::vector<_variant_t> arguments = {}) {
        DISPID id = 0;
        auto* text = const_cast<wchar_t*>(name);
        EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &text, 1, 0, &id), S_OK) << name;
        DISPID put = DISPID_PROPERTYPUT;
        std::reverse(arguments.begin(), arguments.end());
        DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        if (kind == DISPATCH_PROPERTYPUT) {
            parameters.rgdispidNamedArgs = &put;
            parameters.cNamedArgs = 1;
        }
        _variant_t result;
        lastResult = object->Invoke(id, IID_NULL, 0, kind, &parameters, &result, nullptr, nullptr);
        return result;
    }
    static _variant_t Get(IDispatch* object, const wchar_t* name, std::vector<_variant_t> arguments = {}) {
        return Invoke(object, name, DISPATCH_PROPERTYGET | DISPATCH_METHOD, std::move(arguments));
    }

    ComPtr<IDispatch> Make(long type, const wchar_t* name) {
        ComPtr<IDispatch> object;
        EXPECT_EQ(host->CreateObject(type, _bstr_t(name), &object), S_OK);
        return object;
    }

    static inline HRESULT lastResult = S_OK;
};

TEST_F(HostObjects, AttributesAreListedAndAnswerTheirInterface) {
    const ComPtr<IDispatch> field = Make(6, L"Total");
    const _variant_t attributes = Get(field.Get(), L"Attributes");
    const long count = Get(attributes.pdispVal, L"Count");
    EXPECT_GT(count, 20);
    const _variant_t fifth = Get(attributes.pdispVal, L"Item", {4L});
    ComPtr<IUnknown> known;
    EXPECT_EQ(
        fifth.pdispVal->QueryInterface(IID_IVandraAttribute, reinterpret_cast<void**>(known.GetAddressOf())),
        S_OK);
    EXPECT_EQ(static_cast<long>(Get(fifth.pdispVal, L"Index")), 4);
    EXPECT_STREQ(_bstr_t(Get(fifth.pdispVal, L"Name")), L"Right");
    EXPECT_EQ(static_cast<long>(Get(fifth.pdispVal, L"Type")), 3);
    EXPECT_EQ(static_cast<long>(Get(fifth.pdispVal, L"Category")), '*');
    EXPECT_EQ(static_cast<long>(Get(fifth.pdispVal, L"Flags")), 0);
    EXPECT_NE(_bstr_t(Get(fifth.pdispVal, L"Description")).length(), 0u);
    Told();
    Invoke(fifth.pdispVal, L"Value", DISPATCH_PROPERTYPUT, {L"5000"});
    EXPECT_EQ(lastResult, S_OK);
    EXPECT_EQ(static_cast<long>(Get(field.Get(), L"Attribute", {L"Right"})), 5000);
    EXPECT_EQ(Told(), Flags{0x410});
    Get(attributes.pdispVal, L"Item", {count});
    EXPECT_EQ(lastResult, DISP_E_EXCEPTION);

    ComPtr<IEnumVARIANT> items;
    const _variant_t enumerator = Invoke(attributes.pdispVal, L"_NewEnum", DISPATCH_PROPERTYGET);
    ASSERT_EQ(enumerator.punkVal->QueryInterface(IID_PPV_ARGS(&items)), S_OK);
    EXPECT_EQ(items->Skip(static_cast<ULONG>(count)), S_OK);
    EXPECT_EQ(items->Skip(1), S_FALSE);
}

TEST_F(HostObjects, ListsOfObjectsTravelBothWays) {
    const ComPtr<IDispatch> field = Make(6, L"Total");
    const ComPtr<IDispatch> action = Make(53, L"submit");
    Make(53, L"again");
    const _variant_t fields = Read(L"Document", L"FormFields");
    ASSERT_EQ(fields.vt, VT_ARRAY | VT_DISPATCH);
    EXPECT_EQ(Write(L"Objects[submit]", L"Fields", fields), S_OK);
    const _variant_t back = Read(L"Objects[submit]", L"Fields");
    const SafeArrayView<IDispatch*> view(back.parray);
    ASSERT_EQ(view.Elements().size(), 1u);
    EXPECT_STREQ(_bstr_t(Get(view.Elements()[0], L"Path")), L"Objects[Total]");
    EXPECT_EQ(Read(L"Pages[1]", L"Objects").vt, VT_ARRAY | VT_DISPATCH);
    EXPECT_EQ(Read(L"Document", L"LayerConfigs").parray->rgsabound[0].cElements, 0u);
}

TEST_F(HostObjects, OfAClosedDocumentAreGone) {
    const ComPtr<IHostObject> page = ObjectAt(L"Pages[2]");
    const ComPtr<IHostObject> doomed = ObjectAt(L"Pages[5]");
    BSTR path = nullptr;
    host->DeletePage(5, 1);
    EXPECT_EQ(doomed->get_Path(&path), HRESULT_FROM_WIN32(ERROR_NOT_FOUND));
    host->NewDocument(5, 100, 100);
    EXPECT_EQ(page->get_Path(&path), HRESULT_FROM_WIN32(ERROR_NOT_FOUND));
    EXPECT_EQ(page->Refresh(), HRESULT_FROM_WIN32(ERROR_NOT_FOUND));
}

TEST_F(HostObjects, OutliveTheirHost) {
    const ComPtr<IHostObject> document = ObjectAt(L"Document");
    host.Reset();
    EXPECT_EQ(document->put_Attribute(_bstr_t(L"Title"), _variant_t(L"still here")), S_OK);
    EXPECT_EQ(document->Refresh(), S_OK);
}

TEST_F(HostObjects, BookmarksAreEditedAndFollowed) {
    ComPtr<IDispatch> root;
    ComPtr<IDispatch> second;
    ComPtr<IDispatch> first;
    ComPtr<IDispatch> child;
    ComPtr<IHostBookmark> outline;
    ComPtr<IHostBookmark> bookmark;
    host->GetBookmarks(&root);
    root.As(&outline);
    outline->AppendChild(_bstr_t(L"second"), &second);
    second.As(&bookmark);
    bookmark->InsertBefore(_bstr_t(L"first"), &first);
    bookmark->AppendChild(_bstr_t(L"child"), &child);
    EXPECT_EQ(Told(), (Flags{0x8000, 0x8000, 0x8000}));
    EXPECT_STREQ(_bstr_t(Get(Get(root.Get(), L"Item", {0L}).pdispVal, L"Title")), L"first");
    EXPECT_EQ(bookmark->put_Page(4), S_OK);
    Told();
    EXPECT_EQ(bookmark->Activate(), S_OK);
    EXPECT_EQ(Told(), Flags{0x20});
    EXPECT_EQ(bookmark->MoveTo(child.Get(), -1), E_ACCESSDENIED);
    EXPECT_EQ(bookmark->MoveTo(first.Get(), -1), S_OK);
    EXPECT_EQ(static_cast<long>(Get(root.Get(), L"Count")), 1);
    EXPECT_EQ(bookmark->MoveTo(ObjectAt(L"Document").Get(), 0), E_INVALIDARG);
    EXPECT_EQ(outline->Remove(), E_ACCESSDENIED);
    Get(first.Get(), L"Remove");
    long count = -1;
    EXPECT_EQ(bookmark->get_Count(&count), HRESULT_FROM_WIN32(ERROR_NOT_FOUND));
    EXPECT_EQ(static_cast<long>(Get(root.Get(), L"Count")), 0);
}

}  // namespace
}  // namespace qz::sample
