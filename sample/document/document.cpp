#include "sample/document/document.h"

#include "host/object_path.h"

#include <algorithm>
#include <set>

namespace qz::sample {

namespace {

constexpr int32_t mostPages = 1'000'000;

std::wstring FontNameOf(const Document& document, ObjectId font) {
    const DocumentObject* object = document.objects.Find(font);
    return object ? object->name : std::wstring();
}

/// Adds copies of the objects of all pages; references among them are led to the copies.
void CopyObjects(Document& document, const Document& from, const std::unordered_map<PageId, PageId>& pages) {
    std::unordered_map<ObjectId, ObjectId> copies;
    for (const ObjectId id : from.objects.All()) {
        const DocumentObject& object = *from.objects.Find(id);
        const auto page = pages.find(object.page);
        if (page != pages.end() || IsAction(object.type)) {
            copies[id] = document.objects.AddCopy(object, page == pages.end() ? 0 : page->second).id;
        }
    }
    for (const auto& [original, copy] : copies) {
        for (Attribute& attribute : document.objects.Find(copy)->attributes) {
            auto* list = std::get_if<ObjectList>(&attribute.value);
            if (!list) continue;
            std::erase_if(list->ids, [&](ObjectId id) { return !copies.contains(id); });
            for (ObjectId& id : list->ids) id = copies[id];
        }
    }
}

void CopyFonts(Document& document, const Document& from) {
    std::set<std::wstring> known;
    for (const ObjectId font : document.fonts) known.insert(FontNameOf(document, font));
    for (const ObjectId font : from.fonts) {
        if (!known.insert(FontNameOf(from, font)).second) continue;
        document.fonts.push_back(document.objects.AddCopy(*from.objects.Find(font), 0).id);
    }
}

void CopyLayers(Document& document, const Document& from) {
    for (const ObjectId id : from.Layers()) {
        const DocumentObject& layer = *from.objects.Find(id);
        if (document.FindLayer(layer.name) != 0) continue;
        document.AddLayer(layer.name).attributes = layer.attributes;
    }
    if (!document.configurations.empty()) return;
    for (const ObjectId id : from.configurations) {
        document.configurations.push_back(document.objects.AddCopy(*from.objects.Find(id), 0).id);
    }
}

}  // namespace

Document::Document()
    : settings_(objects.Create(object_type::document, documentPath).id),
      information_(objects.Create(object_type::information, informationPath).id),
      pageCollection_(objects.Create(object_type::pageCollection, L"Pages").id) {}

DocumentObject& Document::AddLayer(const std::wstring& name) {
    if (const ObjectId known = FindLayer(name)) return *objects.Find(known);
    DocumentObject& layer = objects.Create(object_type::layer, name);
    layersByName_[name] = layer.id;
    layers_.push_back(layer.id);
    return layer;
}

ObjectId Document::FindLayer(std::wstring_view name) const {
    const auto found = layersByName_.find(std::wstring(name));
    return found == layersByName_.end() ? 0 : found->second;
}

std::vector<ObjectId> Document::FormFields() const {
    std::vector<ObjectId> fields;
    for (int32_t number = 1; number <= pages.Count(); ++number) {
        for (const ObjectId id : objects.OfPage(pages.At(number).id)) {
            if (IsFormField(objects.Find(id)->type)) fields.push_back(id);
        }
    }
    return fields;
}

Document MakeDocument(int32_t count, int32_t width, int32_t height) {
    Document document;
    AddPages(document, count, width, height);
    return document;
}

void AddPages(Document& document, int32_t count, int32_t width, int32_t height) {
    if (count < 0 || count > mostPages - document.pages.Count()) {
        throw AccessError(AccessFailure::BadValue, "That is no possible number of pages");
    }
    Page page;
    page.width = width;
    page.height = height;
    page.landscape = width > height;
    for (int32_t i = 0; i < count; ++i) document.pages.Append(page);
    document.pageSequence.clear();
    document.printSequence.clear();
}

void RemovePage(Document& document, int32_t number) {
    const PageId page = document.pages.At(number).id;
    if (document.pages.Count() == 1) {
        throw AccessError(AccessFailure::NotAllowed, "The last page of a document cannot be deleted");
    }
    document.objects.RemoveOfPage(page);
    document.pages.Remove(number);
    document.pageSequence.clear();
    document.printSequence.clear();
}

void AppendPages(Document& document, const Document& from) {
    std::unordered_map<PageId, PageId> pages;
    for (int32_t number = 1; number <= from.pages.Count(); ++number) {
        const Page& page = from.pages.At(number);
        pages[page.id] = document.pages.Append(page);
    }
    CopyObjects(document, from, pages);
    CopyFonts(document, from);
    CopyLayers(document, from);
    document.pageSequence.clear();
    document.printSequence.clear();
}

void SetSecurity(Document& document, int16_t level, const std::wstring& owner, const std::wstring& user,
                 int32_t permissions) {
    DocumentObject& settings = *document.objects.Find(document.Settings());
    if (!ToBoolean(settings.Find(L"OwnerAccess")->value)) {
        throw AccessError(AccessFailure::NotAllowed, "The document was not opened with the owner password");
    }
    settings.Find(L"Security")->value = level;
    settings.Find(L"OwnerPassword")->value = owner;
    settings.Find(L"UserPassword")->value = user;
    settings.Find(L"Permissions")->value = permissions;
}

}  // namespace qz::sample
