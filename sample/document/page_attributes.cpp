#include "sample/document/page_attributes.h"

#include <algorithm>
#include <utility>

namespace qz::sample {

namespace {

using namespace attribute_flag;

struct PageRow {
    std::wstring_view name;
    char category;
    uint32_t flags;
    uint32_t type;
    const wchar_t* description;
    Value (*read)(const Document&, const Page&);
    bool (*write)(Page&, const Value&);  // tells whether the value is another one
    uint32_t change;
};

template <auto Member>
Value Read(const Document&, const Page& page) {
    return page.*Member;
}

template <auto Member>
bool Write(Page& page, const Value& value) {
    using Type = std::remove_reference_t<decltype(page.*Member)>;
    return std::exchange(page.*Member, std::get<Type>(value)) != std::get<Type>(value);
}

Value ReadObjects(const Document& document, const Page& page) {
    return ObjectList{document.objects.OfPage(page.id)};
}

Value ReadType(const Document&, const Page&) { return object_type::page; }

template <auto Member>
constexpr PageRow Length(std::wstring_view name, const wchar_t* description, uint32_t change) {
    return {name, '*', none, type_code::int32, description, Read<Member>, Write<Member>, change};
}

constexpr PageRow pageRows[] = {
    Length<&Page::width>(L"Width", L"Width of the page in twips", change::pageSize),
    Length<&Page::height>(L"Length", L"Height of the page in twips", change::pageSize),
    {L"Landscape", '*', none, type_code::boolean, L"Whether the paper lies on its long side",
     Read<&Page::landscape>, Write<&Page::landscape>, change::pageSize},
    Length<&Page::paperSize>(L"PaperSize", L"Number of the paper in the printer's list, 0 for none of them",
                             change::attribute),
    {L"PaperBin", '*', none, type_code::int16, L"Number of the paper bin, from 1", Read<&Page::paperBin>,
     Write<&Page::paperBin>, change::attribute},
    Length<&Page::topMargin>(L"TopMargin", L"Top margin in twips", change::attribute),
    Length<&Page::bottomMargin>(L"BottomMargin", L"Bottom margin in twips", change::attribute),
    Length<&Page::leftMargin>(L"LeftMargin", L"Left margin in twips", change::attribute),
    Length<&Page::rightMargin>(L"RightMargin", L"Right margin in twips", change::attribute),
    {L"ObjectType", 'A', readOnly, type_code::int32, L"The number of the object's type", ReadType, nullptr,
     0},
    {L"Objects", 'A', hidden | readOnly, type_code::objects, L"What stands on the page", ReadObjects, nullptr,
     0},
};

const PageRow& FindPageRow(std::wstring_view name) {
    const auto found = std::ranges::find(pageRows, name, &PageRow::name);
    if (found != std::end(pageRows)) return *found;
    throw AccessError(AccessFailure::NoSuchAttribute, "Pages have no attribute of that name");
}

const PageRow& FindWritable(std::wstring_view name) {
    const PageRow& row = FindPageRow(name);
    if (row.write) return row;
    throw AccessError(AccessFailure::ReadOnly, "The attribute can only be read");
}

}  // namespace

const std::vector<DescriptionPointer>& PageAttributes() {
    static const std::vector<DescriptionPointer> descriptions = [] {
        std::vector<DescriptionPointer> made;
        for (const PageRow& row : pageRows) {
            made.push_back(std::make_shared<AttributeDescription>(
                AttributeDescription{std::wstring(row.name), static_cast<unsigned char>(row.category),
                                     row.flags, row.type, row.description, L"", L""}));
        }
        return made;
    }();
    return descriptions;
}

Value ReadPageAttribute(const Document& document, const Page& page, std::wstring_view name) {
    return FindPageRow(name).read(document, page);
}

uint32_t WritePageAttribute(Page& page, std::wstring_view name, const Value& value) {
    const PageRow& row = FindWritable(name);
    return row.write(page, Coerced(value, row.type)) ? row.change : change::none;
}

void CheckPageAttribute(std::wstring_view name, const Value& value) {
    static_cast<void>(Coerced(value, FindWritable(name).type));
}

bool IsPageSetup(std::wstring_view name) {
    const auto found = std::ranges::find(pageRows, name, &PageRow::name);
    return found != std::end(pageRows) && found->write;
}

}  // namespace qz::sample
