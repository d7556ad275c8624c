// The attributes that objects of each type are born with.
#pragma once

#include "sample/document/attribute.h"

#include <vector>

namespace qz::sample {

/// Object types by the host's numbers.
namespace object_type {
constexpr int32_t line = 1;
constexpr int32_t frame = 2;
constexpr int32_t text = 5;
constexpr int32_t field = 6;
constexpr int32_t picture = 7;
constexpr int32_t checkBox = 21;
constexpr int32_t stickyNote = 22;
constexpr int32_t highlight = 23;
constexpr int32_t selection = 24;
constexpr int32_t document = 30;
constexpr int32_t page = 31;
constexpr int32_t signature = 39;
constexpr int32_t actionGoTo = 46;
constexpr int32_t actionLaunch = 47;
constexpr int32_t actionThread = 48;
constexpr int32_t actionUri = 49;
constexpr int32_t actionHide = 50;
constexpr int32_t actionLayerState = 51;
constexpr int32_t actionJavaScript = 52;
constexpr int32_t actionForm = 53;
// Not in the host's public list of types: they are found by their path.
constexpr int32_t pageCollection = 1000;
constexpr int32_t layer = 1001;
constexpr int32_t layerConfiguration = 1002;
constexpr int32_t font = 1003;
constexpr int32_t information = 1004;
}  // namespace object_type

bool IsAction(int32_t type);

/// Fields of a form: text fields, check boxes and selections.
bool IsFormField(int32_t type);

/// The attributes of a new object of that type, with their initial values, in the order they are listed.
std::vector<Attribute> AttributesOfType(int32_t type);

}  // namespace qz::sample
