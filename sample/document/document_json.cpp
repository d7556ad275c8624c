#include "sample/document/document_json.h"

#include "sample/document/document_file.h"
#include "sample/document/object_access.h"
#include "sample/document/text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <concepts>
#include <limits>
#include <utility>

namespace qz::sample {

namespace {

using Json = nlohmann::json;

/// What a value is compared with to see whether it need be saved.
const std::vector<Attribute>& FreshAttributes(int32_t type) {
    static std::unordered_map<int32_t, std::vector<Attribute>> fresh;
    const auto [found, isNew] = fresh.try_emplace(type);
    if (isNew) found->second = AttributesOfType(type);
    return found->second;
}

struct JsonOf {
    Json operator()(std::monostate) const { return nullptr; }
    Json operator()(const std::wstring& text) const { return ToUtf8(text); }
    Json operator()(const ObjectList& list) const { return {{"objects", list.ids}}; }
    template <class Other>
    Json operator()(const Other& other) const {
        return other;
    }
};

Json ToJson(const Value& value) { return std::visit(JsonOf{}, value); }

template <std::integral Integer, class Number>
bool Holds(Number number) {
    if constexpr (std::integral<Number>) {
        return std::in_range<Integer>(number);
    } else {
        // The smallest number beyond is a power of two, which floating point has exactly.
        const double beyond = std::ldexp(1.0, std::numeric_limits<Integer>::digits);
        return number < beyond && number > (std::signed_integral<Integer> ? -beyond - 1 : -1.0);
    }
}

/// A whole number. What the JSON library would cut to the size, or not define, is refused.
template <std::integral Integer>
Integer IntegerIn(const Json& json) {
    const bool fits = json.is_number_unsigned()  ? Holds<Integer>(json.get<std::uint64_t>())
                      : json.is_number_integer() ? Holds<Integer>(json.get<std::int64_t>())
                                                 : !json.is_number() || Holds<Integer>(json.get<double>());
    if (!fits) throw FormatError("The document holds a number that is too large");
    return json.get<Integer>();
}

/// The whole number of that name in an object.
template <std::integral Integer>
Integer IntegerIn(const Json& json, const char* key) {
    return IntegerIn<Integer>(json.at(key));
}

template <std::integral Integer>
Integer IntegerIn(const Json& json, const char* key, Integer usual) {
    if (!json.is_object()) throw FormatError("The document's header is damaged");
    const auto found = json.find(key);
    return found == json.end() ? usual : IntegerIn<Integer>(*found);
}

template <std::integral Integer>
std::vector<Integer> IntegersIn(const Json& json) {
    std::vector<Integer> integers;
    for (const Json& each : json) integers.push_back(IntegerIn<Integer>(each));
    return integers;
}

Value FromJson(const Json& json) {
    if (json.is_boolean()) return json.get<bool>();
    if (json.is_number()) return json.get<double>();
    if (json.is_string()) return FromUtf8(json.get_ref<const std::string&>());
    if (json.is_array()) return IntegersIn<std::int32_t>(json);
    if (json.is_object()) return ObjectList{IntegersIn<ObjectId>(json.at("objects"))};
    return {};
}

std::wstring Text(const Json& json, const char* key) { return FromUtf8(json.value(key, std::string())); }

// ---- writing

Json FurtherToJson(const Attribute& attribute) {
    const AttributeDescription& described = *attribute.description;
    return {{"name", ToUtf8(described.name)},
            {"category", described.category},
            {"flags", described.flags},
            {"type", described.type},
            {"description", ToUtf8(described.description)},
            {"value", ToJson(attribute.value)}};
}

Json ObjectToJson(const DocumentObject& object) {
    Json json = {{"id", object.id}, {"type", object.type}, {"name", ToUtf8(object.name)}};
    const std::vector<Attribute>& fresh = FreshAttributes(object.type);
    for (size_t i = 0; i < object.attributes.size(); ++i) {
        const Attribute& attribute = object.attributes[i];
        if (i >= fresh.size()) {
            json["further"].push_back(FurtherToJson(attribute));
        } else if (attribute.value != fresh[i].value) {
            json["values"][ToUtf8(attribute.description->name)] = ToJson(attribute.value);
        }
    }
    return json;
}

Json ListToJson(const Document& document, const std::vector<ObjectId>& ids) {
    Json json = Json::array();
    for (const ObjectId id : ids) json.push_back(ObjectToJson(*document.objects.Find(id)));
    return json;
}

Json PageToJson(const Page& page, int32_t picture) {
    Json json = {{"width", page.width}, {"height", page.height}, {"landscape", page.landscape}};
    if (picture >= 0) json["picture"] = picture;
    const auto add = [&json](const char* key, int32_t value, int32_t usual) {
        if (value != usual) json[key] = value;
    };
    add("paperBin", page.paperBin, 1);
    add("paperSize", page.paperSize, 0);
    add("topMargin", page.topMargin, 0);
    add("bottomMargin", page.bottomMargin, 0);
    add("leftMargin", page.leftMargin, 0);
    add("rightMargin", page.rightMargin, 0);
    return json;
}

Json ObjectsToJson(const Document& document, const std::vector<SavedPage>& pages) {
    Json json = Json::array();
    for (size_t i = 0; i < pages.size(); ++i) {
        for (const ObjectId id : document.objects.OfPage(document.pages.At(pages[i].number).id)) {
            json.push_back(ObjectToJson(*document.objects.Find(id)));
            json.back()["page"] = i + 1;
        }
    }
    for (const ObjectId id : document.objects.All()) {
        const DocumentObject& object = *document.objects.Find(id);
        if (object.page == 0 && IsAction(object.type)) json.push_back(ObjectToJson(object));
    }
    return json;
}

Json OutlineToJson(const Document& document) {
    std::unordered_map<PageId, int32_t> numbers;
    for (int32_t n = 1; n <= document.pages.Count(); ++n) numbers[document.pages.At(n).id] = n;
    Json json = Json::array();
    for (const auto& [level, id] : document.outline.InOrder()) {
        const Bookmark& bookmark = *document.outline.Find(id);
        const auto page = numbers.find(bookmark.page);
        json.push_back({{"level", level},
                        {"title", ToUtf8(bookmark.title)},
                        {"page", page == numbers.end() ? 0 : page->second},
                        {"open", bookmark.open}});
    }
    return json;
}

// ---- reading

class Reader {
  public:
    explicit Reader(const Json& json) : json_(json) {}

    LoadedHeader Read() {
        for (const Json& page : List("pages")) AddPage(page);
        for (const Json& picture : List("pictures")) {
            header_.pictures.push_back(
                {IntegerIn<uint64_t>(picture, "offset"), IntegerIn<uint64_t>(picture, "size")});
        }
        ReadOutline();
        for (const Json& layer : List("layers")) Fill(document_.AddLayer(Text(layer, "name")), layer);
        AddAll("configurations", object_type::layerConfiguration, document_.configurations);
        AddAll("fonts", object_type::font, document_.fonts);
        for (const Json& object : List("objects")) AddObject(object);
        ReadInformation();
        Resolve();
        return std::move(header_);
    }

  private:
    const Json& List(const char* key) const {
        static const Json none = Json::array();
        return Part(key, none);
    }
    const Json& Object(const char* key) const {
        static const Json none = Json::object();
        return Part(key, none);
    }
    /// Not copied: a copy of what is nested deeply recurses.
    const Json& Part(const char* key, const Json& usual) const {
        const auto found = json_.find(key);
        return found == json_.end() ? usual : *found;
    }

    void AddPage(const Json& json) {
        Page page;
        page.width = IntegerIn<int32_t>(json, "width");
        page.height = IntegerIn<int32_t>(json, "height");
        page.landscape = json.value("landscape", page.width > page.height);
        page.paperBin = IntegerIn(json, "paperBin", page.paperBin);
        page.paperSize = IntegerIn(json, "paperSize", 0);
        page.topMargin = IntegerIn(json, "topMargin", 0);
        page.bottomMargin = IntegerIn(json, "bottomMargin", 0);
        page.leftMargin = IntegerIn(json, "leftMargin", 0);
        page.rightMargin = IntegerIn(json, "rightMargin", 0);
        document_.pages.Append(page);
        header_.pagePictures.push_back(IntegerIn(json, "picture", -1));
    }

    PageId PageOf(const Json& json) const {
        const int32_t number = IntegerIn(json, "page", 0);
        return document_.pages.Holds(number) ? document_.pages.At(number).id : 0;
    }

    void ReadOutline() {
        std::vector<BookmarkId> path{Outline::root};  // the last bookmark of each level
        for (const Json& item : List("outline")) {
            const auto level = static_cast<size_t>(std::max(0, IntegerIn(item, "level", 0)));
            path.resize(std::min(level + 1, path.size()));
            path.push_back(document_.outline.Add(path.back(), -1, Text(item, "title"), PageOf(item),
                                                 item.value("open", false)));
        }
    }

    void Fill(DocumentObject& object, const Json& json) {
        ids_[IntegerIn(json, "id", ObjectId(0))] = object.id;
        if (const auto values = json.find("values"); values != json.end()) SetValues(object, *values);
        if (const auto further = json.find("further"); further != json.end()) {
            for (const Json& attribute : *further) AddFurther(object, attribute);
        }
    }

    static void SetValues(DocumentObject& object, const Json& values) {
        for (const auto& [name, value] : values.items()) {
            Attribute* attribute = object.Find(FromUtf8(name));
            if (attribute) attribute->value = Coerced(FromJson(value), attribute->description->type);
        }
    }

    static void AddFurther(DocumentObject& object, const Json& json) {
        AttributeDescription described;
        described.name = Text(json, "name");
        described.category = IntegerIn(json, "category", described.category);
        described.flags = IntegerIn(json, "flags", described.flags);
        described.type = IntegerIn(json, "type", described.type);
        described.description = Text(json, "description");
        AddAttribute(object, std::move(described), FromJson(json.at("value")));
    }

    void AddAll(const char* key, int32_t type, std::vector<ObjectId>& list) {
        for (const Json& json : List(key)) {
            DocumentObject& object = document_.objects.Create(type, Text(json, "name"));
            list.push_back(object.id);
            Fill(object, json);
        }
    }

    void AddObject(const Json& json) {
        const auto type = IntegerIn<int32_t>(json, "type");
        const PageId page = PageOf(json);
        if (page == 0 && !IsAction(type)) return;  // it would be found nowhere
        Fill(document_.objects.Create(type, Text(json, "name"), page), json);
    }

    /// The importer's plain lists of document values and further information, and saved objects.
    void ReadInformation() {
        DocumentObject& settings = *document_.objects.Find(document_.Settings());
        SetValues(settings, Object("document"));
        Fill(settings, Object("settings"));
        DocumentObject& information = *document_.objects.Find(document_.Information());
        Fill(information, Object("informationObject"));
        for (const auto& [name, value] : Object("information").items()) {
            AddAttribute(information,
                         {FromUtf8(name), 'I', attribute_flag::readOnly, type_code::text, L"", L"", L""},
                         FromJson(value));
        }
        Fill(*document_.objects.Find(document_.PageCollection()), Object("pageCollection"));
    }

    /// Leads references, which hold the file's ids, to the objects made for them.
    void Resolve() {
        ids_.erase(0);
        for (const ObjectId id : document_.objects.All()) {
            for (Attribute& attribute : document_.objects.Find(id)->attributes) {
                auto* list = std::get_if<ObjectList>(&attribute.value);
                if (!list) continue;
                std::erase_if(list->ids, [&](ObjectId target) { return !ids_.contains(target); });
                for (ObjectId& target : list->ids) target = ids_[target];
            }
        }
    }

    const Json& json_;
    LoadedHeader header_;
    Document& document_ = header_.document;
    std::unordered_map<ObjectId, ObjectId> ids_;
};

}  // namespace

std::string WriteHeader(const Document& document, const std::vector<SavedPage>& pages,
                        const std::vector<PicturePlace>& pictures, bool wholeDocument) {
    Json json;
    for (const SavedPage& page : pages)
        json["pages"].push_back(PageToJson(document.pages.At(page.number), page.picture));
    for (const PicturePlace& place : pictures) {
        json["pictures"].push_back({{"offset", place.offset}, {"size", place.size}});
    }
    if (wholeDocument) json["outline"] = OutlineToJson(document);
    json["layers"] = ListToJson(document, document.Layers());
    json["configurations"] = ListToJson(document, document.configurations);
    json["fonts"] = ListToJson(document, document.fonts);
    json["objects"] = ObjectsToJson(document, pages);
    json["settings"] = ObjectToJson(*document.objects.Find(document.Settings()));
    json["informationObject"] = ObjectToJson(*document.objects.Find(document.Information()));
    json["pageCollection"] = ObjectToJson(*document.objects.Find(document.PageCollection()));
    return json.dump();
}

LoadedHeader ReadHeader(std::string_view text) {
    try {
        const Json json = Json::parse(text);
        return Reader(json).Read();
    } catch (const Json::exception&) {
        throw FormatError("The document's header is damaged");
    } catch (const AccessError&) {
        throw FormatError("The document holds a value that does not suit");
    }
}

}  // namespace qz::sample
