#include "panes/common/pane_control.h"

#include "host/host_language.h"

namespace qz {

PaneControl::PaneControl(REFIID members, REFIID events)
    : members_(members), events_(Self(), events, [this] { return EventsFrozen(); }) {}

void* PaneControl::FindInterface(PaneControl* self, REFIID iid) noexcept {
    void* const found = Control::FindInterface(self, iid);
    return found ? found : ConnectionPointContainer::FindInterface(self, iid);
}

std::vector<ConnectionPoint*> PaneControl::Points() {
    if (events_.Point().Interface() == GUID_NULL) return {&PropertyNotifyPoint()};
    return {&events_.Point(), &PropertyNotifyPoint()};
}

void PaneControl::FinalRelease() noexcept {
    events_.Point().DisconnectAll();
    binding_.Detach();
    Control::FinalRelease();
}

HRESULT PaneControl::Keep(long& property, long value) noexcept {
    property = value;
    SetDirty(true);
    return S_OK;
}

HRESULT PaneControl::InitializePane(IDispatch* host) noexcept {
    return Run([&] {
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

HRESULT PaneControl::ResetPane() noexcept {
    if (!binding_.Host()) return S_OK;
    return Run([&] {
        OnReset();
        LetGo();
    });
}

void PaneControl::OnHostChanged() noexcept {
    if (ownHostCalls_ > 0 || !binding_.Host()) return;
    const ComPtr<IUnknown> alive = Self();
    // Nobody asked, so nobody is told of a failure: the pane shows what it could learn.
    Guard(IID_NULL, [this] { FollowHost(); });
}

}  // namespace qz
