#include "tests/properties/inspector_fixture.h"

namespace qz {

InspectorTest::InspectorTest() {
    module.Make(CLSID_qzPropCtrl, pane);
    events->Connect(pane.Get(), DIID__IqzPropCtrlEvents);
}

InspectorTest::~InspectorTest() {
    End();
    EXPECT_EQ(module.CanUnloadNow(), S_OK) << "an object of the module is still alive";
}

void InspectorTest::Open(SIZE size) {
    window.emplace(pane.Get(), size);
    ThrowIfFailed(pane->put_VandraX(host.Get()));
}

void InspectorTest::End() {
    window.reset();
    if (pane) pane->put_VandraX(nullptr);
    events->Disconnect();
    pane.Reset();
}

ComPtr<IDispatch> InspectorTest::Create(long type, const wchar_t* name) const {
    ComPtr<IDispatch> object;
    ThrowIfFailed(host->CreateObject(type, _bstr_t(name), &object));
    return object;
}

void InspectorTest::Add(const wchar_t* path, const wchar_t* name, wchar_t category, long flags, long type,
                        const _variant_t& value, const wchar_t* choices) const {
    ThrowIfFailed(host->AddAttribute(_bstr_t(path), _bstr_t(name), category, flags, type,
                                     _bstr_t((std::wstring(L"About ") + name).c_str()), _bstr_t(choices),
                                     value));
}

_variant_t InspectorTest::Value(const wchar_t* path, const wchar_t* attribute) const {
    _variant_t value;
    ThrowIfFailed(host->GetObjectAttribute(_bstr_t(path), _bstr_t(attribute), &value));
    return value;
}

void InspectorTest::SetValue(const wchar_t* path, const wchar_t* attribute, const _variant_t& value) const {
    ThrowIfFailed(host->SetObjectAttribute(_bstr_t(path), _bstr_t(attribute), value));
}

void InspectorTest::Override(const wchar_t* path, const wchar_t* attribute, const _variant_t& value) const {
    ThrowIfFailed(host->OverrideAttribute(_bstr_t(path), _bstr_t(attribute), value));
}

InspectorTest::Texts InspectorTest::Tabs() const {
    Texts texts;
    const HWND tabs = Part(QZ_INSPECTOR_TABS);
    const LRESULT count = SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        wchar_t text[100] = L"";
        TCITEMW tab{};
        tab.mask = TCIF_TEXT;
        tab.pszText = text;
        tab.cchTextMax = static_cast<int>(std::size(text));
        SendMessageW(tabs, TCM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&tab));
        texts.emplace_back(text);
    }
    return texts;
}

int InspectorTest::SelectedTab() const {
    return static_cast<int>(SendMessageW(Part(QZ_INSPECTOR_TABS), TCM_GETCURSEL, 0, 0));
}

void InspectorTest::ChooseTab(int index) const {
    SendMessageW(Part(QZ_INSPECTOR_TABS), TCM_SETCURFOCUS, static_cast<WPARAM>(index), 0);
}

InspectorTest::Texts InspectorTest::Names() const {
    Texts names;
    const HWND list = Part(QZ_INSPECTOR_LIST);
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        std::wstring name(static_cast<size_t>(SendMessageW(list, LB_GETTEXTLEN, static_cast<WPARAM>(i), 0)),
                          L'\0');
        SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(name.data()));
        names.push_back(std::move(name));
    }
    return names;
}

std::wstring InspectorTest::ChosenName() const {
    const LRESULT entry = SendMessageW(Part(QZ_INSPECTOR_LIST), LB_GETCURSEL, 0, 0);
    return entry < 0 ? std::wstring() : Names()[static_cast<size_t>(entry)];
}

bool InspectorTest::Choose(const wchar_t* name) const {
    const HWND list = Part(QZ_INSPECTOR_LIST);
    const LRESULT entry =
        SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(name));
    if (entry < 0) return false;
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(entry), 0);
    SendMessageW(Inner(), WM_COMMAND, MAKEWPARAM(QZ_INSPECTOR_LIST, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
    return true;
}

std::wstring InspectorTest::TextOf(HWND control) {
    std::wstring text(static_cast<size_t>(SendMessageW(control, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    const LRESULT length =
        SendMessageW(control, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<size_t>(length));
    return text;
}

void InspectorTest::Type(HWND field, const std::wstring& text) const {
    SendMessageW(field, EM_SETSEL, 0, -1);
    if (text.empty()) SendMessageW(field, WM_CLEAR, 0, 0);
    for (const wchar_t character : text) SendMessageW(field, WM_CHAR, character, 1);
}

void InspectorTest::Press(HWND control, WPARAM key, UINT message) const {
    SendMessageW(control, message, key, 1);
    SendMessageW(control, message == WM_SYSKEYDOWN ? WM_SYSKEYUP : WM_KEYUP, key, 1);
}

}  // namespace qz
