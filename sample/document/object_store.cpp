#include "sample/document/object_store.h"

#include <algorithm>
#include <utility>

namespace qz::sample {

const Attribute* DocumentObject::Find(std::wstring_view attribute) const {
    const auto found = std::ranges::find_if(
        attributes, [&](const Attribute& a) { return a.description->name == attribute; });
    return found == attributes.end() ? nullptr : &*found;
}

Attribute* DocumentObject::Find(std::wstring_view attribute) {
    return const_cast<Attribute*>(std::as_const(*this).Find(attribute));
}

std::wstring ObjectStore::FreeName(std::wstring name) const {
    if (name.empty() || !byName_.contains(name)) return name;
    for (int number = 2;; ++number) {
        std::wstring numbered = name + L" " + std::to_wstring(number);
        if (!byName_.contains(numbered)) return numbered;
    }
}

DocumentObject& ObjectStore::Insert(DocumentObject object) {
    object.id = ++lastId_;
    // Layers, fonts and the like are found by lists of their own and may share names with objects on pages.
    const bool named = object.type < object_type::pageCollection;
    if (named) object.name = FreeName(std::move(object.name));
    if (Attribute* name = object.Find(L"Name")) name->value = object.name;
    if (named && !object.name.empty()) byName_[object.name] = object.id;
    if (object.page != 0) byPage_[object.page].push_back(object.id);
    order_.push_back(object.id);
    return objects_[object.id] = std::move(object);
}

DocumentObject& ObjectStore::Create(int32_t type, std::wstring name, PageId page) {
    return Insert({0, type, page, std::move(name), AttributesOfType(type)});
}

DocumentObject& ObjectStore::AddCopy(const DocumentObject& object, PageId page) {
    DocumentObject copy = object;
    copy.page = page;
    return Insert(std::move(copy));
}

void ObjectStore::ForgetName(const DocumentObject& object) {
    const auto named = byName_.find(object.name);
    if (named != byName_.end() && named->second == object.id) byName_.erase(named);
}

void ObjectStore::Rename(ObjectId id, std::wstring name) {
    DocumentObject* object = Find(id);
    if (!object || object->name == name) return;
    ForgetName(*object);
    object->name = FreeName(std::move(name));
    if (!object->name.empty()) byName_[object->name] = id;
    if (Attribute* attribute = object->Find(L"Name")) attribute->value = object->name;
}

void ObjectStore::Remove(ObjectId id) {
    const auto found = objects_.find(id);
    if (found == objects_.end()) return;
    const DocumentObject& object = found->second;
    ForgetName(object);
    if (object.page != 0) std::erase(byPage_[object.page], id);
    std::erase(order_, id);
    objects_.erase(found);
}

void ObjectStore::RemoveOfPage(PageId page) {
    for (const ObjectId id : OfPage(page)) Remove(id);
    byPage_.erase(page);
}

DocumentObject* ObjectStore::Find(ObjectId id) {
    const auto found = objects_.find(id);
    return found == objects_.end() ? nullptr : &found->second;
}

const DocumentObject* ObjectStore::Find(ObjectId id) const {
    return const_cast<ObjectStore*>(this)->Find(id);
}

ObjectId ObjectStore::FindByName(std::wstring_view name) const {
    const auto found = byName_.find(std::wstring(name));
    return found == byName_.end() ? 0 : found->second;
}

std::vector<ObjectId> ObjectStore::OfPage(PageId page) const {
    const auto found = byPage_.find(page);
    return found == byPage_.end() ? std::vector<ObjectId>() : found->second;
}

}  // namespace qz::sample
