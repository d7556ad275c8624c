// The inspector's members, its tie to the host, and the object that it inspects.
#include "properties/inspector/prop_control.h"

#include "com/text.h"
#include "host/attributes.h"
#include "host/host_calls.h"
#include "host/object_path.h"
#include "properties/editors/confirmation_pause.h"
#include "properties/model/confirmation.h"
#include "properties/model/selection_caption.h"
#include "res/strings.h"
#include "res/text_ids.h"

namespace qz {

namespace {

bool IsSet(const VARIANT& value) noexcept {
    if (value.vt == VT_BOOL) return value.boolVal != VARIANT_FALSE;
    return value.vt == VT_I4 && value.lVal != 0;
}

}  // namespace

// Members
// ------------------------------------------------------------------------------------------------------

STDMETHODIMP PropControl::put_VandraX(IDispatch* newVal) {
    const ComPtr<IUnknown> alive = Identity();
    const HRESULT left = Run([&]() -> HRESULT {
        if (Host()) return ResetPane();
        SetObject(nullptr);  // one that was put before any host
        return S_OK;
    });
    if (FAILED(left) || !newVal) return left;
    return InitializePane(newVal);
}

STDMETHODIMP PropControl::get_VandraX(IDispatch** pVal) {
    return Run([&] {
        RequirePointer(pVal);
        *pVal = nullptr;
        if (Host()) ThrowIfFailed(Host()->QueryInterface(IID_PPV_ARGS(pVal)));
    });
}

STDMETHODIMP PropControl::put_Object(IDispatch* newVal) {
    return Run([&] { SetObject(newVal); });
}

STDMETHODIMP PropControl::get_Object(IDispatch** pVal) {
    return Run([&] {
        RequirePointer(pVal);
        ComPtr<IDispatch>(object_).CopyTo(pVal);
    });
}

STDMETHODIMP PropControl::get_SelectionName(BSTR* pVal) {
    return Run([&] {
        RequirePointer(pVal);
        *pVal = nullptr;
        const ComPtr<IVandraX> host = Host();
        const ComPtr<IDispatch> object = object_;
        std::optional<long> selected;
        long count = 0;
        if (object && host && SUCCEEDED(host->GetSelectionCount(&count))) selected = count;
        const std::shared_ptr<HostMembers> members = members_ ? members_ : std::make_shared<HostMembers>();
        const bool named = object && selected.value_or(0) < 2;
        const std::wstring name = named ? members->objects.Name(object.Get()) : std::wstring();
        const std::wstring caption = SelectionCaption(object != nullptr, selected, name);
        *pVal = MakeText(caption);
    });
}

STDMETHODIMP PropControl::Closing(long* pAnswer) {
    return Run([&] {
        RequirePointer(pAnswer);
        CloseEditor();
        if (!ConfirmationWanted()) return;
        // The question is about these, also if another object is selected meanwhile.
        const std::shared_ptr<AttributeChanges> changes = changes_;
        const std::shared_ptr<HostMembers> members = members_;
        if (!changes || !members) return;  // the host has taken the object away meanwhile
        OpeningChildDialog();
        const int answer = ShowMessage(LoadText(TextLanguage(), QZ_TEXT_KEEP_CHANGES),
                                       LoadText(TextLanguage(), QZ_TEXT_KEEP_CHANGES_CAPTION),
                                       MB_YESNOCANCEL | MB_ICONQUESTION);
        ClosingChildDialog();
        if (answer == 0) return;  // it could not be shown: nothing was asked
        *pAnswer = answer;
        switch (static_cast<ClosingAnswer>(answer)) {
            case ClosingAnswer::Yes:
                ThrowIfFailed(ResetPane());
                break;
            case ClosingAnswer::No:
                changes->TakeBack([&](const AttributeChange& change) { TakeBack(*members, change); });
                break;
            default:
                ReopenEditor();  // the one that was closed before the question
        }
    });
}

bool PropControl::ConfirmationWanted() {
    const ComPtr<IVandraX> host = Host();
    const Stage::Mark shown = Contents().Now();
    if (!host || !object_ || !changes_ || changes_->Empty() || sharedChanges_) return false;
    ComPtr<IDispatch> found;
    const bool there = !path_.empty() && SUCCEEDED(host->GetObjectByPath(Bstr(path_).Get(), &found));
    _variant_t asked;
    const bool told =
        SUCCEEDED(host->GetObjectAttribute(Bstr(documentPath).Get(), Bstr(confirmAttribute).Get(), &asked));
    if (shown.Stale()) return false;  // these changes were forgotten meanwhile
    return MustConfirm(!path_.empty(), there, true, told && IsSet(asked));
}

// The host
// ------------------------------------------------------------------------------------------------------

void PropControl::ShowDocument() {
    members_ = std::make_shared<HostMembers>();
    if (WindowHandle() && dialogLanguage_ != TextLanguage()) MakeDialog();
}

void PropControl::ForgetDocument() {
    SetObject(nullptr);
    members_.reset();
}

void PropControl::FollowHost() {
    FollowChange();
    const std::function<void()> told = followed_;
    if (told) told();
}

void PropControl::FollowChange() {
    const ComPtr<IVandraX> host = Host();
    const Stage::Mark shown = Contents().Now();
    const ChangeFlags changes = ChangesOf(host.Get());
    if (shown.Stale()) return;  // the object that was set meanwhile stays
    if (changes.AnyOrUntold(change::selection)) return FollowSelection(host.Get());
    if (!object_) return;
    const bool there = ObjectIsThere();
    if (shown.Stale()) return;
    if (!there) return SetObject(nullptr);
    const ValueDlgPointer editor = editor_;
    if (editor) editor->FollowHost();
}

void PropControl::FollowSelection(IVandraX* host) {
    const Stage::Mark shown = Contents().Now();
    const ComPtr<IDispatch> current = ObjectOf(CurrentObjectOf(host));
    if (!current && !object_) return;
    const bool inspected = current && ObjectIsThere() && IsInspected(current);
    if (shown.Stale()) return;  // the object that was set meanwhile stays
    if (inspected) {
        ReopenEditor();  // others may be selected with it now
    } else {
        SetObject(current);
    }
}

/// What is remembered of the choice is not touched when nothing is chosen here.
void PropControl::ReopenEditor() {
    if (DialogWindow() && dialog_->ChosenIndex()) OnAttributeChosen();
}

/// Asks the object itself, as what lies at its old path may be another one by now. False also when another
/// object was set meanwhile.
bool PropControl::ObjectIsThere() {
    const Stage::Mark shown = Contents().Now();
    const ComPtr<IDispatch> object = object_;
    const std::shared_ptr<HostMembers> members = members_;
    if (!object || !members) return false;
    std::wstring path;
    if (FAILED(Guard(IID_NULL, [&] { path = members->objects.Path(object.Get()); }))) return false;
    if (shown.Stale()) return false;
    path_ = std::move(path);
    return true;
}

/// A host may give out a new reference each time: then the path tells.
bool PropControl::IsInspected(const ComPtr<IDispatch>& object) {
    if (SameObject(object, object_)) return true;
    const std::shared_ptr<HostMembers> members = members_;
    if (!members) return false;
    const std::wstring path = members->objects.Path(object.Get());
    return !path.empty() && path == path_;
}

/// Whether another object is inspected than when it was asked last.
bool PropControl::TakeNews() {
    const ComPtr<IDispatch> before = std::exchange(toldObject_, object_);
    bool same = SameObject(before, object_);
    if (!same && before && object_) Guard(IID_NULL, [&] { same = IsInspected(before); });
    return !same;
}

// The object
// ------------------------------------------------------------------------------------------------------

void PropControl::SetObject(const ComPtr<IDispatch>& object) {
    ContentsReplaced();
    const Stage::Mark shown = Contents().Now();
    CloseEditor();
    if (shown.Stale()) return;  // another object was set meanwhile
    changes_.reset();
    object_ = nullptr;
    path_.clear();
    HRESULT failure = S_OK;
    std::wstring reason;
    try {
        TakeObject(object);
    } catch (const ComError& error) {
        failure = error.code;
        reason = error.text;
    }
    if (shown.Stale()) return;
    if (TakeNews() && !shown.Stale()) Events().Raise(3);
    if (FAILED(failure)) Rethrow(failure, reason);
}

void PropControl::TakeObject(const ComPtr<IDispatch>& object) {
    const Stage::Mark shown = Contents().Now();
    const std::shared_ptr<HostMembers> members = members_;
    HRESULT refused = S_OK;
    std::wstring path;
    if (object && members) refused = Guard(IID_NULL, [&] { path = members->objects.Path(object.Get()); });
    if (shown.Stale()) return;
    if (SUCCEEDED(refused)) {
        object_ = object;
        path_ = std::move(path);
        changes_ = sharedChanges_ ? sharedChanges_ : std::make_shared<AttributeChanges>();
    }
    ShowObject();
    ThrowIfFailed(refused, L"The object does not tell its path, as an object of the host does");
}

}  // namespace qz
