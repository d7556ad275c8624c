#include "sample/host/host_model.h"

#include <algorithm>

namespace qz::sample {

namespace {

/// Of a document that takes the place of another.
constexpr uint32_t newDocument = change::mode | change::selection | change::currentPage | change::view |
                                 change::pages | change::pageSize | change::documentSettings |
                                 change::layers | change::outline;

}  // namespace

void HostModel::SetZoom(int32_t percent) { view_.zoom = std::clamp(percent, 10, 1000); }

void HostModel::SetCurrentPage(int32_t number) {
    static_cast<void>(document_.pages.At(number));
    view_.currentPage = number;
}

void HostModel::Replace(Document document) {
    document_ = std::move(document);
    ++generation_;
    ++outlineState_;
    selection_.clear();
    drawingAtOnce_.clear();
    modified_ = false;
    view_.currentPage = document_.pages.Count() > 0 ? 1 : 0;
    changes.Note(newDocument);
}

void HostModel::NoteContent(uint32_t flags) {
    changes.Note(flags);
    modified_ = modified_ || flags != change::none;
}

PageId HostModel::CurrentPageId() const {
    return document_.pages.Holds(view_.currentPage) ? CurrentPage().id : 0;
}

void HostModel::FollowCurrentPage(PageId before) {
    const int32_t number = before == 0 ? 0 : document_.pages.NumberOf(before);
    view_.currentPage =
        number != 0 ? number : std::min(std::max(view_.currentPage, 1), document_.pages.Count());
}

void HostModel::AppendEmptyPages(int32_t count, int32_t width, int32_t height) {
    const PageId current = CurrentPageId();
    AddPages(document_, count, width, height);
    FollowCurrentPage(current);
    if (count > 0) NoteContent(change::pages);
}

void HostModel::AppendPagesOf(const Document& other) {
    const PageId current = CurrentPageId();
    AppendPages(document_, other);
    FollowCurrentPage(current);
    if (other.pages.Count() > 0) NoteContent(change::pages);
}

void HostModel::DeletePage(int32_t number) {
    const size_t selected = Selection().size();
    RemovePage(document_, number);
    // Without a search for the page: thousands are deleted in a row.
    if (number < view_.currentPage) --view_.currentPage;
    view_.currentPage = std::clamp(view_.currentPage, 1, document_.pages.Count());
    NoteContent(Selection().size() == selected ? change::pages : change::pages | change::selection);
    selection_ = Selection();
}

void HostModel::MovePages(int32_t first, int32_t count, int32_t target) {
    const PageId current = CurrentPageId();
    if (!document_.pages.Move(first, count, target)) return;
    FollowCurrentPage(current);
    document_.pageSequence.clear();
    document_.printSequence.clear();
    NoteContent(change::pages);
}

void HostModel::Write(ObjectKey key, std::wstring_view attribute, const Value& value) {
    NoteContent(WriteAttribute(document_, key, attribute, value));
}

void HostModel::Apply(ObjectKey key, std::wstring_view attribute, const Value& value) {
    NoteContent(ApplySetting(document_, key, attribute, value));
}

void HostModel::Protect(int16_t level, const std::wstring& owner, const std::wstring& user,
                        int32_t permissions) {
    SetSecurity(document_, level, owner, user, permissions);
    NoteContent(change::documentSettings);
}

void HostModel::AddLayer(const std::wstring& name, const std::wstring& displayName, bool visible) {
    const bool isNew = document_.FindLayer(name) == 0;
    DocumentObject& layer = document_.AddLayer(name);
    layer.Find(L"DisplayName")->value = displayName;
    layer.Find(L"CurrentViewState")->value = std::wstring(visible ? L"ON" : L"OFF");
    std::vector<ObjectId>& configurations = document_.configurations;
    if (configurations.empty()) {
        configurations.push_back(document_.objects.Create(object_type::layerConfiguration, L"Default").id);
    }
    Value& order = document_.objects.Find(configurations.front())->Find(L"ConfigOrder")->value;
    if (isNew) order = ToText(order) + L"(" + name + L")";
    NoteContent(change::layers);
}

ObjectKey HostModel::CreateObject(int32_t type, std::wstring name) {
    const bool known = type > 0 && type < object_type::pageCollection && type != object_type::document &&
                       type != object_type::page;
    if (!known) throw AccessError(AccessFailure::BadValue, "Objects of that type cannot be made");
    const PageId page = IsAction(type) ? 0 : CurrentPage().id;
    const DocumentObject& object = document_.objects.Create(type, std::move(name), page);
    NoteContent(change::objects);
    return {ObjectKey::Kind::Object, object.id};
}

void HostModel::RemoveObject(ObjectKey key) {
    const DocumentObject* const object =
        key.kind == ObjectKey::Kind::Object ? document_.objects.Find(key.id) : nullptr;
    if (!object || (object->page == 0 && !IsAction(object->type))) {
        throw AccessError(AccessFailure::NotAllowed, "Only objects on pages and actions can be removed");
    }
    const size_t selected = Selection().size();
    document_.objects.Remove(key.id);
    NoteContent(Selection().size() == selected ? change::objects : change::objects | change::selection);
}

void HostModel::AddAttribute(ObjectKey key, AttributeDescription description, const Value& value) {
    DocumentObject* const object =
        key.kind == ObjectKey::Kind::Object ? document_.objects.Find(key.id) : nullptr;
    if (!object) throw AccessError(AccessFailure::NotAllowed, "Pages take no further attributes");
    sample::AddAttribute(*object, std::move(description), value);
}

std::vector<ObjectKey> HostModel::Selection() const {
    std::vector<ObjectKey> alive = selection_;
    std::erase_if(alive, [this](ObjectKey key) { return !Exists(document_, key); });
    return alive;
}

void HostModel::Select(ObjectKey key, bool keepOthers) {
    std::vector<ObjectKey> wanted = keepOthers ? Selection() : std::vector<ObjectKey>();
    if (std::ranges::find(wanted, key) == wanted.end()) wanted.push_back(key);
    if (wanted != selection_) changes.Note(change::selection);
    selection_ = std::move(wanted);
}

void HostModel::SelectNothing() {
    if (!selection_.empty()) changes.Note(change::selection);
    selection_.clear();
}

void HostModel::SelectAllOfCurrentPage() {
    std::vector<ObjectKey> all;
    for (const ObjectId id : document_.objects.OfPage(CurrentPage().id)) {
        all.push_back({ObjectKey::Kind::Object, id});
    }
    if (all != selection_) changes.Note(change::selection);
    selection_ = std::move(all);
}

void HostModel::WriteSelection(std::wstring_view attribute, const Value& value) {
    const std::vector<ObjectKey> selected = Selection();
    for (const ObjectKey key : selected) CheckWritable(document_, key, attribute, value);
    for (const ObjectKey key : selected) Write(key, attribute, value);
}

void HostModel::SetDrawsAtOnce(ObjectKey key, bool on) {
    if (on) {
        drawingAtOnce_.insert(Mark(key));
    } else {
        drawingAtOnce_.erase(Mark(key));
    }
}

void HostModel::NoteOutlineChange() {
    ++outlineState_;
    NoteContent(change::outline);
}

}  // namespace qz::sample
