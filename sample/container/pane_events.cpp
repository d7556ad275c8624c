#include "sample/container/pane_events.h"

namespace qz {

namespace {

constexpr DISPID deleteSelectedPages = 2;  // of _IqzThumbnailCtrlEvents

/// The last parameter, when it is an in/out `long`; else null.
long* InOutParameter(DISPPARAMS& parameters) noexcept {
    if (parameters.cArgs == 0) return nullptr;
    VARIANT& last = parameters.rgvarg[0];  // arguments come last to first
    return last.vt == (VT_BYREF | VT_I4) ? last.plVal : nullptr;
}

}  // namespace

void AskBeforeDeletingPages(DISPID event, DISPPARAMS& parameters, const Ask& ask) {
    if (event != deleteSelectedPages) return;
    long* const goOn = InOutParameter(parameters);
    if (!goOn || *goOn == 0) return;  // another listener has vetoed it already
    *goOn = 0;                        // also when the question cannot be put
    if (ask(L"Delete the selected page(s)?")) *goOn = 1;
}

}  // namespace qz
