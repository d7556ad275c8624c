#include "tests/ui/test_control.h"

#include "ui/gdi.h"

namespace qz {

std::span<const PersistentProperty> TestControl::PersistentProperties() const {
    static constexpr PersistentProperty rows[] = {{L"Count", countId, VT_I4},
                                                  {L"Caption", captionId, VT_BSTR},
                                                  {L"BackColor", DISPID_BACKCOLOR, VT_UI4}};
    return rows;
}

STDMETHODIMP TestControl::Invoke(DISPID id, REFIID, LCID, WORD how, DISPPARAMS* parameters, VARIANT* result,
                                 EXCEPINFO*, UINT*) {
    return how == DISPATCH_PROPERTYGET ? Get(id, *result) : Put(id, parameters->rgvarg[0]);
}

HRESULT TestControl::Get(DISPID id, VARIANT& result) {
    _variant_t value;
    switch (id) {
        case countId:
            value = count;
            break;
        case captionId:
            value.bstrVal = SysAllocStringLen(caption.data(), static_cast<UINT>(caption.size()));
            value.vt = VT_BSTR;
            break;
        case DISPID_BACKCOLOR:
            value.vt = VT_UI4;
            GetBackColor(reinterpret_cast<OLE_COLOR*>(&value.ulVal));
            break;
        default:
            return DISP_E_MEMBERNOTFOUND;
    }
    result = value.Detach();
    return S_OK;
}

HRESULT TestControl::Put(DISPID id, const VARIANT& value) {
    switch (id) {
        case countId:
            if (value.vt != VT_I4) return DISP_E_TYPEMISMATCH;
            if (value.lVal > 1000) return E_INVALIDARG;
            count = value.lVal;
            break;
        case captionId:
            if (value.vt != VT_BSTR) return DISP_E_TYPEMISMATCH;
            caption.assign(value.bstrVal ? value.bstrVal : L"", SysStringLen(value.bstrVal));
            break;
        case DISPID_BACKCOLOR:
            return PutBackColor(value.ulVal);
        default:
            return DISP_E_MEMBERNOTFOUND;
    }
    NotifyChanged(id);
    return S_OK;
}

void TestControl::OnDraw(HDC dc, const RECT& bounds) {
    ++draws;
    drawnBounds = bounds;
    FillSolid(dc, bounds, BackColorRef());
    const RECT quarter{0, 0, bounds.right / 2, bounds.bottom / 2};
    FillSolid(dc, quarter, RGB(255, 0, 0));
}

std::optional<LRESULT> TestControl::OnMessage(UINT message, WPARAM, LPARAM) {
    messages.push_back(message);
    return onMessage ? onMessage(message) : std::nullopt;
}

Container::Container()
    : window(CreateWindowExW(0, L"STATIC", L"container", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300,
                             nullptr, nullptr, nullptr, nullptr)),
      site(MakeObject<ControlSite>(window)),
      control(MakeObject<TestControl>()) {
    control->SetClientSite(site->Client());
    site->ForgetCalls();
}

Container::~Container() {
    site->answers.clear();
    if (control) {
        control->Close(OLECLOSE_NOSAVE);
        control->SetClientSite(nullptr);
    }
    DestroyWindow(window);
}

}  // namespace qz
