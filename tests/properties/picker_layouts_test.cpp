#include "properties/model/picker_layouts.h"

#include <gtest/gtest.h>

#include <vector>

namespace qz {
namespace {

std::vector<Rect> PlacesOf(const ColourPlaces& places) {
    return {places.label, places.text, places.preview, places.none, places.palette};
}
std::vector<Rect> PlacesOf(const FontPlaces& places) {
    const auto& marks = places.marks;
    return {places.faceLabel, places.face, places.sizeLabel, places.size,  marks[0],
            marks[1],         marks[2],    marks[3],         places.choose};
}
std::vector<Rect> PlacesOf(const FormatPlaces& places) {
    return {places.textLabel, places.text,      places.previewLabel,
            places.preview,   places.listLabel, places.list};
}

std::vector<Rect> PlacesOf(const ActionsPlaces& places) {
    const auto& buttons = places.buttons;
    return {places.list, buttons[0], buttons[1], buttons[2], buttons[3], buttons[4], places.text};
}
std::vector<Rect> PlacesOf(const ObjectsPlaces& places) { return {places.fieldsOnly, places.list}; }

void ExpectApart(const std::vector<Rect>& places, Size client) {
    const Rect whole = Rect::At({}, client);
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i] == Rect{}) continue;
        EXPECT_FALSE(places[i].Empty()) << i << " in " << client.width << " x " << client.height;
        EXPECT_EQ(places[i].Intersected(whole), places[i])
            << i << " in " << client.width << " x " << client.height;
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(places[i].Intersects(places[j]))
                << i << " and " << j << " in " << client.width << " x " << client.height;
        }
    }
}

TEST(PickerLayouts, NothingOverlapsAndTheFieldsAreAlwaysThere) {
    for (int dpi : {96, 144}) {
        for (int width = 0; width < 700; width += 7) {
            for (int height = 0; height < 300; height += 5) {
                const PickerMetrics metrics{{width, height}, dpi, 13 * dpi / 96};
                const ColourPlaces colour = ArrangeColourEditor(metrics);
                const FontPlaces font = ArrangeFontEditor(metrics);
                const FormatPlaces format = ArrangeFormatEditor(metrics);
                ExpectApart(PlacesOf(colour), metrics.client);
                ExpectApart(PlacesOf(font), metrics.client);
                ExpectApart(PlacesOf(format), metrics.client);
                const ActionsPlaces actions = ArrangeActionsEditor(metrics);
                const ObjectsPlaces objects = ArrangeObjectsEditor(metrics);
                ExpectApart(PlacesOf(actions), metrics.client);
                ExpectApart(PlacesOf(objects), metrics.client);
                if (width < 100 * dpi / 96 || height < 40 * dpi / 96) continue;
                EXPECT_GE(colour.text.Width(), 68 * dpi / 96);
                EXPECT_TRUE(!colour.palette.Empty() || height < 60 * dpi / 96);
                EXPECT_FALSE(font.face.Empty() || font.size.Empty());
                EXPECT_GE(actions.list.Height(), metrics.lineHeight);
                EXPECT_GE(actions.buttons[4].Width(), 16 * dpi / 96);
                EXPECT_GE(objects.list.Height(), metrics.lineHeight);
                EXPECT_FALSE(format.text.Empty() || format.preview.Empty());
            }
        }
    }
}

TEST(PickerLayouts, AllFitsIntoTheUsualSize) {
    const PickerMetrics usual{{260, 116}, 96, 13};
    for (const Rect& place : PlacesOf(ArrangeColourEditor(usual))) EXPECT_FALSE(place.Empty());
    for (const Rect& place : PlacesOf(ArrangeFontEditor(usual))) EXPECT_FALSE(place.Empty());
    for (const Rect& place : PlacesOf(ArrangeFormatEditor(usual))) EXPECT_FALSE(place.Empty());
    for (const Rect& place : PlacesOf(ArrangeActionsEditor(usual))) EXPECT_FALSE(place.Empty());
    for (const Rect& place : PlacesOf(ArrangeObjectsEditor(usual))) EXPECT_FALSE(place.Empty());
    EXPECT_EQ(ArrangeColourEditor(usual).columns, 16);
    EXPECT_EQ(ArrangeColourEditor({{100, 200}, 96, 13}).columns, 8);
    const ColourPlaces colour = ArrangeColourEditor(usual);
    EXPECT_EQ(BoxPlace(colour, 63).right, colour.palette.right);
    EXPECT_EQ(BoxPlace(colour, 63).bottom, colour.palette.bottom);
    EXPECT_EQ(BoxPlace(colour, 16).top, BoxPlace(colour, 0).bottom);
}

}  // namespace
}  // namespace qz
