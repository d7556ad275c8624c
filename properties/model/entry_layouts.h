// Where the controls of the editors lie in which a value is typed, or chosen from a few.
#pragma once

#include "properties/model/editor_choice.h"
#include "ui/geometry.h"

#include <cstddef>
#include <vector>

namespace qz {

/// What the layout of a text field depends on. Pixels.
struct FieldMetrics {
    Size client;
    int dpi = 96;
    int buttonWidth = 0;  ///< That the text of the button beside the field wants.
};

// Controls without room are empty, and so are those that a mode does not have.

struct FieldPlaces {
    Rect text;
    Rect upDown;
    Rect button;

    friend bool operator==(const FieldPlaces&, const FieldPlaces&) = default;
};

/// A number's field has one size, lines of text fill the editor. The button stands beside its field; in a
/// narrow editor below it, and when there is no room either it leaves the field half the width.
FieldPlaces ArrangeField(EditMode mode, const FieldMetrics& metrics) noexcept;

/// What the layout of choices depends on. Pixels.
struct ChoiceMetrics {
    Size client;
    int dpi = 96;
    int lineHeight = 13;    ///< Of the dialog's font.
    int widestChoice = 0;   ///< Of the buttons, with their marks.
    std::size_t count = 0;  ///< Of the choices.
};

struct ChoicePlaces {
    Rect text;
    std::vector<Rect> choices;
    int height = 0;  ///< Of the whole, which may exceed the client's: then it is scrolled.
};

/// The choices stand below the text field, in as few columns as it takes to show them all, and read down the
/// columns. When no number of columns does, there are as many as fit beside each other.
ChoicePlaces ArrangeChoices(const ChoiceMetrics& metrics);

/// The position, changed as little as needed, from which a client of that height shows the span from `top` to
/// `bottom` of the content; its top when it is higher than the client.
int ScrolledTo(int position, int top, int bottom, int clientHeight) noexcept;

}  // namespace qz
