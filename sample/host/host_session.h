// What the host and its objects share: the model, the record of calls, and the way every call takes.
#pragma once

#include "com/object.h"
#include "sample/host/call_recorder.h"
#include "sample/host/host_model.h"

#include <comdef.h>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace qz::sample {

/// Whoever shows a session's document and tells others of its changes.
class SessionOwner {
  public:
    /// After every change: raises the event that is due, and draws when `redraw` is set. May run foreign
    /// code.
    virtual void ChangesMade(bool redraw) = 0;
    virtual void DrawNow() = 0;
    virtual void TakeFocus() = 0;

  protected:
    ~SessionOwner() = default;
};

/// A document with everything around it. Its objects keep it alive; the host, which may go earlier, is not.
class HostSession : public std::enable_shared_from_this<HostSession> {
  public:
    explicit HostSession(std::shared_ptr<CallRecorder> recorder) : calls(std::move(recorder)) {}

    HostModel model;
    const std::shared_ptr<CallRecorder> calls;
    SessionOwner* owner = nullptr;  // none for documents that no host shows

    /// Runs one operation: counts it, lets it fail when that is planned, logs it with its arguments, and
    /// turns what the body throws into a failure. Nothing of the session is touched after the body.
    template <class Body, class... Arguments>
    HRESULT Call(Operation operation, REFIID iid, Body&& body, const Arguments&... arguments) noexcept;

    /// The description of one of the objects' dual interfaces, loaded once. Throws when there is none.
    ComPtr<ITypeInfo> TypeInfoOf(REFIID iid);

    /// Lets an attribute read as any value whatever.
    void Override(std::wstring_view path, std::wstring_view attribute, const VARIANT& value) {
        overrides_[{std::wstring(path), std::wstring(attribute)}] = value;
    }
    void ClearOverrides() noexcept { overrides_.clear(); }
    /// Copies the value that an attribute of the object with this path is to read as; false when there is
    /// none.
    bool ReadOverride(std::wstring_view path, std::wstring_view attribute, VARIANT* value) const;
    bool ReadOverride(ObjectKey key, std::wstring_view attribute, VARIANT* value) const;

    /// The last step of an operation that may have changed something; objects may be gone afterwards.
    void Settle(bool redraw = true) {
        const auto alive = shared_from_this();
        if (owner) owner->ChangesMade(redraw);
    }

  private:
    std::vector<std::pair<IID, ComPtr<ITypeInfo>>> typeInfos_;
    std::map<std::pair<std::wstring, std::wstring>, _variant_t> overrides_;
};

/// Inside a body run by `Call`: turns errors of the model into those of the boundary.
template <class Body>
auto WithModelErrors(Body&& body);

/// A new object as its dual interface `Dual` gives it to automation.
template <class Dual, class T, class... Arguments>
ComPtr<IDispatch> MakeAutomationObject(Arguments&&... arguments) {
    ComPtr<IDispatch> object;
    // Not by Attach, which counts a reference of its own in one of the toolchains.
    *object.GetAddressOf() =
        static_cast<Dual*>(MakeObject<T>(std::forward<Arguments>(arguments)...).Detach());
    return object;
}

/// The HRESULT of a model's error.
HRESULT CodeOf(AccessFailure failure) noexcept;

/// Throws the ComError for a model's or a file's error that is in flight.
[[noreturn]] void ThrowModelError();

/// A planned failure, with a text that tells so.
HRESULT PlannedFailure(REFIID iid, Operation operation, HRESULT code) noexcept;

std::wstring ArgumentText(long value);
std::wstring ArgumentText(BSTR text);
std::wstring ArgumentText(const VARIANT& value);

template <class Body>
auto WithModelErrors(Body&& body) {
    try {
        return body();
    } catch (const std::runtime_error&) {
        ThrowModelError();
    }
}

template <class Body, class... Arguments>
HRESULT HostSession::Call(Operation operation, REFIID iid, Body&& body,
                          const Arguments&... arguments) noexcept {
    if (const HRESULT fault = calls->Enter(operation)) return PlannedFailure(iid, operation, fault);
    return Guard(iid, [&] {
        if (calls->Logging()) {
            std::wstring line;
            ((line += (line.empty() ? L"" : L", ") + ArgumentText(arguments)), ...);
            calls->WriteLine(operation, line);
        }
        return WithModelErrors(body);
    });
}

}  // namespace qz::sample
