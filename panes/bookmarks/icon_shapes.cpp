#include "panes/bookmarks/icon_shapes.h"

namespace qz {

namespace {

constexpr IconColour folderBack = 0xFFD9A441;
constexpr IconColour folderFront = 0xFFF7D27A;
constexpr IconColour folderEdge = 0xFF9A6B16;
constexpr IconColour paper = 0xFFFFFFFF;
constexpr IconColour paperEdge = 0xFF7A8794;
constexpr IconColour paperFold = 0xFFD5DDE5;
constexpr IconColour ribbon = 0xFFD0413B;
constexpr IconColour ribbonEdge = 0xFF942621;

using Shapes = std::vector<IconShape>;

/// The back of a folder with its tab.
const std::vector<IconPoint> folderBackOutline{{1.5, 3.5},  {6, 3.5},     {7.5, 5.2},
                                               {13.5, 5.2}, {13.5, 13.5}, {1.5, 13.5}};

Shapes ClassicFolder(bool open) {
    const std::vector<IconPoint> closedFront{{1.5, 6.5}, {13.5, 6.5}, {13.5, 13.5}, {1.5, 13.5}};
    const std::vector<IconPoint> openFront{{4.2, 7.5}, {15.3, 7.5}, {12.8, 13.5}, {1.5, 13.5}};
    return {{.points = folderBackOutline, .fill = folderBack, .line = folderEdge},
            {.points = open ? openFront : closedFront, .fill = folderFront, .line = folderEdge}};
}

/// A page with a bookmark ribbon on it.
Shapes ClassicPage() {
    return {{.points = {{3.5, 1.5}, {9.8, 1.5}, {12.5, 4.2}, {12.5, 14.5}, {3.5, 14.5}},
             .fill = paper,
             .line = paperEdge},
            {.points = {{9.8, 1.5}, {12.5, 4.2}, {9.8, 4.2}}, .fill = paperFold, .line = paperEdge},
            {.points = {{5.5, 1.5}, {8.5, 1.5}, {8.5, 9.5}, {7, 8}, {5.5, 9.5}},
             .fill = ribbon,
             .line = ribbonEdge,
             .lineWidth = 0.8}};
}

/// An open book, for a bookmark whose children are shown.
Shapes OutlineBook(IconColour ink) {
    return {
        {.points = {{7.5, 4.5}, {5.5, 3.5}, {1.5, 3.5}, {1.5, 12.5}, {5.5, 12.5}, {7.5, 13.6}}, .line = ink},
        {.points = {{7.5, 4.5}, {9.5, 3.5}, {13.5, 3.5}, {13.5, 12.5}, {9.5, 12.5}, {7.5, 13.6}},
         .line = ink}};
}

/// Two ribbons, one behind the other.
Shapes OutlineRibbons(IconColour ink) {
    return {{.points = {{6.5, 1.5}, {13.5, 1.5}, {13.5, 11.5}}, .closed = false, .line = ink},
            {.points = {{3.5, 3.5}, {10.5, 3.5}, {10.5, 14.2}, {7, 11}, {3.5, 14.2}}, .line = ink}};
}

Shapes OutlineRibbon(IconColour ink) {
    return {{.points = {{4.5, 2.5}, {11.5, 2.5}, {11.5, 13.7}, {8, 10.5}, {4.5, 13.7}}, .line = ink}};
}

}  // namespace

std::vector<IconShape> IconShapes(IconStyle style, IconKind kind, IconColour ink) {
    const bool classic = style == IconStyle::Classic;
    switch (kind) {
        case IconKind::Expanded:
            return classic ? ClassicFolder(true) : OutlineBook(ink);
        case IconKind::Collapsed:
            return classic ? ClassicFolder(false) : OutlineRibbons(ink);
        case IconKind::Leaf:
            break;
    }
    return classic ? ClassicPage() : OutlineRibbon(ink);
}

}  // namespace qz
