// A font as attributes hold it: "face; size; weight; italic; underline; strike-out".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qz {

struct FontValue {
    static constexpr int normalWeight = 400;
    static constexpr int boldWeight = 700;

    std::wstring face{};
    double size = 10.0;  ///< In points.
    int weight = normalWeight;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;

    bool operator==(const FontValue&) const = default;
};

/// Fields that are missing, empty or make no sense have the values of a new FontValue. The marks are numbers,
/// set unless 0, or "True" or "true". Numbers have a full stop, blanks around fields are ignored.
FontValue FontOf(std::wstring_view text);

/// All six fields, numbers with a full stop, marks as 0 and 1.
std::wstring TextOf(const FontValue& font);

/// One decimal, behind a full stop.
std::wstring TextOfSize(double size);

/// A size in points, with a full stop; nothing when it is none that a font can have.
std::optional<double> SizeOf(std::wstring_view text);

}  // namespace qz
