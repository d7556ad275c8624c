// The images of the bookmark pane as shapes, and their drawing with smooth edges.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace qz {

/// In units of a sixteenth of the image's side, from its top left corner.
struct IconPoint {
    double x;
    double y;
};

/// A colour as 0xAARRGGBB, its alpha not multiplied in; 0 is nothing.
using IconColour = std::uint32_t;

/// A polygon, or an open line.
struct IconShape {
    std::vector<IconPoint> points;
    bool closed = true;
    IconColour fill = 0;  ///< Of a closed shape.
    IconColour line = 0;
    double lineWidth = 1;
};

enum class IconStyle { Classic, Outline };
enum class IconKind { Expanded, Collapsed, Leaf };

/// `ink` is the colour of the lines of outline icons.
std::vector<IconShape> IconShapes(IconStyle style, IconKind kind, IconColour ink);

/// Draws shapes over each other into a square image of `side` pixels, row by row from the top.
std::vector<IconColour> DrawIcon(std::span<const IconShape> shapes, int side);

}  // namespace qz
