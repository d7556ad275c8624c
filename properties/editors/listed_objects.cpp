#include "properties/editors/listed_objects.h"

#include "com/safe_array.h"
#include "host/attributes.h"
#include "res/strings.h"
#include "res/text_ids.h"

namespace qz {

namespace {

template <class Reading>
std::wstring TextOrNone(Reading&& reading) {
    std::wstring text;
    if (FAILED(Guard(IID_NULL, [&] { text = reading(); }))) text.clear();
    return text;
}

std::wstring NameOf(HostObjects& objects, IDispatch* object) {
    return TextOrNone([&] { return objects.Name(object); });
}

std::wstring TypeNameOf(HostObjects& objects, IDispatch* object) {
    return TextOrNone([&] {
        const long type = ToLong(objects.Attribute(object, L"ObjectType"));
        return HostObjectTypes().NameOf(static_cast<int>(type));
    });
}

/// Under the first text that is one.
template <class... Texts>
ListedObject ListUnder(HostObjects& objects, const ComPtr<IDispatch>& object, Texts&&... texts) {
    ListedObject listed{object, TextOrNone([&] { return objects.Path(object.Get()); }), {}};
    ((listed.label = listed.label.empty() ? texts() : listed.label), ...);
    if (listed.label.empty()) listed.label = listed.path;
    if (listed.label.empty()) listed.label = L"<no-name>";
    return listed;
}

}  // namespace

const ObjectTypeNames& HostObjectTypes() {
    static const ObjectTypeNames names(LoadText(Language::English, QZ_TEXT_OBJECT_TYPES));
    return names;
}

ListedObject ListAction(HostObjects& objects, const ComPtr<IDispatch>& action) {
    IDispatch* const object = action.Get();
    const auto description = [&] {
        return TextOrNone([&] { return ToText(objects.Attribute(object, L"Description")); });
    };
    return ListUnder(
        objects, action, description, [&] { return NameOf(objects, object); },
        [&] { return TypeNameOf(objects, object); });
}

ListedObject ListByName(HostObjects& objects, const ComPtr<IDispatch>& object) {
    return ListUnder(objects, object, [&] { return NameOf(objects, object.Get()); });
}

std::wstring NameAndType(HostObjects& objects, IDispatch* object) {
    const std::wstring name = NameOf(objects, object), type = TypeNameOf(objects, object);
    if (name.empty() || type.empty()) return name + type;
    return name + L" (" + type + L")";
}

std::vector<ComPtr<IDispatch>> ObjectsIn(const VARIANT& value) {
    std::vector<ComPtr<IDispatch>> objects;
    if (FAILED(Guard(IID_NULL, [&] { objects = ObjectsOf(value); }))) objects.clear();
    return objects;
}

_variant_t ToObjectArray(std::span<const ListedObject> list) {
    std::vector<ComPtr<IDispatch>> objects;
    for (const ListedObject& listed : list) objects.push_back(listed.object);
    VARIANT array{};
    array.parray = MakeObjectArray(objects).Detach();
    array.vt = VT_ARRAY | VT_DISPATCH;
    return {array, false};
}

}  // namespace qz
