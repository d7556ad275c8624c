// The document that the reference host edits: plain data with the operations that keep it consistent.
#pragma once

#include "host/change_flags.h"
#include "sample/document/object_store.h"
#include "sample/document/outline.h"
#include "sample/document/page_list.h"

#include <string>
#include <unordered_map>

namespace qz::sample {

class Document {
  public:
    Document();

    PageList pages;
    Outline outline;
    ObjectStore objects;
    std::vector<ObjectId> configurations;  // of layers, the default one first
    std::vector<ObjectId> fonts;
    NumberList pageSequence;   // the pages that a save takes, in this order; empty: all
    NumberList printSequence;  // likewise for printing

    /// The objects "Document", "DocInfo" and "Pages".
    ObjectId Settings() const { return settings_; }
    ObjectId Information() const { return information_; }
    ObjectId PageCollection() const { return pageCollection_; }

    const std::vector<ObjectId>& Layers() const { return layers_; }
    /// A new layer; the one that has the name already is returned as it is.
    DocumentObject& AddLayer(const std::wstring& name);
    /// 0 when there is none.
    ObjectId FindLayer(std::wstring_view name) const;

    /// Every field of the form, in page order.
    std::vector<ObjectId> FormFields() const;

  private:
    std::vector<ObjectId> layers_;
    std::unordered_map<std::wstring, ObjectId> layersByName_;
    ObjectId settings_;
    ObjectId information_;
    ObjectId pageCollection_;
};

/// A document of `count` empty pages of one size.
Document MakeDocument(int32_t count, int32_t width, int32_t height);

/// Appends empty pages. Throws AccessError (BadValue) for a negative count or more than a million pages in
/// all.
void AddPages(Document& document, int32_t count, int32_t width, int32_t height);

/// Removes a page with its objects. Throws AccessError: BadValue for a wrong number, NotAllowed for the last
/// page.
void RemovePage(Document& document, int32_t number);

/// Appends the pages of another document (never of itself) with their objects; its layers, configurations and
/// fonts are taken over where they are new.
void AppendPages(Document& document, const Document& from);

/// Encrypts, or with level 0 removes the protection. Throws AccessError (NotAllowed) when the document was
/// opened without the owner's rights.
void SetSecurity(Document& document, int16_t level, const std::wstring& owner, const std::wstring& user,
                 int32_t permissions);

}  // namespace qz::sample
