// What the pane shows of a document, and that it follows the host.
#include "layers_fixture.h"

#include "com/safe_array.h"
#include "tests/support/silent_dispatch.h"

#include <map>

namespace qz {
namespace {

/// A configuration whose texts are values of any type.
class OddConfiguration final : public Object<OddConfiguration, SilentDispatch> {
  public:
    std::map<std::wstring, _variant_t> values;

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* id) override {
        *id = 7;
        return S_OK;
    }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                        UINT*) override {
        if (id != 7 || parameters->cArgs != 1 || parameters->rgvarg->vt != VT_BSTR) return E_INVALIDARG;
        return VariantCopy(result, &values[parameters->rgvarg->bstrVal]);
    }
};

class LayersBuilding : public LayersTest {
  protected:
    void Override(const wchar_t* path, const wchar_t* attribute, const _variant_t& value) {
        ASSERT_EQ(host->OverrideAttribute(_bstr_t(path), _bstr_t(attribute), value), S_OK);
    }
    void Refresh(HRESULT expected = S_OK) { EXPECT_EQ(pane->Refresh(), expected); }
};

TEST_F(LayersBuilding, TreeIsThatOfTheConfiguration) {
    Configure(L"ABcD", L"(A)[(B)(c)](No layer)[(D)](B)");
    Open();
    EXPECT_EQ(Items(), L"+A[+B -c] *No layer[+D] +B");
    EXPECT_FALSE(Expanded(L"A"));
    wchar_t text[32] = {};
    GetWindowTextW(Tree(), text, 32);
    EXPECT_STREQ(text, L"Tree View");
    GetWindowTextW(window->Window(), text, 32);
    EXPECT_STREQ(text, L"Layers");
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(Tree(), WM_GETFONT, 0, 0)), sizeof font, &font);
    EXPECT_STREQ(font.lfFaceName, L"Arial");
    EXPECT_EQ(pane->Reset(), S_OK);
    EXPECT_EQ(Items(), L"");
    EXPECT_EQ(SinkCount(host.Get()), 0);
}

TEST_F(LayersBuilding, NestingWithoutEndIsCutOff) {
    constexpr int deep = 8'000;
    std::wstring order;
    for (int i = 0; i < deep; ++i) order += L"(n" + std::to_wstring(i) + L")[";
    Configure(L"A", order + L"(A)");
    Open();
    long levels = 0;
    HTREEITEM last = nullptr;
    for (HTREEITEM item = Next(TVGN_ROOT, nullptr); item; item = Next(TVGN_CHILD, item)) {
        last = item;
        ++levels;
    }
    EXPECT_EQ(levels, 4'000);
    for (HTREEITEM item = Next(TVGN_NEXT, last); item; item = Next(TVGN_NEXT, item)) ++levels;
    EXPECT_EQ(levels, deep + 1) << "all are listed";
    HostState(L"A", L"OFF");
    EXPECT_EQ(pane->ResetToInitialVisibility(), S_OK);
    EXPECT_EQ(HostStates(), L"+A");
    Refresh();
    EXPECT_EQ(pane->Reset(), S_OK);
}

TEST_F(LayersBuilding, WindowMayComeAndGo) {
    Configure(L"Ab", L"(A)[(b)]");
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    for (int i = 0; i < 2; ++i) {
        window.emplace(pane.Get(), SIZE{200, 200});
        EXPECT_EQ(Items(), L"+A[-b]");
        window.reset();
        HostState(L"A", L"OFF");
        HostState(L"A", L"ON");
    }
}

TEST_F(LayersBuilding, NamesStatesAndTexts) {
    Configure(L"AB", L"(A.)[(B/)]");
    Override(L"Layers[A]", L"DisplayName", L"A. shown");
    Override(L"Layers[A]", L"CurrentViewState", L"on");
    Open();
    EXPECT_EQ(Items(), L"+A. shown[+B]");
    Override(L"Layers[A]", L"DisplayName", _variant_t(7L));
    Override(L"Layers[A]", L"CurrentViewState", _variant_t(VARIANT_TRUE, VT_BOOL));
    Override(L"Layers[B]", L"DisplayName", _variant_t());
    Override(L"Layers[B]", L"CurrentViewState", _variant_t());
    Refresh();
    EXPECT_EQ(Items(), L"-A[-B]") << "values of other types";
    SetConfiguration(L"ConfigOrder", L"()(A)()");
    host->ClearOverrides();
    Refresh();
    EXPECT_EQ(Items(), L"* +A *") << "empty names";
}

TEST_F(LayersBuilding, ListsSetTheInitialVisibility) {
    Configure(L"ABcdE", L"(A)(B)(c)", L"", L"(c)(d)(gone)(A)", L"(B)(E)(A)");
    host->put_LogEnabled(1);
    Open();
    EXPECT_EQ(Items(), L"-A -B +c");
    EXPECT_EQ(HostStates(), L"-A-B+c+d-E") << "also those that the order does not name";
    HostState(L"B", L"ON");
    HostState(L"A", L"ON");
    EXPECT_EQ(Items(), L"+A +B +c") << "the user's changes are left alone";
    TakeWrites();
    EXPECT_EQ(pane->ResetToInitialVisibility(), S_OK);
    EXPECT_EQ(TakeWrites(), L"( -A -B )");
    EXPECT_EQ(Items(), L"-A -B +c");
}

TEST_F(LayersBuilding, TextsOfOtherTypesEndTheBuild) {
    Configure(L"AbC", L"");
    const auto odd = MakeObject<OddConfiguration>();
    odd->values = {{L"ConfigOrder", L"(A)(b)(C)"}, {L"ConfigRBGroups", L"[(A)(C)]"}, {L"ConfigON", L"(b)"}};
    VARIANT configurations{};  // as scripts make arrays
    configurations.vt = VT_ARRAY | VT_VARIANT;
    configurations.parray = MakeSafeArray(VT_VARIANT, 1).Detach();
    LONG first = 0;
    _variant_t only(odd.Get());
    ThrowIfFailed(SafeArrayPutElement(configurations.parray, &first, &only));
    Override(L"Document", L"LayerConfigs", _variant_t(configurations, false));
    window.emplace(pane.Get(), SIZE{200, 200});
    odd->values[L"ConfigOFF"] = 1L;
    Open();
    EXPECT_EQ(Items(), L"+A +b +C");
    HostState(L"b", L"OFF");
    odd->values[L"ConfigON"] = _variant_t();
    Refresh();
    EXPECT_EQ(Items(), L"+A -b +C");
    odd->values[L"ConfigON"] = L"(b)";
    odd->values[L"ConfigRBGroups"] = 1.5;
    Refresh();
    EXPECT_EQ(Items(), L"+A -b +C") << "neither groups nor lists";
    odd->values[L"ConfigOrder"] = _variant_t(VARIANT_FALSE, VT_BOOL);
    Refresh();
    EXPECT_EQ(Items(), L"");
    host->ClearOverrides();
    EXPECT_EQ(pane->Reset(), S_OK);
}

TEST_F(LayersBuilding, ConfigurationsOfOtherTypes) {
    Configure(L"A", L"(A)");
    window.emplace(pane.Get(), SIZE{200, 200});
    std::vector<_variant_t> values = {_variant_t(), _variant_t(L"(A)"), _variant_t(host.Get())};
    const auto addArray = [&values](SafeArray array, VARTYPE type) {
        VARIANT value{};
        value.vt = VT_ARRAY | type;
        value.parray = array.Detach();
        values.emplace_back(value, false);
    };
    addArray(MakeSafeArray(VT_DISPATCH, 0), VT_DISPATCH);
    addArray(MakeSafeArray(VT_DISPATCH, 2), VT_DISPATCH);  // nulls
    addArray(MakeSafeArray(VT_UNKNOWN, 1), VT_UNKNOWN);
    addArray(MakeSafeArray(VT_BSTR, 1), VT_BSTR);
    for (const _variant_t& value : values) {
        Override(L"Document", L"LayerConfigs", value);
        Open();
        EXPECT_EQ(Items(), L"") << value.vt;
    }
    host->ClearOverrides();
    Refresh();
    EXPECT_EQ(Items(), L"+A");
}

TEST_F(LayersBuilding, FollowsTheHost) {
    Configure(L"ABC", L"(A)[(B)](C)", L"", L"", L"(C)");
    Open();
    SendMessageW(Tree(), TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(Item(L"A")));
    const HTREEITEM before = Item(L"A");
    Click(L"C", Part::Check);
    HostState(L"B", L"OFF");
    EXPECT_EQ(Items(), L"+A[-B] +C") << "states only";
    EXPECT_EQ(Item(L"A"), before) << "no other items";
    Override(L"Layers[A]", L"CurrentViewState", L"OFF");
    host->RaiseChange(0x40);
    EXPECT_EQ(Items(), L"+A[-B] +C") << "the view moved";
    host->RaiseChange(0x4000);
    EXPECT_EQ(Items(), L"-A[-B] +C");
    host->ClearOverrides();
    host->SetObjectAttribute(_bstr_t(L"Layers[B]"), _bstr_t(L"DisplayName"), _variant_t(L"Bee"));
    EXPECT_EQ(Items(), L"+A[-Bee] +C");
    EXPECT_TRUE(Expanded(L"A"));
    host->AddLayer(_bstr_t(L"N"), _bstr_t(L"N"), 1);
    EXPECT_EQ(Items(), L"+A[-Bee] -C +N") << "another configuration, and its lists";
    EXPECT_TRUE(Expanded(L"A"));
    host->NewDocument(1, 100, 100);
    EXPECT_EQ(Items(), L"");
}

TEST_F(LayersBuilding, ListsLayersOfPages) {
    Configure(L"ABCD", L"(A)[(B)](Heading)[(C)](D)");
    const auto pages = [&](const wchar_t* layer, std::vector<long> numbers, VARTYPE type = VT_I4) {
        VARIANT value{};
        value.vt = static_cast<VARTYPE>(VT_ARRAY | type);
        value.parray = (type == VT_I4 ? MakeLongArray(numbers) : MakeVariantArray(numbers)).Detach();
        Override(layer, L"Pages", _variant_t(value, false));
    };
    pages(L"Layers[A]", {});
    pages(L"Layers[B]", {2});
    pages(L"Layers[C]", {1, 3}, VT_VARIANT);
    Open();
    const std::wstring all = L"+A[+B] *Heading[+C] +D";
    qzLayersCtrlListLayers list{};
    EXPECT_EQ(pane->get_ListLayers(&list), S_OK);
    EXPECT_EQ(list, qzLayersCtrlListLayers_ForAllPages);
    EXPECT_EQ(pane->put_ListLayers(qzLayersCtrlListLayers_None), S_OK);
    EXPECT_EQ(Items(), L"");
    for (const auto choice :
         {qzLayersCtrlListLayers_ForCurrentPage, qzLayersCtrlListLayers_ForVisiblePages}) {
        host->SetCurrentPage(1);
        EXPECT_EQ(pane->put_ListLayers(choice), S_OK);
        EXPECT_EQ(Items(), L"*Heading[+C] +D") << "the host does not tell of D";
        host->SetCurrentPage(2);
        EXPECT_EQ(Items(), L"+A[+B] +D") << "with what it stands below";
    }
    Refresh();
    EXPECT_EQ(Items(), L"+A[+B] +D");
    EXPECT_EQ(pane->put_ListLayers(qzLayersCtrlListLayers_ForAllPages), S_OK);
    EXPECT_EQ(Items(), all);
    EXPECT_EQ(pane->put_ListLayers(static_cast<qzLayersCtrlListLayers>(4)), E_INVALIDARG);
    EXPECT_NE(TakeErrorText(), L"");
}

TEST_F(LayersBuilding, MembersWithoutAHost) {
    long value = -1;
    EXPECT_EQ(pane->get_IsInitialized(&value), S_OK);
    EXPECT_EQ(value, 0);
    for (const HRESULT result :
         {pane->Refresh(), pane->Reset(), pane->ResetToInitialVisibility(), pane->LayerProperties(),
          pane->put_ListLayers(qzLayersCtrlListLayers_None)}) {
        EXPECT_EQ(result, S_OK);
    }
    EXPECT_EQ(pane->Initialize(nullptr), E_INVALIDARG);
    EXPECT_EQ(pane->get_Locked(nullptr), E_POINTER);
    EXPECT_EQ(pane->get_FitToParent(nullptr), E_POINTER);
    EXPECT_EQ(pane->get_ListLayers(nullptr), E_POINTER);
    window.emplace(pane.Get(), SIZE{200, 200});
    Key(VK_SPACE);
    Key(VK_DOWN);
    SendMessageW(Tree(), WM_LBUTTONDOWN, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(Items(), L"");
}

TEST_F(LayersBuilding, FitsItsParent) {
    window.emplace(pane.Get(), SIZE{220, 300});
    long fit = 0;
    EXPECT_EQ(pane->get_FitToParent(&fit), S_OK);
    EXPECT_EQ(fit, 1);
    SetWindowPos(window->Frame(), nullptr, 0, 0, 150, 120, SWP_NOMOVE);
    pane->put_FitToParent(0);
    RECT client{};
    GetClientRect(Tree(), &client);
    EXPECT_GT(client.right, 150);
    pane->put_FitToParent(1);
    GetWindowRect(Tree(), &client);
    EXPECT_EQ(client.right - client.left, 150);
    EXPECT_EQ(client.bottom - client.top, 120);
}

}  // namespace
}  // namespace qz
