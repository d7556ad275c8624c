#include "sample/document/object_access.h"

#include "host/object_path.h"
#include "sample/document/document_attributes.h"
#include "sample/document/page_attributes.h"
#include "sample/document/text.h"

#include <algorithm>
#include <utility>

namespace qz::sample {

namespace {

constexpr std::wstring_view placeAttributes[] = {L"Left", L"Top", L"Right", L"Bottom", L"Visible"};
// Switches of the moment, which nobody is told of.
constexpr std::wstring_view quietSettings[] = {L"AlwaysConfirmAttributeChanges", L"GetPagePtrNoReadContents"};

[[noreturn]] void NoObject() {
    throw AccessError(AccessFailure::NoSuchObject, "The object is no longer there");
}

const DocumentObject& RequireObject(const Document& document, ObjectId id) {
    const DocumentObject* object = document.objects.Find(id);
    if (!object) NoObject();
    return *object;
}

const Page& RequirePage(const Document& document, PageId id) {
    const int32_t number = document.pages.NumberOf(id);
    if (number == 0) NoObject();
    return document.pages.At(number);
}

const Attribute& RequireAttribute(const DocumentObject& object, std::wstring_view name) {
    if (const Attribute* attribute = object.Find(name)) return *attribute;
    throw AccessError(AccessFailure::NoSuchAttribute, "The object has no attribute of that name");
}

const Attribute& RequireWritable(const DocumentObject& object, std::wstring_view name) {
    const Attribute& attribute = RequireAttribute(object, name);
    if (!(attribute.description->flags & attribute_flag::readOnly)) return attribute;
    throw AccessError(AccessFailure::ReadOnly, "The attribute can only be read");
}

std::optional<ObjectKey> ObjectOrNothing(ObjectId id) {
    return id != 0 ? std::optional(ObjectKey{ObjectKey::Kind::Object, id}) : std::nullopt;
}

std::optional<ObjectKey> Element(const std::vector<ObjectId>& list, int32_t number) {
    const bool there = number >= 1 && static_cast<size_t>(number) <= list.size();
    return there ? ObjectOrNothing(list[static_cast<size_t>(number) - 1]) : std::nullopt;
}

/// "Fonts[2]" for the second element of the list.
std::wstring ElementPath(std::wstring_view word, const std::vector<ObjectId>& list, ObjectId id) {
    const auto position = std::ranges::find(list, id) - list.begin();
    return std::wstring(word) + L"[" + std::to_wstring(position + 1) + L"]";
}

uint32_t ChangeOfWriting(const DocumentObject& object, std::wstring_view name) {
    switch (object.type) {
        case object_type::layer:
            return name == L"CurrentViewState" ? change::layers : change::attribute;
        case object_type::document:
            return std::ranges::find(quietSettings, name) != std::end(quietSettings)
                       ? change::none
                       : change::documentSettings;
        case object_type::layerConfiguration:
        case object_type::font:
        case object_type::information:
        case object_type::pageCollection:
            return change::documentSettings;
        default: {
            const bool place = std::ranges::find(placeAttributes, name) != std::end(placeAttributes);
            return place ? change::attribute | change::objects : change::attribute;
        }
    }
}

uint32_t WriteObject(Document& document, ObjectId id, std::wstring_view name, const Value& value) {
    const DocumentObject& object = RequireObject(document, id);
    const Attribute& attribute = RequireWritable(object, name);
    Value coerced = Coerced(value, attribute.description->type);
    if (attribute.value == coerced) return change::none;
    const uint32_t flags = ChangeOfWriting(object, name);
    if (name == L"Name") {
        document.objects.Rename(id, std::get<std::wstring>(coerced));
    } else {
        document.objects.Find(id)->Find(name)->value = std::move(coerced);
    }
    return flags;
}

uint32_t TypeFor(const Value& value) {
    if (std::holds_alternative<bool>(value)) return type_code::boolean;
    if (std::holds_alternative<int32_t>(value) || std::holds_alternative<int16_t>(value))
        return type_code::int32;
    if (std::holds_alternative<float>(value) || std::holds_alternative<double>(value)) return type_code::real;
    if (std::holds_alternative<NumberList>(value)) return type_code::longList;
    return std::holds_alternative<ObjectList>(value) ? type_code::objects : type_code::text;
}

}  // namespace

std::optional<ObjectKey> Resolve(const Document& document, const ObjectPath& path) {
    switch (path.kind) {
        case PathKind::Document:
            return ObjectOrNothing(document.Settings());
        case PathKind::Information:
            return ObjectOrNothing(document.Information());
        case PathKind::Pages:
            return ObjectOrNothing(document.PageCollection());
        case PathKind::Page:
            if (!document.pages.Holds(path.number)) return std::nullopt;
            return ObjectKey{ObjectKey::Kind::Page, document.pages.At(path.number).id};
        case PathKind::Layer:
            return ObjectOrNothing(document.FindLayer(path.name));
        case PathKind::Configuration:
            return Element(document.configurations, path.number);
        case PathKind::Font:
            return Element(document.fonts, path.number);
        case PathKind::Object:
            return ObjectOrNothing(document.objects.FindByName(path.name));
        case PathKind::ObjectById: {
            const auto id = static_cast<ObjectId>(path.number);
            return document.objects.Find(id) ? ObjectOrNothing(id) : std::nullopt;
        }
    }
    return std::nullopt;
}

bool Exists(const Document& document, ObjectKey key) {
    if (key.kind == ObjectKey::Kind::Page) return document.pages.NumberOf(key.id) != 0;
    return document.objects.Find(key.id) != nullptr;
}

std::wstring PathOf(const Document& document, ObjectKey key) {
    if (key.kind == ObjectKey::Kind::Page) {
        const int32_t number = document.pages.NumberOf(key.id);
        if (number == 0) NoObject();
        return std::wstring(std::wstring_view(PagePath(number)));
    }
    const DocumentObject& object = RequireObject(document, key.id);
    switch (object.type) {
        case object_type::document:
        case object_type::information:
        case object_type::pageCollection:
            return object.name;
        case object_type::layer:
            return LayerPath(object.name);
        case object_type::layerConfiguration:
            return ElementPath(L"LayerConfigs", document.configurations, key.id);
        case object_type::font:
            return ElementPath(L"Fonts", document.fonts, key.id);
        default:
            break;
    }
    if (object.name.empty()) return L"Objects[#" + std::to_wstring(key.id) + L"]";
    return L"Objects[" + object.name + L"]";
}

std::wstring NameOf(const Document& document, ObjectKey key) {
    if (key.kind == ObjectKey::Kind::Object) return RequireObject(document, key.id).name;
    return L"Page " + std::to_wstring(document.pages.NumberOf(RequirePage(document, key.id).id));
}

int32_t TypeOf(const Document& document, ObjectKey key) {
    if (key.kind == ObjectKey::Kind::Page) return object_type::page;
    return RequireObject(document, key.id).type;
}

std::vector<DescriptionPointer> DescribeAttributes(const Document& document, ObjectKey key) {
    if (key.kind == ObjectKey::Kind::Page) return PageAttributes();
    const DocumentObject& object = RequireObject(document, key.id);
    std::vector<DescriptionPointer> descriptions;
    for (const Attribute& attribute : object.attributes) descriptions.push_back(attribute.description);
    if (object.type == object_type::document) {
        const auto& computed = ComputedDocumentAttributes();
        descriptions.insert(descriptions.end(), computed.begin(), computed.end());
    }
    return descriptions;
}

Value ReadAttribute(const Document& document, ObjectKey key, std::wstring_view name) {
    if (key.kind == ObjectKey::Kind::Page)
        return ReadPageAttribute(document, RequirePage(document, key.id), name);
    const DocumentObject& object = RequireObject(document, key.id);
    if (object.type == object_type::document && IsComputedDocumentAttribute(name)) {
        return ReadDocumentAttribute(document, name);
    }
    return RequireAttribute(object, name).value;
}

uint32_t WriteAttribute(Document& document, ObjectKey key, std::wstring_view name, const Value& value) {
    if (key.kind == ObjectKey::Kind::Page) {
        return WritePageAttribute(
            document.pages.At(document.pages.NumberOf(RequirePage(document, key.id).id)), name, value);
    }
    if (key.id == document.Settings() && IsComputedDocumentAttribute(name)) {
        return WriteDocumentAttribute(document, name, value);
    }
    return WriteObject(document, key.id, name, value);
}

void CheckWritable(const Document& document, ObjectKey key, std::wstring_view name, const Value& value) {
    if (key.kind == ObjectKey::Kind::Page) return CheckPageAttribute(name, value);
    const Attribute& attribute = RequireWritable(RequireObject(document, key.id), name);
    static_cast<void>(Coerced(value, attribute.description->type));
}

uint32_t ApplySetting(Document& document, ObjectKey key, std::wstring_view name, const Value& value) {
    const std::vector<DescriptionPointer> known = DescribeAttributes(document, key);
    const bool there = std::ranges::any_of(known, [&](const auto& d) { return d->name == name; });
    if (there || key.kind == ObjectKey::Kind::Page) return WriteAttribute(document, key, name, value);
    AddAttribute(*document.objects.Find(key.id), {std::wstring(name), 'A', 0, TypeFor(value), L"", L"", L""},
                 value);
    return change::documentSettings;
}

void AddAttribute(DocumentObject& object, AttributeDescription description, const Value& value) {
    Value coerced = Coerced(value, description.type);
    object.attributes.push_back(
        {std::make_shared<const AttributeDescription>(std::move(description)), std::move(coerced)});
}

}  // namespace qz::sample
