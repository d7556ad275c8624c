// The boxes of the palette in the editor of colors.
#pragma once

#include "properties/model/picker_layouts.h"

#include <windows.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace qz {

/// Sent to the parent of the boxes when one was clicked, or chosen with Space or Return: lParam is its color.
/// The palette may be gone when the message returns.
inline constexpr UINT colourChosenMessage = WM_APP + 0x110;

/// The window class of the boxes, known to the system as long as there is one of these, on whatever thread.
class ColourBoxClass {
  public:
    ColourBoxClass();
    ~ColourBoxClass();
    ColourBoxClass(const ColourBoxClass&) = delete;
    ColourBoxClass& operator=(const ColourBoxClass&) = delete;

    static constexpr wchar_t name[] = L"QZ_COLOR_BOX";
};

/// 64 child windows of the class "QZ_COLOR_BOX", each with its color in its user data and the color's digits
/// for its text. Tab reaches one of them, arrow keys the others. The one that was clicked or reached last
/// draws a focus rectangle. Used on one thread; outlives the boxes.
class ColourPalette {
  public:
    ColourPalette() = default;
    ColourPalette(const ColourPalette&) = delete;
    ColourPalette& operator=(const ColourPalette&) = delete;

    /// Makes the boxes, with ids from `firstId` on, behind the other children of `parent`. Throws when the
    /// system refuses.
    void Create(HWND parent, int firstId);
    void Arrange(const ColourPlaces& places);
    /// The box that Tab reaches is that of the color, if it has one.
    void ShowColour(std::optional<std::uint32_t> colour);
    /// The box that Tab reaches.
    HWND Current() const noexcept { return boxes_[current_]; }

  private:
    static LRESULT CALLBACK Procedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    LRESULT Dispatch(HWND box, UINT message, WPARAM wParam, LPARAM lParam);

    std::size_t IndexOf(HWND box) const noexcept;
    void SetCurrent(std::size_t index, bool marked);
    void Draw(HWND box, HDC dc) const;
    /// False for keys that mean nothing here.
    bool OnKey(HWND box, WPARAM key);

    friend class ColourBoxClass;

    ColourBoxClass registered_;
    std::array<HWND, 64> boxes_{};
    std::size_t current_ = 0;
    bool marked_ = false;  ///< The current one was clicked or reached.
    std::size_t columns_ = 16;
};

}  // namespace qz
