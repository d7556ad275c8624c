#include "panes/status/status_texts.h"

#include <array>
#include <charconv>
#include <cmath>

namespace qz {

namespace {

/// An edge of an object in `unit`. Inches are whole, unlike those of the page's size.
double EdgeIn(std::int32_t twips, LengthUnit unit) {
    const double exact = FromTwips(twips, unit);
    return unit == LengthUnit::Inches ? std::trunc(exact) : exact;
}

/// As "%.0f" writes it (halves to the even neighbour), but without a minus sign before zero.
std::wstring WithoutDecimals(double value) {
    return std::to_wstring(static_cast<std::int64_t>(std::nearbyint(value)));
}

/// As "%g" writes it, whatever the process has made its locale.
std::wstring Shortest(double value) {
    constexpr int significantDigits = 6;
    std::array<char, 32> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general,
                                   significantDigits);
    return {text.data(), end.ptr};
}

std::wstring PageSide(std::int32_t twips, LengthUnit unit) {
    return Shortest(RoundToShow(FromTwips(twips, unit)) + 0.0);  // the sum has no negative zero
}

}  // namespace

std::wstring ObjectCoordsText(const Rect& twips, LengthUnit unit) {
    const double left = EdgeIn(twips.left, unit);
    const double top = EdgeIn(twips.top, unit);
    const double right = EdgeIn(twips.right, unit);
    const double bottom = EdgeIn(twips.bottom, unit);
    return L"(" + WithoutDecimals(left) + L"," + WithoutDecimals(top) + L":" + WithoutDecimals(right) + L"," +
           WithoutDecimals(bottom) + L") w:" + WithoutDecimals(right - left) + L", h:" +
           WithoutDecimals(bottom - top);
}

std::wstring PageSizeText(std::wstring_view label, const PageSize& twips, LengthUnit unit) {
    return std::wstring(label) + L": " + PageSide(twips.width, unit) + L" x " + PageSide(twips.length, unit);
}

std::wstring PagePositionText(std::int32_t page, std::int32_t count) {
    return std::to_wstring(page) + L" / " + std::to_wstring(count);
}

std::wstring ZoomText(std::int32_t percent) { return std::to_wstring(percent) + L"%"; }

}  // namespace qz
