// The radio buttons of an enumeration's choices.
#pragma once

#include "properties/model/choices.h"
#include "properties/model/entry_layouts.h"
#include "ui/child_window.h"

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace qz {

/// One button for each choice, with the ids from QZ_EDITOR_CHOICES on. The arrow keys choose too, whatever
/// the message loop. The dialog is told of a choice by BN_CLICKED of a button that is then checked.
class ChoiceButtons {
  public:
    /// Makes the buttons the first controls of a dialog, in the dialog's font.
    void Create(HWND dialog, std::span<const Choice> choices);

    std::size_t Count() const noexcept { return buttons_.size(); }
    /// Pixels that the widest button needs with its mark.
    int Widest() const noexcept { return widest_; }
    /// Moves the buttons to their places, shifted up by `scrolled`.
    void Place(std::span<const Rect> places, int scrolled) const noexcept;
    /// Checks one button, or none. Tells nobody.
    void Check(std::optional<std::size_t> index) const noexcept;
    /// The choice that was checked when a control tells of a click; nothing for any other control.
    std::optional<std::size_t> Clicked(int id) const noexcept;

  private:
    class Button;

    std::vector<std::unique_ptr<ChildWindow>> buttons_;
    int widest_ = 0;
};

}  // namespace qz
