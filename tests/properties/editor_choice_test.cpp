#include "properties/model/editor_choice.h"

#include "tests/properties/ignoring_case.h"

#include <gtest/gtest.h>

#include <vector>

namespace qz {
namespace {

struct Attribute {
    std::uint32_t type = 8201;
    std::uint32_t category = L'E';
    const wchar_t* name = L"Fields";
    std::optional<std::int32_t> objectType = 53;
};

EditorChoice Choose(const Attribute& attribute) {
    return ChooseEditor(attribute.type, attribute.category, attribute.name, attribute.objectType,
                        EqualIgnoringCase);
}

TEST(EditorChoice, FollowsTheTypeWhateverTheRest) {
    using enum EditorKind;
    const struct {
        EditorChoice choice;
        std::vector<std::uint32_t> types;
    } cases[] = {{{Edit, EditMode::Integer}, {2, 3}},
                 {{Edit, EditMode::Real}, {4}},
                 {{Edit, EditMode::Lines}, {14, 8196, 8198, 8199}},
                 {{Edit, EditMode::File}, {515}},
                 {{Edit, EditMode::DatabaseField}, {8711}},
                 {{Enum}, {512}},
                 {{Enum, EditMode::Integer, true}, {8197}},
                 {{ValueList}, {8194, 8195}},
                 {{Bool}, {11}},
                 {{Format}, {15}},
                 {{Color}, {513}},
                 {{Font}, {514}}};
    for (const auto& [choice, types] : cases) {
        for (const std::uint32_t type : types) {
            EXPECT_EQ(Choose({.type = type, .category = L'N'}), choice) << type;
        }
    }
}

TEST(EditorChoice, ActionsAreUnknownTypesOfTheirCategory) {
    for (const std::uint32_t type : {0U, 8201U, 99999U}) {
        EXPECT_EQ(Choose({.type = type, .category = L'N'}).kind, EditorKind::Actions) << type;
    }
    EXPECT_EQ(Choose({.category = L'N' | 0x200}).kind, EditorKind::Actions) << "the low byte decides";
}

TEST(EditorChoice, ObjectListIsOnlyForTheFieldsOfAFormAction) {
    EXPECT_EQ(Choose({}).kind, EditorKind::ObjectList);
    EXPECT_EQ(Choose({.name = L"fIELDS"}).kind, EditorKind::ObjectList);
    for (const Attribute& other :
         {Attribute{.type = 0x2000}, Attribute{.type = 1}, Attribute{.type = 0x2008},
          Attribute{.name = L"Field"}, Attribute{.objectType = 52}, Attribute{.objectType = std::nullopt}}) {
        EXPECT_EQ(Choose(other).kind, EditorKind::None);
    }
}

}  // namespace
}  // namespace qz
