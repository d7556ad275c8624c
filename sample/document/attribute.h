// Attributes: what is told of one to the inspector, and its value.
#pragma once

#include "sample/document/value.h"

#include <memory>

namespace qz::sample {

namespace attribute_flag {
constexpr uint32_t none = 0;
constexpr uint32_t hidden = 1;
constexpr uint32_t readOnly = 2;
}  // namespace attribute_flag

/// What is known of an attribute besides its value.
struct AttributeDescription {
    std::wstring name;
    uint32_t category = 0;  // a character code; 0: shown nowhere
    uint32_t flags = attribute_flag::none;
    uint32_t type = type_code::text;
    std::wstring description;
    std::wstring initial;  // the value of a new object, as a text
    std::wstring choices;  // of choice types: labels that begin with their number, separated by "|"
};

using DescriptionPointer = std::shared_ptr<const AttributeDescription>;

struct Attribute {
    DescriptionPointer description;
    Value value;
};

}  // namespace qz::sample
