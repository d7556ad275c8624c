// Where the page stands in the view, and how far the view scrolls. Pixels; pure.
#pragma once

#include <algorithm>

namespace qz::sample {

/// One direction of the view.
struct ViewAxis {
    int client = 0;                    // the window's inside
    int page = 0;                      // the page at the present zoom
    static constexpr int margin = 24;  // of the desk around the page

    int Content() const { return page + 2 * margin; }
    int MostScroll() const { return std::max(0, Content() - client); }
    int Clamp(int position) const { return std::clamp(position, 0, MostScroll()); }
    /// The page's edge in the window: centred while everything fits.
    int PageStart(int position) const {
        return MostScroll() > 0 ? margin - Clamp(position) : (client - page) / 2;
    }
};

}  // namespace qz::sample
