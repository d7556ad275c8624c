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

ReferenceHost::ReferenceHost()
    : session_(std::make_shared<HostSession>(std::make_shared<CallRecorder>())),
      events_(Identity(), DIID__IVandraXEvents),
      settingsKeyPath_(standardSettingsKey),
      languageId_(static_cast<short>(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US))) {
    session_->owner = this;
}

void ReferenceHost::FinalRelease() {
    session_->owner = nullptr;
    events_.DisconnectAll();
    view_.reset();
}

STDMETHODIMP ReferenceHost::QueryInterface(REFIID iid, void** result) {
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

std::vector<ConnectionPoint*> ReferenceHost::Points() {
    if (hiddenInterfaces_ & hideEvents) return {};
    return {&events_};
}

void ReferenceHost::Raise(uint32_t flags) {
    const ChangeTracker::Raising raising(Model().changes, flags);
    ++eventCount_;
    FireEvent(events_, changedEvent);
}

/// A sink may release the host, or change something again: then an event within this one tells of that.
void ReferenceHost::ChangesMade(bool redraw) {
    const ComPtr<IReferenceHost> alive = this;
    if (redraw && view_ && Model().changes.AutoRefresh()) view_->Follow();
    if (const uint32_t flags = Model().changes.Take(Model().View())) Raise(flags);
}

void ReferenceHost::DrawNow() {
    if (view_) view_->DrawNow();
}

void ReferenceHost::TakeFocus() {
    if (view_ && view_->Handle()) SetFocus(view_->Handle());
}

HRESULT ReferenceHost::Unused(Place place) noexcept {
    return Call(place, [] { return E_NOTIMPL; });
}

ObjectKey ReferenceHost::Require(BSTR path) const {
    const std::optional<ObjectPath> parsed = ParseObjectPath(TextView(path));
    if (!parsed) Throw(E_INVALIDARG, L"That is no path of an object: " + std::wstring(TextView(path)));
    const std::optional<ObjectKey> key = Resolve(Model().Doc(), *parsed);
    if (!key)
        Throw(CodeOf(AccessFailure::NoSuchObject), L"There is no object " + std::wstring(TextView(path)));
    return *key;
}

}  // namespace qz::sample
