// Tabs, list and description of the inspected object, and what is remembered from one to the next.
#include "tests/properties/inspector_fixture.h"
#include "tests/support/window_picture.h"

#include <algorithm>

namespace qz {
namespace {

TEST_F(InspectorTest, TabsStandInTheOrderOfTheAttributes) {
    const auto field = Create(typeField, L"F");
    Open();
    EXPECT_TRUE(Tabs().empty());
    Inspect(field);
    EXPECT_EQ(Tabs(), (Texts{L"Standard", L"Advanced", L"Borders", L"Fills", L"Shading", L"Group 1",
                             L"Group 2", L"Text", L"Caption", L"Data", L"Dynamic", L"Methods", L"Section",
                             L"Metadata", L"Actions", L"All"}));
    EXPECT_EQ(Tabs()[static_cast<size_t>(SelectedTab())], L"All");
    const Texts all = Names();
    EXPECT_EQ(std::ranges::count(all, L"InternalHandle") + std::ranges::count(all, L"Unsorted"), 0);
    ChooseTab(2);
    EXPECT_EQ(Names(), (Texts{L"BorderStyle", L"BorderWidth", L"BorderColor"}));
    ASSERT_TRUE(Choose(L"BorderWidth"));
    EXPECT_EQ(Description(), L"Width of the border in points");
    // The same kind of object again: tab and attribute come back.
    Inspect(Create(typeField, L"G"));
    EXPECT_EQ(SelectedTab(), 2);
    EXPECT_EQ(ChosenName(), L"BorderWidth");
    // A kind without that category: "All" is remembered from then on, the name is not there any more.
    Inspect(Create(typeFormAction, L"A"));
    EXPECT_EQ(Tabs(), (Texts{L"Standard", L"Advanced", L"Actions", L"All"}));
    EXPECT_EQ(SelectedTab(), 3);
    Inspect(field);
    EXPECT_EQ(Tabs()[static_cast<size_t>(SelectedTab())], L"All");
    EXPECT_EQ(ChosenName(), L"");
}

// After any change of size it looks as if everything had been painted anew.
TEST_F(InspectorTest, ChangesOfSizeLeaveNoOldPixels) {
    Open();
    ComPtr<IOleInPlaceObject> place;
    ASSERT_EQ(pane.As(&place), S_OK);
    const auto checkSizes = [&](const char* what) {
        for (const SIZE size : {SIZE{500, 560}, SIZE{320, 480}}) {
            const RECT bounds{0, 0, size.cx, size.cy};
            SetWindowPos(window->Frame(), nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOMOVE);
            EXPECT_EQ(place->SetObjectRects(&bounds, &bounds), S_OK);
            EXPECT_EQ(OldPixels(window->Frame()), 0) << what << ", " << size.cx;
        }
    };
    checkSizes("nothing inspected");
    Inspect(Create(typeField, L"F"));
    for (const char* name :
         {"Locked", "BorderStyle", "BorderColor", "Text", "Font", "Format", "NextActions"}) {
        ASSERT_TRUE(Choose(std::wstring(name, name + strlen(name)).c_str()));
        checkSizes(name);
    }
}

}  // namespace
}  // namespace qz
