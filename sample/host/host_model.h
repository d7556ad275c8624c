// The state of a host: its document, what is selected, what the view shows, and what has changed. Pure; the
// automation object over it turns calls into these and raises the events that are due.
#pragma once

#include "sample/document/object_access.h"
#include "sample/host/change_tracker.h"

#include <unordered_set>
#include <vector>

namespace qz::sample {

/// Members throw AccessError where a number, an object or a value does not suit; nothing has changed then.
class HostModel {
  public:
    const Document& Doc() const { return document_; }
    /// For changes that have no member of their own; the caller notes them.
    Document& Doc() { return document_; }

    ChangeTracker changes;

    const ViewState& View() const { return view_; }
    void SetMode(int32_t mode) { view_.mode = mode; }
    /// Clamped to 10..1000 percent.
    void SetZoom(int32_t percent);
    void SetCurrentPage(int32_t number);
    /// The current page; throws when the document has none.
    const Page& CurrentPage() const { return document_.pages.At(view_.currentPage); }

    /// Puts another document in place of this one. Keys of the old one are void: their generation is past.
    void Replace(Document document);
    uint32_t Generation() const { return generation_; }

    void AppendEmptyPages(int32_t count, int32_t width, int32_t height);
    void AppendPagesOf(const Document& other);
    void DeletePage(int32_t number);
    void MovePages(int32_t first, int32_t count, int32_t target);

    void Write(ObjectKey key, std::wstring_view attribute, const Value& value);
    void Apply(ObjectKey key, std::wstring_view attribute, const Value& value);
    /// Encrypts the document, or with level 0 takes the protection away.
    void Protect(int16_t level, const std::wstring& owner, const std::wstring& user, int32_t permissions);
    static constexpr int32_t everythingPermitted = -4;

    /// A new layer at the end of the default configuration's order, which the first layer brings about.
    void AddLayer(const std::wstring& name, const std::wstring& displayName, bool visible);

    /// A new object on the current page, or a new action, which stands on no page.
    ObjectKey CreateObject(int32_t type, std::wstring name);

    /// Takes an object off its page, or an action out of the document; anything else throws.
    void RemoveObject(ObjectKey key);
    void AddAttribute(ObjectKey key, AttributeDescription description, const Value& value);

    /// Selected objects, in the order they were selected; those that are gone are left out.
    std::vector<ObjectKey> Selection() const;
    void Select(ObjectKey key, bool keepOthers);
    void SelectNothing();
    void SelectAllOfCurrentPage();
    /// On every selected object or, when one of them refuses it, on none.
    void WriteSelection(std::wstring_view attribute, const Value& value);

    bool DrawsAtOnce(ObjectKey key) const { return drawingAtOnce_.contains(Mark(key)); }
    void SetDrawsAtOnce(ObjectKey key, bool on);

    /// Whether the document differs from what was loaded or saved last.
    bool Modified() const { return modified_; }
    void SetModified(bool modified) { modified_ = modified; }

    /// How often the outline has changed.
    int32_t OutlineState() const { return outlineState_; }
    void NoteOutlineChange();

  private:
    static uint64_t Mark(ObjectKey key) {
        return (static_cast<uint64_t>(key.kind == ObjectKey::Kind::Page) << 32) | key.id;
    }
    /// Keeps the current page the same page where it moved, and a valid number where it is gone.
    void FollowCurrentPage(PageId before);
    PageId CurrentPageId() const;
    void NoteContent(uint32_t flags);

    Document document_;
    ViewState view_;
    std::vector<ObjectKey> selection_;
    std::unordered_set<uint64_t> drawingAtOnce_;
    uint32_t generation_ = 0;
    int32_t outlineState_ = 0;
    bool modified_ = false;
};

}  // namespace qz::sample
