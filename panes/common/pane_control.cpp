#include "panes/common/pane_control.h"

#include "host/host_language.h"

namespace qz {

void PaneControl::FinalRelease() noexcept {
    binding_.Detach();
    Control::FinalRelease();
}

HRESULT PaneControl::InitializePane(REFIID iid, IDispatch* host) noexcept {
    const ComPtr<IUnknown> alive = Self();
    return Guard(iid, [&] {
        Attach(host);
        ShowDocument();
    });
}

void PaneControl::Attach(IDispatch* candidate) {
    const OwnHostCalls ours(*this);
    try {
        binding_.Attach(candidate);
    } catch (...) {
        if (!binding_.Host()) LetGo();
        throw;
    }
    const ComPtr<IVandraX> attached = binding_.Host();
    try {
        if (!attached) Throw(E_ABORT, L"The pane was reset while it was being attached");
        CheckHost(attached.Get());
        if (binding_.Host()) NoteHostLanguage(binding_.LanguageId());
    } catch (...) {
        if (SameObject(Host(), attached)) LetGo();
        throw;
    }
    if (const HWND window = WindowHandle()) SetWindowTextW(window, Title().c_str());
}

void PaneControl::LetGo() {
    binding_.Detach();
    ForgetDocument();
}

HRESULT PaneControl::ResetPane(REFIID iid) noexcept {
    if (!binding_.Host()) return S_OK;
    const ComPtr<IUnknown> alive = Self();
    return Guard(iid, [&] {
        OnReset();
        LetGo();
    });
}

HRESULT PaneControl::TellInitialized(REFIID iid, long* answer) noexcept {
    return Guard(iid, [&] {
        RequirePointer(answer);
        *answer = binding_.Host() ? 1 : 0;
    });
}

void PaneControl::OnHostChanged() noexcept {
    if (ownHostCalls_ > 0 || !binding_.Host()) return;
    const ComPtr<IUnknown> alive = Self();
    // Nobody asked, so nobody is told of a failure: the pane shows what it could learn.
    Guard(IID_NULL, [this] { FollowHost(); });
}

}  // namespace qz
