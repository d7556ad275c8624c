// The places of the dual interface.
#include "com/stream.h"
#include "sample/document/page_attributes.h"
#include "sample/host/host_bookmark.h"
#include "sample/host/host_object.h"
#include "sample/host/reference_host.h"
#include "sample/host/variant_value.h"

namespace qz::sample {

namespace {

constexpr long largestScale = 6400;

template <class Slot, class Content>
void Give(Slot* slot, Content content) {
    RequirePointer(slot);
    *slot = static_cast<Slot>(content);
}

/// The pages of a document object, ours or another's: whatever streams itself in our format.
Document CopyOf(IDispatch* document) {
    ComPtr<IPersistStreamInit> streams;
    RequirePointer(document);
    ThrowIfFailed(document->QueryInterface(IID_PPV_ARGS(&streams)), L"That is no document");
    const ComPtr<IStream> stream = MakeMemoryStream();
    ThrowIfFailed(streams->Save(stream.Get(), FALSE), L"The document cannot be saved");
    ThrowIfFailed(stream->Seek({}, STREAM_SEEK_SET, nullptr));
    return ReadDocument(stream.Get());
}

}  // namespace

STDMETHODIMP MemoryHost::GetDocumentMode(long* mode) {
    return Call(Place::GetDocumentMode, [&] { Give(mode, Model().View().mode); });
}

STDMETHODIMP MemoryHost::GetZoom(long* percent) {
    return Call(Place::GetZoom, [&] { Give(percent, Model().View().zoom); });
}

STDMETHODIMP MemoryHost::SetZoom(long percent) {
    return Call(
        Place::SetZoom,
        [&] {
            Model().SetZoom(percent);
            session_->Settle();
        },
        percent);
}

STDMETHODIMP MemoryHost::Refresh() {
    return Call(Place::Refresh, [&] { DrawNow(); });
}

STDMETHODIMP MemoryHost::GetAutoRefresh(long* flag) {
    return Call(Place::GetAutoRefresh, [&] { Give(flag, Model().changes.AutoRefresh()); });
}

STDMETHODIMP MemoryHost::SetAutoRefresh(long flag) {
    return Call(
        Place::SetAutoRefresh,
        [&] {
            Model().changes.SetAutoRefresh(flag != 0);
            session_->Settle();
        },
        flag);
}

STDMETHODIMP MemoryHost::GetLanguageId(short* languageId) {
    return Call(Place::GetLanguageId, [&] { Give(languageId, languageId_); });
}

STDMETHODIMP MemoryHost::GetBookmarks(IDispatch** root) {
    return Call(Place::GetBookmarks, [&] {
        Give(root, nullptr);
        *root = MakeHostBookmark(*session_, Outline::root).Detach();
    });
}

STDMETHODIMP MemoryHost::GetPageCount(long* count) {
    return Call(Place::GetPageCount, [&] { Give(count, Model().Doc().pages.Count()); });
}

STDMETHODIMP MemoryHost::GetCurrentPage(long* page) {
    return Call(Place::GetCurrentPage, [&] { Give(page, Model().View().currentPage); });
}

STDMETHODIMP MemoryHost::SetCurrentPage(long page) {
    return Call(
        Place::SetCurrentPage,
        [&] {
            Model().SetCurrentPage(page);
            session_->Settle();
        },
        page);
}

void MemoryHost::ReadAttributeInto(BSTR path, BSTR attribute, VARIANT* value) {
    if (session_->ReadOverride(TextView(path), TextView(attribute), value)) return;
    const Document& document = Model().Doc();
    const std::optional<ObjectPath> parsed = ParseObjectPath(TextView(path));
    const bool isPage = parsed && parsed->kind == PathKind::Page && document.pages.Holds(parsed->number);
    // Pages are read in long loops: straight from their record, without looking for their number again.
    const Value read =
        isPage ? ReadPageAttribute(document, document.pages.At(parsed->number), TextView(attribute))
               : ReadAttribute(document, Require(path), TextView(attribute));
    PutValue(read, *session_, value);
}

STDMETHODIMP MemoryHost::GetObjectAttribute(BSTR path, BSTR attribute, VARIANT* value) {
    return Call(
        Place::GetObjectAttribute,
        [&] {
            RequirePointer(value);
            VariantInit(value);
            ReadAttributeInto(path, attribute, value);
        },
        path, attribute);
}

STDMETHODIMP MemoryHost::SetObjectAttribute(BSTR path, BSTR attribute, VARIANT value) {
    return Call(
        Place::SetObjectAttribute,
        [&] {
            const ObjectKey key = Require(path);
            Model().Write(key, TextView(attribute), ValueOf(value, Model().Doc()));
            if (key.id == Model().Doc().Settings() && TextView(attribute) == L"SetFocus_M") TakeFocus();
            session_->Settle();
        },
        path, attribute, value);
}

STDMETHODIMP MemoryHost::GetPageOpFlag(long* flag) {
    return Call(Place::GetPageOpFlag, [&] { Give(flag, Model().changes.PageOperations()); });
}

STDMETHODIMP MemoryHost::SetPageOpFlag(long flag) {
    return Call(
        Place::SetPageOpFlag,
        [&] {
            Model().changes.SetPageOperations(flag != 0);
            session_->Settle();
        },
        flag);
}

STDMETHODIMP MemoryHost::GetCurrentObject(VARIANT* object) {
    return Call(Place::GetCurrentObject, [&] {
        RequirePointer(object);
        VariantInit(object);
        const std::vector<ObjectKey> selected = Model().Selection();
        if (selected.empty()) return;
        object->pdispVal = MakeHostObject(*session_, selected.back()).Detach();
        object->vt = VT_DISPATCH;
    });
}

STDMETHODIMP MemoryHost::GetPageWidth(long* twips) {
    return Call(Place::GetPageWidth, [&] { Give(twips, Model().CurrentPage().width); });
}

STDMETHODIMP MemoryHost::GetPageHeight(long* twips) {
    return Call(Place::GetPageHeight, [&] { Give(twips, Model().CurrentPage().height); });
}

STDMETHODIMP MemoryHost::GetSelectionCount(long* count) {
    return Call(Place::GetSelectionCount, [&] { Give(count, Model().Selection().size()); });
}

STDMETHODIMP MemoryHost::GetObjectByPath(BSTR path, IDispatch** object) {
    return Call(
        Place::GetObjectByPath,
        [&] {
            Give(object, nullptr);
            *object = MakeHostObject(*session_, Require(path)).Detach();
        },
        path);
}

STDMETHODIMP MemoryHost::DeletePage(long page, long flag) {
    return Call(
        Place::DeletePage,
        [&] {
            Model().DeletePage(page);
            session_->Settle();
        },
        page, flag);
}

STDMETHODIMP MemoryHost::InsertDocument(IDispatch* document) {
    return Call(Place::InsertDocument, [&] {
        Model().AppendPagesOf(CopyOf(document));
        session_->Settle();
    });
}

STDMETHODIMP MemoryHost::GetBookmarkState(long* state) {
    return Call(Place::GetBookmarkState, [&] { Give(state, Model().OutlineState()); });
}

STDMETHODIMP MemoryHost::MovePages(long first, long count, long target) {
    return Call(
        Place::MovePages,
        [&] {
            Model().MovePages(first, count, target);
            session_->Settle();
        },
        first, count, target);
}

STDMETHODIMP MemoryHost::SetSelectionAttribute(BSTR attribute, VARIANT value, long flag) {
    return Call(
        Place::SetSelectionAttribute,
        [&] {
            Model().WriteSelection(TextView(attribute), ValueOf(value, Model().Doc()));
            session_->Settle();
        },
        attribute, value, flag);
}

STDMETHODIMP MemoryHost::GetChangeFlags(long* flags) {
    return Call(Place::GetChangeFlags, [&] { Give(flags, Model().changes.Flags(Model().View())); });
}

STDMETHODIMP MemoryHost::UpdateView(long what, long redraw) {
    return Call(
        Place::UpdateView,
        [&] {
            Model().changes.Note(static_cast<uint32_t>(what));
            if (redraw != 0) DrawNow();
            session_->Settle(redraw != 0);
        },
        what, redraw);
}

STDMETHODIMP MemoryHost::ApplyObjectSetting(BSTR path, BSTR attribute, VARIANT value) {
    return Call(
        Place::ApplyObjectSetting,
        [&] {
            Model().Apply(Require(path), TextView(attribute), ValueOf(value, Model().Doc()));
            session_->Settle();
        },
        path, attribute, value);
}

STDMETHODIMP MemoryHost::CreateDocument(IDispatch** document) {
    return Call(Place::CreateDocument, [&] {
        Give(document, nullptr);
        const auto session = std::make_shared<HostSession>(session_->calls);
        const ObjectKey key{ObjectKey::Kind::Object, session->model.Doc().Settings()};
        *document = MakeHostObject(*session, key).Detach();
    });
}

STDMETHODIMP MemoryHost::DrawCurrentPage(HdcHandle dc, long flag, long percent) {
    return Call(
        Place::DrawCurrentPage,
        [&] {
            const HDC context = reinterpret_cast<HDC>(dc);
            if (!context) Throw(E_INVALIDARG, L"There is no device context to draw into");
            if (percent < 1 || percent > largestScale) Throw(E_INVALIDARG, L"The scale is impossible");
            painter_.Draw(context, Model().CurrentPage(), Model().View().currentPage, percent,
                          (flag & 1) != 0);
        },
        flag, percent);
}

STDMETHODIMP MemoryHost::InsertPagesFromStream(IStream* stream) {
    return Call(Place::InsertPagesFromStream, [&] {
        Model().AppendPagesOf(ReadDocument(stream));
        session_->Settle();
    });
}

}  // namespace qz::sample
