// Texts that name objects of the host, such as "Pages[3]" or "Layers[Water]".
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace qz::sample {

enum class PathKind { Document, Information, Pages, Page, Layer, Configuration, Font, Object, ObjectById };

/// A parsed path; `name` points into the text that was parsed.
struct ObjectPath {
    PathKind kind;
    int32_t number = 0;      // of a page, configuration or font (1-based), or an object's id
    std::wstring_view name;  // of a layer or an object
};

/// Empty when the text is no path of the host. The words are matched exactly.
///   Document   DocInfo   Pages   Pages[n]   Layers[name]   LayerConfigs[n]   Fonts[n]   Objects[name]
///   Objects[#id]
std::optional<ObjectPath> ParseObjectPath(std::wstring_view path);

}  // namespace qz::sample
