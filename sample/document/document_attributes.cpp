#include "sample/document/document_attributes.h"

#include "sample/document/page_attributes.h"

#include <algorithm>

namespace qz::sample {

namespace {

using namespace attribute_flag;

struct DocumentRow {
    std::wstring_view name;
    uint32_t flags;
    uint32_t type;
    const wchar_t* description;
    Value (*read)(const Document&);
    uint32_t (*write)(Document&, const Value&);
};

template <NumberList Document::*Sequence>
Value ReadSequence(const Document& document) {
    const NumberList& sequence = document.*Sequence;
    return sequence.empty() ? Value() : Value(sequence);
}

template <NumberList Document::*Sequence>
uint32_t WriteSequence(Document& document, const Value& value) {
    NumberList numbers = ToNumbers(value);
    const bool known =
        std::ranges::all_of(numbers, [&](int32_t number) { return document.pages.Holds(number); });
    if (!known) throw AccessError(AccessFailure::BadValue, "The sequence names a page that is not there");
    document.*Sequence = std::move(numbers);
    return change::none;
}

/// A text of the default layer configuration; no value when there is none.
template <size_t N>
struct Name {
    constexpr Name(const wchar_t (&text)[N]) { std::copy_n(text, N, value); }
    wchar_t value[N];
};

template <Name Attribute>
Value ReadConfiguration(const Document& document) {
    if (document.configurations.empty()) return {};
    return document.objects.Find(document.configurations.front())->Find(Attribute.value)->value;
}

Value ReadConfigurations(const Document& document) { return ObjectList{document.configurations}; }
Value ReadFonts(const Document& document) { return ObjectList{document.fonts}; }
Value ReadFields(const Document& document) { return ObjectList{document.FormFields()}; }
Value ReadType(const Document&) { return object_type::document; }
Value ReadFocus(const Document&) { return 0; }
uint32_t WriteFocus(Document&, const Value& value) {
    static_cast<void>(ToInteger(value));  // the host's window takes the focus
    return change::none;
}

constexpr DocumentRow computedRows[] = {
    {L"ObjectType", readOnly, type_code::int32, L"The number of the object's type", ReadType, nullptr},
    {L"PageSequence", hidden, type_code::longList, L"The pages that a save takes",
     ReadSequence<&Document::pageSequence>, WriteSequence<&Document::pageSequence>},
    {L"PrintSequence", hidden, type_code::longList, L"The pages that are printed",
     ReadSequence<&Document::printSequence>, WriteSequence<&Document::printSequence>},
    {L"LayerConfigs", hidden | readOnly, type_code::objects, L"The layer configurations", ReadConfigurations,
     nullptr},
    {L"ConfigOrder", hidden | readOnly, type_code::text, L"Of the default configuration",
     ReadConfiguration<L"ConfigOrder">, nullptr},
    {L"ConfigRBGroups", hidden | readOnly, type_code::text, L"Of the default configuration",
     ReadConfiguration<L"ConfigRBGroups">, nullptr},
    {L"ConfigON", hidden | readOnly, type_code::text, L"Of the default configuration",
     ReadConfiguration<L"ConfigON">, nullptr},
    {L"ConfigOFF", hidden | readOnly, type_code::text, L"Of the default configuration",
     ReadConfiguration<L"ConfigOFF">, nullptr},
    {L"Fonts", hidden | readOnly, type_code::objects, L"The fonts", ReadFonts, nullptr},
    {L"Fields", hidden | readOnly, type_code::objects, L"The fields of the form", ReadFields, nullptr},
    {L"FormFields", hidden | readOnly, type_code::objects, L"The fields of the form", ReadFields, nullptr},
    {L"SetFocus_M", hidden, type_code::int32, L"Writing it gives the view the keyboard", ReadFocus,
     WriteFocus},
};

const DocumentRow* FindDocumentRow(std::wstring_view name) {
    const auto found = std::ranges::find(computedRows, name, &DocumentRow::name);
    return found == std::end(computedRows) ? nullptr : &*found;
}

uint32_t WriteEveryPage(Document& document, std::wstring_view name, const Value& value) {
    CheckPageAttribute(name, value);
    uint32_t flags = change::none;
    for (int32_t number = 1; number <= document.pages.Count(); ++number) {
        flags |= WritePageAttribute(document.pages.At(number), name, value);
    }
    return flags;
}

}  // namespace

const std::vector<DescriptionPointer>& ComputedDocumentAttributes() {
    static const std::vector<DescriptionPointer> descriptions = [] {
        std::vector<DescriptionPointer> made;
        for (const DocumentRow& row : computedRows) {
            made.push_back(std::make_shared<AttributeDescription>(AttributeDescription{
                std::wstring(row.name), 'A', row.flags, row.type, row.description, L"", L""}));
        }
        for (const DescriptionPointer& page : PageAttributes()) {
            if (IsPageSetup(page->name)) made.push_back(page);
        }
        return made;
    }();
    return descriptions;
}

bool IsComputedDocumentAttribute(std::wstring_view name) {
    return FindDocumentRow(name) || IsPageSetup(name);
}

Value ReadDocumentAttribute(const Document& document, std::wstring_view name) {
    if (const DocumentRow* row = FindDocumentRow(name)) return row->read(document);
    // The setup of all pages reads as that of the first.
    return ReadPageAttribute(document, document.pages.At(1), name);
}

uint32_t WriteDocumentAttribute(Document& document, std::wstring_view name, const Value& value) {
    const DocumentRow* row = FindDocumentRow(name);
    if (!row) return WriteEveryPage(document, name, value);
    if (!row->write) throw AccessError(AccessFailure::ReadOnly, "The attribute can only be read");
    return row->write(document, value);
}

}  // namespace qz::sample
