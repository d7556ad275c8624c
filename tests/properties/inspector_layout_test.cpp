#include "properties/model/inspector_layout.h"

#include <gtest/gtest.h>

#include <vector>

namespace qz {
namespace {

std::vector<Rect> StackOf(const InspectorPlaces& places) {
    std::vector<Rect> stack;
    for (const Rect& part : {places.list, places.description, places.value}) {
        if (!part.Empty()) stack.push_back(part);
    }
    return stack;
}

// At every size nothing overlaps or sticks out, and the parts come and go one at a time.
TEST(InspectorLayout, PartsFitAtEverySize) {
    for (const int dpi : {96, 144, 192}) {
        for (int height = 0; height < 900; height += 7) {
            const Size client{height % 260, height};
            const InspectorPlaces places = ArrangeInspector({client, dpi, 13 * dpi / 96, 20 * dpi / 96});
            const Rect all = Rect::At({0, 0}, client);
            const std::vector<Rect> stack = StackOf(places);
            for (std::size_t i = 0; i < stack.size(); ++i) {
                EXPECT_EQ(stack[i].Intersected(all), stack[i]) << client.width << " x " << height;
                if (i > 0) {
                    EXPECT_GE(stack[i].top, stack[i - 1].bottom) << height;
                }
            }
            EXPECT_EQ(places.editor.Intersected(places.value), places.editor);
            EXPECT_TRUE(places.description.Empty() || !places.value.Empty());
            EXPECT_TRUE(places.value.Empty() || !places.list.Empty());
        }
    }
}

TEST(InspectorLayout, ValueKeepsItsHeightAndTheListTakesTheRest) {
    const auto at = [](int height) { return ArrangeInspector({{300, height}, 96, 13, 20}); };
    EXPECT_EQ(at(400).value.Height(), 140);
    EXPECT_EQ(at(800).value.Height(), 140);
    EXPECT_EQ(at(800).list.Height() - at(400).list.Height(), 400);
    // The editor: 6 pixels inside the frame at the sides, 12 above and below.
    const InspectorPlaces places = at(400);
    EXPECT_EQ(places.editor, (Rect{places.value.left + 6, places.value.top + 12, places.value.right - 6,
                                   places.value.bottom - 12}));
    EXPECT_FALSE(at(260).description.Empty());
    EXPECT_TRUE(at(200).description.Empty());
    EXPECT_LT(at(150).value.Height(), 140);
}

}  // namespace
}  // namespace qz
