// Members called by name, and those for the container and for tests.
#include "com/safe_array.h"
#include "sample/document/document_file.h"
#include "sample/host/file_bytes.h"
#include "sample/host/host_object.h"
#include "sample/host/reference_host.h"
#include "sample/host/variant_value.h"

namespace qz::sample {

HRESULT MemoryHost::Encrypt(LateBound member, int16_t level, BSTR owner, BSTR user,
                            long permissions) noexcept {
    return Call(
        member,
        [&] {
            const bool protects = SysStringLen(owner) > 0 || SysStringLen(user) > 0 || permissions != 0;
            Model().Protect(protects ? level : int16_t(0), std::wstring(TextView(owner)),
                            std::wstring(TextView(user)),
                            protects ? permissions : Model().everythingPermitted);
            session_->Settle();
        },
        permissions);
}

STDMETHODIMP MemoryHost::Encrypt(BSTR owner, BSTR user, long permissions) {
    return Encrypt(LateBound::HostEncrypt, 40, owner, user, permissions);
}

STDMETHODIMP MemoryHost::Encrypt128(BSTR owner, BSTR user, long permissions) {
    return Encrypt(LateBound::HostEncrypt128, 128, owner, user, permissions);
}

STDMETHODIMP MemoryHost::CreateObject(long type, BSTR name, IDispatch** object) {
    return Call(
        LateBound::HostCreateObject,
        [&] {
            RequirePointer(object);
            *object = nullptr;
            const ObjectKey key = Model().CreateObject(type, std::wstring(TextView(name)));
            *object = MakeHostObject(*session_, key).Detach();
            session_->Settle();
        },
        type, name);
}

STDMETHODIMP MemoryHost::SelectObjects(long all) {
    return Call(
        LateBound::HostSelectObjects,
        [&] {
            if (all != 0) {
                Model().SelectAllOfCurrentPage();
            } else {
                Model().SelectNothing();
            }
            session_->Settle();
        },
        all);
}

STDMETHODIMP MemoryHost::get_SelectedObjects(VARIANT* objects) {
    return Call(LateBound::HostSelectedObjects, [&] {
        RequirePointer(objects);
        VariantInit(objects);
        std::vector<ComPtr<IDispatch>> selected;
        for (const ObjectKey key : Model().Selection()) selected.push_back(MakeHostObject(*session_, key));
        objects->parray = MakeObjectArray(selected).Detach();
        objects->vt = VT_ARRAY | VT_DISPATCH;
    });
}

STDMETHODIMP MemoryHost::SetScopedAttribute(BSTR path, BSTR attribute, VARIANT value, long scope) {
    return Call(
        LateBound::HostSetScopedAttribute,
        [&] {
            Document& document = Model().Doc();
            if (Require(path) != ObjectKey{ObjectKey::Kind::Object, document.Settings()})
                Throw(E_INVALIDARG, L"Only \"Document\" has a page setup");
            if (scope < 0 || scope > 2) Throw(E_INVALIDARG, L"There is no such scope");
            const int32_t current = document.pages.NumberOf(Model().CurrentPage().id);
            const int32_t first = scope == 0 ? 1 : current;
            const int32_t last = scope == 1 ? current : document.pages.Count();
            const Value written = ValueOf(value, document);
            for (int32_t number = first; number <= last; ++number) {
                const ObjectKey page{ObjectKey::Kind::Page, document.pages.At(number).id};
                Model().Write(page, TextView(attribute), written);
            }
            session_->Settle();
        },
        path, attribute, scope);
}

STDMETHODIMP MemoryHost::get_SettingsKeyPath(BSTR* path) {
    return Call(LateBound::HostSettingsKeyPath, [&] {
        RequirePointer(path);
        *path = nullptr;
        *path = MakeText(settingsKeyPath_);
    });
}

STDMETHODIMP MemoryHost::put_SettingsKeyPath(BSTR path) {
    return Extra([&] { settingsKeyPath_ = TextView(path); });
}

STDMETHODIMP MemoryHost::LoadDocument(BSTR path) {
    return Extra([&] {
        Model().Replace(sample::LoadDocument(ReadFileBytes(std::wstring(TextView(path)))));
        session_->Settle();
    });
}

STDMETHODIMP MemoryHost::NewDocument(long pages, long width, long height) {
    return Extra([&] {
        Model().Replace(MakeDocument(pages, width, height));
        session_->Settle();
    });
}

STDMETHODIMP MemoryHost::AddPages(long pages, long width, long height) {
    return Extra([&] {
        Model().AppendEmptyPages(pages, width, height);
        session_->Settle();
    });
}

STDMETHODIMP MemoryHost::AddLayer(BSTR name, BSTR displayName, long visible) {
    return Extra([&] {
        Model().AddLayer(std::wstring(TextView(name)), std::wstring(TextView(displayName)), visible != 0);
        session_->Settle();
    });
}

STDMETHODIMP MemoryHost::SelectObject(BSTR path, long keepOthers) {
    return Extra([&] {
        Model().Select(Require(path), keepOthers != 0);
        session_->Settle();
    });
}

STDMETHODIMP MemoryHost::RemoveObject(BSTR path) {
    return Extra([&] {
        Model().RemoveObject(Require(path));
        session_->Settle();
    });
}

STDMETHODIMP MemoryHost::AddAttribute(BSTR path, BSTR name, long category, long flags, long type,
                                      BSTR description, BSTR choices, VARIANT value) {
    return Extra([&] {
        AttributeDescription described;
        described.name = TextView(name);
        described.category = static_cast<uint32_t>(category);
        described.flags = static_cast<uint32_t>(flags);
        described.type = static_cast<uint32_t>(type);
        described.description = TextView(description);
        described.choices = TextView(choices);
        Model().AddAttribute(Require(path), std::move(described), ValueOf(value, Model().Doc()));
    });
}

STDMETHODIMP MemoryHost::put_Mode(long mode) {
    return Extra([&] {
        Model().SetMode(mode);
        session_->Settle();
    });
}

STDMETHODIMP MemoryHost::put_LanguageId(long language) {
    return Extra([&] { languageId_ = static_cast<short>(language); });
}

STDMETHODIMP MemoryHost::ShowIn(long parentWindow) {
    return Extra([&] {
        view_.reset();
        const HWND parent = reinterpret_cast<HWND>(static_cast<LONG_PTR>(parentWindow));
        if (!parent) return;
        if (!IsWindow(parent)) Throw(E_INVALIDARG, L"There is no such window");
        view_ = std::make_unique<PageView>(Identity(), *session_, painter_);
        view_->ShowIn(parent);
    });
}

STDMETHODIMP MemoryHost::MoveView(long left, long top, long width, long height) {
    return Extra([&] {
        if (view_) view_->Move(left, top, width, height);
    });
}

STDMETHODIMP MemoryHost::get_ViewWindow(long* window) {
    return Extra([&] {
        RequirePointer(window);
        *window = view_ ? static_cast<long>(reinterpret_cast<LONG_PTR>(view_->Handle())) : 0;
    });
}

namespace {

Operation RequireOperation(BSTR name) {
    const std::optional<Operation> operation = FindOperation(TextView(name));
    if (!operation) Throw(E_INVALIDARG, L"There is no operation " + std::wstring(TextView(name)));
    return *operation;
}

}  // namespace

STDMETHODIMP MemoryHost::get_CallCount(BSTR operation, long* count) {
    return Extra([&] {
        RequirePointer(count);
        const CallRecorder& calls = *session_->calls;
        const uint64_t number =
            SysStringLen(operation) == 0 ? calls.Total() : calls.CountOf(RequireOperation(operation));
        *count = static_cast<long>(number);
    });
}

STDMETHODIMP MemoryHost::put_LogEnabled(long enabled) {
    session_->calls->SetLogging(enabled != 0);
    return S_OK;
}

STDMETHODIMP MemoryHost::get_LogText(BSTR* text) {
    return Extra([&] {
        RequirePointer(text);
        *text = nullptr;
        std::wstring all;
        for (const std::wstring& line : session_->calls->Lines()) all += line + L"\n";
        *text = MakeText(all);
    });
}

STDMETHODIMP MemoryHost::ClearLog() {
    session_->calls->Clear();
    return S_OK;
}

STDMETHODIMP MemoryHost::FailCall(long number, long code) {
    return Extra([&] {
        if (number < 1 || SUCCEEDED(code))
            Throw(E_INVALIDARG, L"A failure needs a number from 1 and a failing code");
        session_->calls->FailCall(static_cast<uint64_t>(number), code);
    });
}

STDMETHODIMP MemoryHost::InterruptCall(long number, IDispatch* called) {
    return Extra([&] {
        if (number < 1 || !called)
            Throw(E_INVALIDARG, L"An interruption needs a number from 1 and an object");
        session_->calls->InterruptCall(static_cast<uint64_t>(number), [called = ComPtr<IDispatch>(called)] {
            DISPPARAMS none{};
            called->Invoke(DISPID_VALUE, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &none, nullptr, nullptr,
                           nullptr);
        });
    });
}

STDMETHODIMP MemoryHost::FailOperation(BSTR operation, long code) {
    return Extra([&] {
        if (SUCCEEDED(code)) Throw(E_INVALIDARG, L"A failure needs a failing code");
        session_->calls->FailOperation(RequireOperation(operation), code);
    });
}

STDMETHODIMP MemoryHost::ClearFaults() {
    session_->calls->ClearFaults();
    return S_OK;
}

STDMETHODIMP MemoryHost::put_HiddenInterfaces(long bits) {
    hiddenInterfaces_ = bits;
    return S_OK;
}

STDMETHODIMP MemoryHost::OverrideAttribute(BSTR path, BSTR attribute, VARIANT value) {
    return Extra([&] { session_->Override(TextView(path), TextView(attribute), value); });
}

STDMETHODIMP MemoryHost::ClearOverrides() {
    session_->ClearOverrides();
    return S_OK;
}

STDMETHODIMP MemoryHost::RaiseChange(long flags) {
    const ComPtr<IReferenceHost> alive = this;
    return Extra([&] { Raise(static_cast<uint32_t>(flags)); });
}

STDMETHODIMP MemoryHost::get_SinkCount(long* count) {
    return Extra([&] {
        RequirePointer(count);
        *count = 0;
        ComPtr<IEnumConnections> connections;
        ThrowIfFailed(events_.EnumConnections(&connections));
        while (connections->Skip(1) == S_OK) ++*count;
    });
}

STDMETHODIMP MemoryHost::get_EventCount(long* count) {
    return Extra([&] {
        RequirePointer(count);
        *count = eventCount_;
    });
}

}  // namespace qz::sample
