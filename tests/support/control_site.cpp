#include "tests/support/control_site.h"

#include <algorithm>

namespace qz {

long ControlSite::Count(const std::string& name) const {
    return static_cast<long>(std::ranges::count(log_, name));
}

long ControlSite::IndexOf(const std::string& name) const {
    const auto found = std::ranges::find(log_, name);
    return found == log_.end() ? -1 : static_cast<long>(found - log_.begin());
}

HRESULT ControlSite::Called(const char* name) {
    log_.emplace_back(name);
    const auto found = answers.find(name);
    if (found == answers.end()) return S_OK;
    const auto answer = found->second;  // the test may change its answers inside one
    return answer();
}

STDMETHODIMP ControlSite::GetWindow(HWND* window) {
    *window = window_;
    return Called("GetWindow");
}

STDMETHODIMP ControlSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                           LPRECT place, LPRECT clipping, LPOLEINPLACEFRAMEINFO) {
    *frame = nullptr;
    *document = nullptr;
    const HRESULT answer = Called("GetWindowContext");
    if (FAILED(answer)) return answer;
    *place = position;
    *clipping = clip;
    return QueryInterface(IID_PPV_ARGS(frame));
}

STDMETHODIMP ControlSite::TranslateAccelerator(MSG*, DWORD modifiers) {
    lastModifiers = modifiers;
    const HRESULT answer = Called("TranslateAccelerator");
    return answers.contains("TranslateAccelerator") ? answer : S_FALSE;
}

STDMETHODIMP ControlSite::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                 UINT*) {
    const auto found = ambients.find(id);
    return found == ambients.end() ? DISP_E_MEMBERNOTFOUND : VariantCopy(result, &found->second);
}

STDMETHODIMP ControlSite::SetBorderSpace(LPCBORDERWIDTHS widths) {
    return Called(widths ? "SetBorderSpace(widths)" : "SetBorderSpace(null)");
}

STDMETHODIMP ControlSite::SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) {
    activeObject = object;
    return Called(object ? "SetActiveObject" : "SetActiveObject(null)");
}

}  // namespace qz
