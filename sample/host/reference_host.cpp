#include "sample/host/reference_host.h"

#include "sample/host/variant_value.h"

namespace qz::sample {

namespace {

constexpr DISPID changedEvent = 5;
constexpr wchar_t standardSettingsKey[] =
    L"Software\\Tarvel Technologies\\Tarvel Vandrel\\VandraDoc\\Settings";

/// Bits of HiddenInterfaces.
constexpr long hideDual = 1;
constexpr long hideContainer = 2;
constexpr long hideEvents = 4;

}  // namespace

MemoryHost::MemoryHost()
    : session_(std::make_shared<HostSession>(std::make_shared<CallRecorder>())),
      events_(Identity(), DIID__IVandraXEvents),
      settingsKeyPath_(standardSettingsKey),
      languageId_(static_cast<short>(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US))) {
    session_->owner = this;
}

void MemoryHost::FinalRelease() {
    session_->owner = nullptr;
    session_->ClearOverrides();  // which may hold objects of the session
    events_.DisconnectAll();
    view_.reset();
}

STDMETHODIMP MemoryHost::QueryInterface(REFIID iid, void** result) {
    if (!result) return E_POINTER;
    const bool dual = iid == IID_IVandraX;
    const bool hidden = (dual && (hiddenInterfaces_ & hideDual)) ||
                        (iid == __uuidof(IConnectionPointContainer) && (hiddenInterfaces_ & hideContainer));
    if (hidden) {
        *result = nullptr;
        return E_NOINTERFACE;
    }
    return Object::QueryInterface(dual ? IID_IReferenceHost : iid, result);
}

std::vector<ConnectionPoint*> MemoryHost::Points() {
    if (hiddenInterfaces_ & hideEvents) return {};
    return {&events_};
}

void MemoryHost::Raise(uint32_t flags) {
    const ChangeTracker::Raising raising(Model().changes, flags);
    ++eventCount_;
    FireEvent(events_, changedEvent);
}

/// A sink may release the host, or change something again: then an event within this one tells of that.
void MemoryHost::ChangesMade(bool redraw) {
    const ComPtr<IReferenceHost> alive = this;
    const uint32_t flags = Model().changes.Take(Model().View());
    if (flags == change::none) return;
    if (redraw && view_) view_->Follow();
    Raise(flags);
}

void MemoryHost::DrawNow() {
    if (view_) view_->DrawNow();
}

void MemoryHost::TakeFocus() {
    if (view_ && view_->Handle()) SetFocus(view_->Handle());
}

HRESULT MemoryHost::Unused(Place place) noexcept {
    return Call(place, [] { return E_NOTIMPL; });
}

ObjectKey MemoryHost::Require(BSTR path) const {
    const std::optional<ObjectPath> parsed = ParseObjectPath(TextView(path));
    if (!parsed) Throw(E_INVALIDARG, L"That is no path of an object: " + std::wstring(TextView(path)));
    const std::optional<ObjectKey> key = Resolve(Model().Doc(), *parsed);
    if (!key)
        Throw(CodeOf(AccessFailure::NoSuchObject), L"There is no object " + std::wstring(TextView(path)));
    return *key;
}

}  // namespace qz::sample
