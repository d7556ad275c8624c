// Reading and writing the named attributes of a document's objects.
#pragma once

#include "sample/document/document.h"
#include "sample/document/object_path.h"

namespace qz::sample {

/// What names an object as long as it lives, wherever it moves.
struct ObjectKey {
    enum class Kind { Page, Object };
    Kind kind = Kind::Object;
    uint32_t id = 0;  // a PageId or an ObjectId
    bool operator==(const ObjectKey&) const = default;
};

/// Empty when the document holds no such object.
std::optional<ObjectKey> Resolve(const Document& document, const ObjectPath& path);
bool Exists(const Document& document, ObjectKey key);

/// The functions below throw AccessError: NoSuchObject when the object is gone, NoSuchAttribute, ReadOnly,
/// BadValue.

/// The path under which the object is found now.
std::wstring PathOf(const Document& document, ObjectKey key);
std::wstring NameOf(const Document& document, ObjectKey key);
int32_t TypeOf(const Document& document, ObjectKey key);

/// What is told of each attribute, in their order.
std::vector<DescriptionPointer> DescribeAttributes(const Document& document, ObjectKey key);

Value ReadAttribute(const Document& document, ObjectKey key, std::wstring_view name);

/// Writes a value, converted to the attribute's type, and returns the change flags that this calls for: none
/// when the value was the same.
uint32_t WriteAttribute(Document& document, ObjectKey key, std::wstring_view name, const Value& value);

/// Throws as WriteAttribute would, and writes nothing.
void CheckWritable(const Document& document, ObjectKey key, std::wstring_view name, const Value& value);

/// Like WriteAttribute, but an attribute that the object lacks is added.
uint32_t ApplySetting(Document& document, ObjectKey key, std::wstring_view name, const Value& value);

/// Makes known a further attribute of an object.
void AddAttribute(DocumentObject& object, AttributeDescription description, const Value& value);

}  // namespace qz::sample
