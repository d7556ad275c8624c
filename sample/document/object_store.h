// The objects of a document: what stands on pages, actions, layers, configurations, fonts.
#pragma once

#include "sample/document/object_templates.h"

#include <unordered_map>

namespace qz::sample {

struct DocumentObject {
    ObjectId id = 0;
    int32_t type = 0;
    PageId page = 0;  // 0: on no page
    std::wstring name;
    std::vector<Attribute> attributes;

    const Attribute* Find(std::wstring_view attribute) const;
    Attribute* Find(std::wstring_view attribute);
};

/// Owns the objects; ids are never used twice.
class ObjectStore {
  public:
    /// A new object with the attributes of its type. A name that another object of the store has gets a
    /// number.
    DocumentObject& Create(int32_t type, std::wstring name, PageId page = 0);

    /// Adds a copy of an object (of another store) under a new id.
    DocumentObject& AddCopy(const DocumentObject& object, PageId page);

    /// Gives an object (of a page, or an action) another name; one that is taken gets a number.
    void Rename(ObjectId id, std::wstring name);

    void Remove(ObjectId id);
    void RemoveOfPage(PageId page);

    DocumentObject* Find(ObjectId id);
    const DocumentObject* Find(ObjectId id) const;

    /// The objects on pages and the actions with that name; the first made wins. 0 when there is none.
    ObjectId FindByName(std::wstring_view name) const;

    /// The objects of a page, in the order they were made.
    std::vector<ObjectId> OfPage(PageId page) const;

    /// All objects, in the order they were made.
    const std::vector<ObjectId>& All() const { return order_; }

  private:
    DocumentObject& Insert(DocumentObject object);
    std::wstring FreeName(std::wstring name) const;
    void ForgetName(const DocumentObject& object);

    std::unordered_map<ObjectId, DocumentObject> objects_;
    std::unordered_map<std::wstring, ObjectId> byName_;
    std::unordered_map<PageId, std::vector<ObjectId>> byPage_;
    std::vector<ObjectId> order_;
    ObjectId lastId_ = 0;
};

}  // namespace qz::sample
