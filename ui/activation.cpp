#include "ui/activation.h"

#include "com/error.h"
#include "com/module.h"

#include <utility>

namespace qz {

namespace {

/// Made of the manifest in the module's resources, and released when the module is unloaded.
class ModuleContext {
  public:
    ModuleContext() : handle_(Make()) {}
    ~ModuleContext() {
        if (handle_) ReleaseActCtx(handle_);
    }
    ModuleContext(const ModuleContext&) = delete;
    ModuleContext& operator=(const ModuleContext&) = delete;

    HANDLE Handle() const noexcept { return handle_; }

  private:
    /// Null without such a manifest.
    static HANDLE Make() {
        const wchar_t* const id = MAKEINTRESOURCEW(2);  // of a library's manifest
        if (!FindResourceW(ThisModule(), id, MAKEINTRESOURCEW(24))) return nullptr;  // a manifest's type
        ACTCTXW request{};
        request.cbSize = sizeof request;
        request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        request.hModule = ThisModule();
        request.lpResourceName = id;
        const HANDLE made = CreateActCtxW(&request);
        ThrowLastErrorIf(made == INVALID_HANDLE_VALUE, L"The module's manifest cannot be used");
        return made;
    }

    HANDLE handle_;
};

}  // namespace

ModuleActivation::ModuleActivation() {
    static const ModuleContext context;
    if (!context.Handle()) return;
    ThrowLastErrorIf(!ActivateActCtx(context.Handle(), &cookie_),
                     L"The module's manifest cannot be activated");
}

ModuleActivation::~ModuleActivation() {
    if (cookie_) DeactivateActCtx(0, cookie_);
}

CallerContext::~CallerContext() {
    if (handle_) ReleaseActCtx(handle_);
}

void CallerContext::Capture() noexcept {
    HANDLE current = nullptr;
    if (!GetCurrentActCtx(&current)) current = nullptr;
    const HANDLE before = std::exchange(handle_, current);
    if (before) ReleaseActCtx(before);
}

CallerActivation::CallerActivation(const CallerContext& context) noexcept
    : active_(ActivateActCtx(context.Handle(), &cookie_) != FALSE) {}

CallerActivation::~CallerActivation() {
    if (active_) DeactivateActCtx(0, cookie_);
}

}  // namespace qz
