#include "sample/host/host_bookmark.h"

#include "com/dispatch.h"
#include "com/enumerator.h"
#include "generated/reference_host.h"
#include "sample/host/variant_value.h"

#include <comdef.h>

namespace qz::sample {

namespace {

class HostBookmark : public Object<HostBookmark, Dispatch<IHostBookmark>> {
  public:
    HostBookmark(HostSession& session, BookmarkId id)
        : session_(session.shared_from_this()), generation_(session.model.Generation()), id_(id) {
        ShareTypeInfo(session.TypeInfoOf(IID_IHostBookmark));
    }

    STDMETHODIMP QueryInterface(REFIID iid, void** result) override {
        if (iid != ownId) return Object::QueryInterface(iid, result);
        if (!result) return E_POINTER;
        *result = this;
        AddRef();
        return S_OK;
    }

    STDMETHODIMP get_Count(long* count) override {
        return Call(LateBound::BookmarkCount, [&] { Put(count, static_cast<long>(Here().children.size())); });
    }

    STDMETHODIMP get_Item(long index, IDispatch** bookmark) override {
        return Call(
            LateBound::BookmarkItem,
            [&] {
                Put(bookmark, static_cast<IDispatch*>(nullptr));
                const std::vector<BookmarkId>& children = Here().children;
                const bool there = index >= 0 && static_cast<size_t>(index) < children.size();
                if (!there) Throw(DISP_E_BADINDEX, L"There is no bookmark at that index");
                *bookmark = MakeHostBookmark(*session_, children[static_cast<size_t>(index)]).Detach();
            },
            index);
    }

    STDMETHODIMP get__NewEnum(IUnknown** enumerator) override {
        return Call(LateBound::BookmarkNewEnum, [&] {
            Put(enumerator, static_cast<IUnknown*>(nullptr));
            std::vector<_variant_t> items;
            for (const BookmarkId child : Here().children)
                items.emplace_back(MakeHostBookmark(*session_, child).Get());
            using Items = Enumerator<IEnumVARIANT, VARIANT, _variant_t, CopyVariant>;
            *enumerator = static_cast<IEnumVARIANT*>(MakeObject<Items>(std::move(items)).Detach());
        });
    }

    STDMETHODIMP get_Title(BSTR* title) override {
        return Call(LateBound::BookmarkTitle, [&] {
            Put(title, static_cast<BSTR>(nullptr));
            *title = MakeText(Here().title);
        });
    }

    STDMETHODIMP put_Title(BSTR title) override {
        return Edit([&] { Editable().title = TextView(title); }, title);
    }

    STDMETHODIMP Activate() override {
        return Call(LateBound::BookmarkActivate, [&] {
            const int32_t page = Pages().NumberOf(Here().page);
            if (page != 0) session_->model.SetCurrentPage(page);
            session_->Settle();
        });
    }

    STDMETHODIMP get_Page(long* page) override {
        return Call(LateBound::BookmarkTitle,
                    [&] { Put(page, static_cast<long>(Pages().NumberOf(Here().page))); });
    }

    STDMETHODIMP put_Page(long page) override {
        return Edit([&] { Editable().page = page == 0 ? 0 : Pages().At(page).id; }, page);
    }

    STDMETHODIMP get_Open(long* open) override {
        return Call(LateBound::BookmarkTitle, [&] { Put(open, Here().open ? 1L : 0L); });
    }

    STDMETHODIMP put_Open(long open) override {
        return Edit([&] { Editable().open = open != 0; }, open);
    }

    STDMETHODIMP InsertBefore(BSTR title, IDispatch** bookmark) override {
        return Edit(
            [&] {
                Put(bookmark, static_cast<IDispatch*>(nullptr));
                const BookmarkId parent = Editable().parent;
                Add(parent, TheOutline().PositionOf(id_), title, bookmark);
            },
            title);
    }

    STDMETHODIMP AppendChild(BSTR title, IDispatch** bookmark) override {
        return Edit(
            [&] {
                Put(bookmark, static_cast<IDispatch*>(nullptr));
                Here();
                Add(id_, -1, title, bookmark);
            },
            title);
    }

    STDMETHODIMP Remove() override {
        return Edit([&] {
            Here();
            TheOutline().Remove(id_);
        });
    }

    STDMETHODIMP MoveTo(IDispatch* parent, long index) override {
        return Edit(
            [&] {
                RequirePointer(parent);
                ComPtr<HostBookmark> target;
                const HRESULT known =
                    parent->QueryInterface(ownId, reinterpret_cast<void**>(target.GetAddressOf()));
                if (FAILED(known) || target->session_ != session_)
                    Throw(E_INVALIDARG, L"That is no bookmark of ours");
                Editable();
                target->Here();
                TheOutline().Move(id_, target->id_, index);
            },
            index);
    }

  private:
    /// Under this id a bookmark gives itself.
    static constexpr GUID ownId = {
        0x6a3c2c0e, 0x9a55, 0x4c0c, {0x8b, 0x43, 0x0f, 0x6e, 0x6b, 0x5d, 0x3a, 0x1f}};

    template <class Body, class... Arguments>
    HRESULT Call(LateBound member, Body&& body, const Arguments&... arguments) {
        return session_->Call(member, IID_IHostBookmark, body, arguments...);
    }

    /// A change of the outline.
    template <class Body, class... Arguments>
    HRESULT Edit(Body&& body, const Arguments&... arguments) {
        return Call(
            LateBound::BookmarkEdit,
            [&] {
                body();
                session_->model.NoteOutlineChange();
                session_->Settle();
            },
            arguments...);
    }

    template <class Slot>
    static void Put(Slot* slot, Slot value) {
        RequirePointer(slot);
        *slot = value;
    }

    Outline& TheOutline() { return session_->model.Doc().outline; }
    const PageList& Pages() const { return session_->model.Doc().pages; }

    Bookmark& Here() {
        Bookmark* bookmark = generation_ == session_->model.Generation() ? TheOutline().Find(id_) : nullptr;
        if (!bookmark) throw AccessError(AccessFailure::NoSuchObject, "The bookmark is no longer there");
        return *bookmark;
    }

    /// The root has no title and no place.
    Bookmark& Editable() {
        if (id_ == Outline::root)
            throw AccessError(AccessFailure::NotAllowed, "The root of the outline is fixed");
        return Here();
    }

    void Add(BookmarkId parent, int32_t position, BSTR title, IDispatch** bookmark) {
        const BookmarkId added = TheOutline().Add(parent, position, std::wstring(TextView(title)));
        *bookmark = MakeHostBookmark(*session_, added).Detach();
    }

    std::shared_ptr<HostSession> session_;
    uint32_t generation_;
    BookmarkId id_;
};

}  // namespace

ComPtr<IDispatch> MakeHostBookmark(HostSession& session, BookmarkId id) {
    return MakeAutomationObject<IHostBookmark, HostBookmark>(session, id);
}

}  // namespace qz::sample
