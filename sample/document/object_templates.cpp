#include "sample/document/object_templates.h"

#include <algorithm>
#include <array>
#include <map>
#include <span>

namespace qz::sample {

namespace {

struct TemplateRow {
    const wchar_t* name;
    char category;
    uint32_t flags;
    uint32_t type;
    const wchar_t* description;
    const wchar_t* initial = L"";
    const wchar_t* choices = L"";
};

using namespace attribute_flag;
using namespace type_code;

constexpr TemplateRow placeRows[] = {
    {L"Name", '*', none, text, L"The object's name"},
    {L"ObjectType", 'A', readOnly, int32, L"The number of the object's type", L"0"},
    {L"Left", '*', none, int32, L"Distance of the left edge from the page's left edge, in twips", L"1440"},
    {L"Top", '*', none, int32, L"Distance of the top edge from the page's top edge, in twips", L"1440"},
    {L"Right", '*', none, int32, L"Distance of the right edge from the page's left edge, in twips", L"4320"},
    {L"Bottom", '*', none, int32, L"Distance of the bottom edge from the page's top edge, in twips", L"2880"},
    {L"Visible", '*', none, boolean, L"Whether the object is drawn", L"True"},
    {L"Locked", 'A', none, boolean, L"Whether the object is protected from changes", L"False"},
    {L"Rotation", 'A', none, real, L"Turn in degrees, counter-clockwise", L"0"},
    {L"InternalHandle", 'A', hidden, int32, L"For the host's own use", L"0"},
    {L"Unsorted", '\0', none, text, L"In no category", L""},
};

constexpr TemplateRow paintRows[] = {
    {L"BorderStyle", 'B', none, wholeChoice, L"Style of the border", L"1",
     L"0 None|1 Solid|2 Dashed|3 Dotted"},
    {L"BorderWidth", 'B', none, realChoice, L"Width of the border in points", L"1", L"0.25|0.5|1|2.5|5"},
    {L"BorderColor", 'B', none, colour, L"Colour of the border", L"0"},
    {L"FillColor", 'C', none, colour, L"Colour of the inside; none when empty", L"-1"},
    {L"ShadingLevel", 'F', none, int16, L"Strength of the shading, 0 to 100", L"0"},
    {L"ShadingStops", 'F', none, shortList, L"Places of the shading's colours in percent", L"0; 50; 100"},
    {L"Group1", 'G', none, int32, L"Number in the first group", L"0"},
    {L"Group2", 'H', none, int32, L"Number in the second group", L"0"},
};

constexpr TemplateRow textRows[] = {
    {L"Text", 'E', none, lines, L"The text"},
    {L"Font", 'E', none, font, L"Face; size; weight; italic; underline; strike-out",
     L"Arial; 10; 400; 0; 0; 0"},
    {L"TextColor", 'E', none, colour, L"Colour of the text", L"0"},
    {L"TabStops", 'E', none, longList, L"Tab positions in twips", L"720; 1440; 2160"},
    {L"Caption", 'T', none, text, L"The caption beside the object"},
};

constexpr TemplateRow dataRows[] = {
    {L"DataType", 'D', none, wholeChoice, L"Kind of the data", L"0",
     L"0 General Number|1 Date|2 Time|3 Date and Time|4 Percentage|5 Currency"},
    {L"Format", 'D', none, format, L"How the data is shown", L"#,###.00"},
    {L"DatabaseField", 'D', none, databaseField, L"The field of the data source"},
    {L"DataSource", 'D', none, text, L"The data source"},
    {L"DataTable", 'D', none, text, L"The table of the data source"},
    {L"Expression", 'I', none, expression, L"The expression that gives the value"},
    {L"ClearValue", 'M', none, text, L"Empties the field"},
};

constexpr TemplateRow restRows[] = {
    {L"SectionName", 'S', none, text, L"The section the object belongs to"},
    {L"Metadata", 'X', none, metadata, L"Description of the object as XML"},
    {L"NextActions", 'N', none, objects, L"What happens when the object is activated"},
};

constexpr TemplateRow pictureRows[] = {
    {L"FileName", '*', none, file, L"The picture's file"},
    {L"KeepAspectRatio", '*', none, boolean, L"Whether width and height change together", L"True"},
};

constexpr TemplateRow checkRows[] = {
    {L"Checked", '*', none, boolean, L"Whether the box is ticked", L"False"}};

constexpr TemplateRow actionRows[] = {
    {L"Name", '*', none, text, L"The action's name"},
    {L"ObjectType", 'A', readOnly, int32, L"The number of the object's type", L"0"},
    {L"Description", '*', none, text, L"What the action does"},
    {L"NextActions", 'N', none, objects, L"What happens afterwards"},
};

constexpr TemplateRow goToRows[] = {
    {L"Page", '*', none, int32, L"The page to go to", L"1"},
    {L"Zoom", '*', none, wholeChoice, L"How the page is shown", L"0",
     L"0 Unchanged|1 Whole page|2 Page width"},
};
constexpr TemplateRow targetRows[] = {{L"Target", '*', none, text, L"What the action opens"}};
constexpr TemplateRow hideRows[] = {{L"Hide", '*', none, boolean, L"True hides, False shows", L"True"}};
constexpr TemplateRow scriptRows[] = {{L"Script", '*', none, lines, L"The program text"}};
constexpr TemplateRow formRows[] = {
    {L"Fields", '*', none, objects, L"The fields that the action concerns"},
    {L"SubmitTo", '*', none, text, L"The address the form is sent to"},
};

constexpr TemplateRow layerRows[] = {
    {L"Name", '*', readOnly, text, L"The layer's name in configurations"},
    {L"DisplayName", '*', none, text, L"The layer's name as it is shown"},
    {L"CurrentViewState", '*', none, text, L"ON when the layer is visible, else OFF", L"ON"},
};
constexpr TemplateRow configurationRows[] = {
    {L"Name", '*', readOnly, text, L"The configuration's name"},
    {L"ConfigOrder", '*', none, text, L"The layers in their order, nested"},
    {L"ConfigRBGroups", '*', none, text, L"Groups of layers of which at most one is visible"},
    {L"ConfigON", '*', none, text, L"Layers shown at first"},
    {L"ConfigOFF", '*', none, text, L"Layers hidden at first"},
    {L"BaseState", '*', none, text, L"State of the layers that no list names", L"ON"},
};
constexpr TemplateRow fontRows[] = {
    {L"FontName", '*', readOnly, text, L"The font's name"},
    {L"OriginalName", '*', readOnly, text, L"The font's name without the mark of a subset"},
    {L"BaseName", '*', readOnly, text, L"The name of the font's family"},
    {L"FontType", '*', readOnly, text, L"The kind of the font"},
    {L"Encoding", '*', readOnly, text, L"The font's encoding"},
    {L"Embedding", '*', none, int32, L"0 not embedded, 1 partially, 2 fully", L"0"},
};
constexpr TemplateRow informationRows[] = {
    {L"ObjectType", 'A', hidden | readOnly, int32, L"The number of the object's type", L"0"}};
constexpr TemplateRow collectionRows[] = {
    {L"MeasurementUnit", '*', none, int32, L"0 tenths of millimetres, 1 inches, 2 twips", L"2"},
};
constexpr TemplateRow documentRows[] = {
    {L"Title", 'X', none, text, L"The document's title"},
    {L"Subject", 'X', none, text, L"The document's subject"},
    {L"Author", 'X', none, text, L"The document's author"},
    {L"Creator", 'X', none, text, L"The program the document was made with"},
    {L"Keywords", 'X', none, text, L"The document's keywords"},
    {L"Producer", 'X', none, text, L"The program that wrote the file"},
    {L"Security", 'A', readOnly, int16, L"Length of the encryption key, 0 for none", L"0"},
    {L"OwnerPassword", 'A', hidden | readOnly, text, L"The owner password"},
    {L"UserPassword", 'A', hidden | readOnly, text, L"The user password"},
    {L"Permissions", 'A', readOnly, int32, L"What readers are permitted, as a bit set", L"-4"},
    {L"OwnerAccess", 'A', hidden | readOnly, boolean, L"Whether the document was opened with all rights",
     L"True"},
    {L"AlwaysConfirmAttributeChanges", 'A', none, boolean, L"Whether changes of attributes are confirmed",
     L"False"},
    {L"MeasurementUnit", '*', none, int32, L"0 tenths of millimetres, 1 inches, 2 twips", L"2"},
    {L"DefaultFont", 'E', none, font, L"Font of new texts", L"Arial; 10; 400; 0; 0; 0"},
    {L"BaseName", 'E', none, text, L"Family of the default font", L"Arial"},
    {L"ShowObjectsBorders", 'A', none, boolean, L"Whether the borders of objects are drawn", L"False"},
    {L"LockLastSelectedTool", 'A', none, boolean, L"Whether a tool stays selected", L"False"},
    {L"UseSystemFonts", 'A', none, boolean, L"Whether missing fonts are replaced", L"True"},
    {L"OCRLanguage", 'A', none, text, L"Language of text recognition"},
    {L"GetPagePtrNoReadContents", 'A', hidden, boolean, L"Pages are looked at without their contents",
     L"False"},
};

using Rows = std::span<const TemplateRow>;
struct TypeRow {
    int32_t type;
    std::array<Rows, 6> groups;
};

const TypeRow typeRows[] = {
    {object_type::line, {placeRows, paintRows, restRows}},
    {object_type::frame, {placeRows, paintRows, restRows}},
    {object_type::text, {placeRows, paintRows, textRows, restRows}},
    {object_type::field, {placeRows, paintRows, textRows, dataRows, restRows}},
    {object_type::picture, {placeRows, paintRows, pictureRows, restRows}},
    {object_type::checkBox, {placeRows, paintRows, checkRows, dataRows, restRows}},
    {object_type::stickyNote, {placeRows, paintRows, textRows, restRows}},
    {object_type::highlight, {placeRows, paintRows, textRows, restRows}},
    {object_type::selection, {placeRows, paintRows, textRows, dataRows, restRows}},
    {object_type::signature, {placeRows, paintRows, restRows}},
    {object_type::actionGoTo, {actionRows, goToRows}},
    {object_type::actionLaunch, {actionRows, targetRows}},
    {object_type::actionThread, {actionRows, targetRows}},
    {object_type::actionUri, {actionRows, targetRows}},
    {object_type::actionHide, {actionRows, hideRows}},
    {object_type::actionLayerState, {actionRows, targetRows}},
    {object_type::actionJavaScript, {actionRows, scriptRows}},
    {object_type::actionForm, {actionRows, formRows}},
    {object_type::document, {documentRows}},
    {object_type::pageCollection, {collectionRows}},
    {object_type::layer, {layerRows}},
    {object_type::layerConfiguration, {configurationRows}},
    {object_type::font, {fontRows}},
    {object_type::information, {informationRows}},
};

Attribute MakeAttribute(const TemplateRow& row) {
    auto description = std::make_shared<AttributeDescription>();
    description->name = row.name;
    description->category = static_cast<unsigned char>(row.category);
    description->flags = row.flags;
    description->type = row.type;
    description->description = row.description;
    description->initial = row.initial;
    description->choices = row.choices;
    const Value initial = row.type == objects ? Value() : Value(description->initial);
    return {description, Coerced(initial, row.type)};
}

std::vector<Attribute> MakeAttributes(const TypeRow& type) {
    std::vector<Attribute> attributes;
    for (const Rows rows : type.groups) {
        for (const TemplateRow& row : rows) attributes.push_back(MakeAttribute(row));
    }
    for (Attribute& attribute : attributes) {
        if (attribute.description->name == L"ObjectType") attribute.value = type.type;
    }
    return attributes;
}

std::map<int32_t, std::vector<Attribute>> MakeTemplates() {
    std::map<int32_t, std::vector<Attribute>> templates;
    for (const TypeRow& type : typeRows) templates[type.type] = MakeAttributes(type);
    return templates;
}

}  // namespace

bool IsAction(int32_t type) { return type >= object_type::actionGoTo && type <= object_type::actionForm; }

bool IsFormField(int32_t type) {
    return type == object_type::field || type == object_type::checkBox || type == object_type::selection;
}

std::vector<Attribute> AttributesOfType(int32_t type) {
    static const std::map<int32_t, std::vector<Attribute>> templates = MakeTemplates();
    const auto found = templates.find(type);
    return found != templates.end() ? found->second : templates.at(object_type::frame);
}

}  // namespace qz::sample
