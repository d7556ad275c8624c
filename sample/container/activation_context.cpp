#include "sample/container/activation_context.h"

#include "com/error.h"

namespace qz {

namespace {

HANDLE CreateContext(const std::wstring& manifest) {
    ACTCTXW request{};
    request.cbSize = sizeof request;
    request.lpSource = manifest.c_str();
    const HANDLE context = CreateActCtxW(&request);
    ThrowLastErrorIf(context == INVALID_HANDLE_VALUE, L"The manifest cannot be used");
    return context;
}

}  // namespace

ActivationContext::ActivationContext(const std::wstring& manifest) : context_(CreateContext(manifest)) {
    if (ActivateActCtx(context_, &cookie_)) return;
    const DWORD error = GetLastError();
    ReleaseActCtx(context_);
    Throw(HRESULT_FROM_WIN32(error), L"The manifest cannot be activated");
}

ActivationContext::~ActivationContext() {
    DeactivateActCtx(0, cookie_);
    ReleaseActCtx(context_);
}

}  // namespace qz
