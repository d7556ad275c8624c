// Sequences of clicks and keys against the selection they lead to, and what the pane is asked to show and
// tell.
#include "panes/thumbnails/page_selection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace qz {
namespace {

constexpr std::size_t pageCount = 10;

/// One step of a sequence: "5" clicks page 5, "s5" with Shift, "c5" with Ctrl, "x5" with both, "-" clicks
/// beside the pages (also "s-", "c-"), "<" and ">" step, "s<" and "s>" extend, "home", "end", "all", "esc".
SelectionChange Do(PageSelection& selection, std::string step) {
    if (step == "home") return selection.SelectFirst();
    if (step == "end") return selection.SelectLast();
    if (step == "all") return selection.SelectAll();
    if (step == "esc") return selection.Clear();
    ClickModifiers modifiers;
    modifiers.shift = step[0] == 's' || step[0] == 'x';
    modifiers.control = step[0] == 'c' || step[0] == 'x';
    if (modifiers.shift || modifiers.control) step.erase(0, 1);
    if (step == "<") return selection.StepBack(modifiers.shift);
    if (step == ">") return selection.StepForward(modifiers.shift);
    if (step == "-") return selection.ClickBeside(modifiers);
    return selection.Click(std::stoul(step) - 1, modifiers);
}

constexpr long none = 0;  // no event

struct Sequence {
    std::vector<std::string> steps;
    std::vector<long> pages;                 // selected in the end
    long announced = none;                   // by the last step
    std::optional<std::size_t> reveal = {};  // page that the last step scrolls to
};

class SelectionSequence : public testing::TestWithParam<Sequence> {};

TEST_P(SelectionSequence, EndsAs) {
    std::vector<ThumbnailRecord> records(pageCount);
    records[2].flags = thumbnailCurrent;
    PageSelection selection(records);
    SelectionChange change;
    for (const std::string& step : GetParam().steps) {
        change = Do(selection, step);
        const auto& bounds = selection.GetBounds();
        ASSERT_EQ(bounds.has_value(), selection.Count() > 0);
        if (!bounds) continue;
        EXPECT_TRUE(selection.IsSelected(bounds->first)) << step;
        EXPECT_TRUE(selection.IsSelected(bounds->last)) << step;
        EXPECT_EQ(static_cast<long>(bounds->first) + 1, selection.Pages().front());
        EXPECT_EQ(static_cast<long>(bounds->last) + 1, selection.Pages().back());
    }
    EXPECT_EQ(selection.Pages(), GetParam().pages);
    EXPECT_EQ(change.announced.value_or(none), GetParam().announced);
    EXPECT_EQ(change.reveal ? std::optional(*change.reveal + 1) : std::nullopt, GetParam().reveal);
    EXPECT_EQ(records[2].flags & thumbnailCurrent, thumbnailCurrent) << "no concern of the selection";
    for (std::size_t i = 0; i < pageCount; ++i) {
        const auto pages = selection.Pages();
        const bool listed = std::ranges::find(pages, static_cast<long>(i) + 1) != pages.end();
        EXPECT_EQ(selection.IsSelected(i), listed) << "a flag outside the bounds, page " << i + 1;
    }
}

const Sequence clicks[] = {
    {{"4"}, {4}, 4},
    {{"4", "6"}, {6}, 6},
    {{"4", "4"}, {4}, 4},
    {{"4", "x6"}, {4}},
    {{"x6"}, {}},
    {{"4", "-"}, {}},
    {{"4", "s-"}, {4}},
    {{"4", "c-"}, {4}},
    {{"s4"}, {4}, 4},
    {{"4", "s7"}, {4, 5, 6, 7}, SelectionChange::announcedRange},
    {{"7", "s4"}, {4, 5, 6, 7}, SelectionChange::announcedRange},
    {{"4", "s7", "s5"}, {5}, 5},
    {{"2", "c9", "s5"}, {2, 3, 4, 5, 6, 7, 8, 9}, SelectionChange::announcedRange},
    {{"c4"}, {4}, 4},
    {{"c4", "c4"}, {}},
    {{"4", "c4", "c6"}, {6}, 6},
    {{"2", "c5", "c7"}, {2, 5, 7}, 7},
    {{"2", "c5", "c7", "c2"}, {5, 7}},
    {{"2", "c5", "c7", "c7"}, {2, 5}},
    {{"2", "c5", "c7", "c5"}, {2, 7}},
    {{"2", "c5", "c7", "c2", "c7"}, {5}},
};
INSTANTIATE_TEST_SUITE_P(Clicks, SelectionSequence, testing::ValuesIn(clicks));

const Sequence keys[] = {
    {{"home"}, {1}, 1, 1},
    {{"all", "end"}, {10}, 10, 10},
    {{"<"}, {10}, 10, 10},
    {{">"}, {1}, 1, 1},
    {{"4", "<"}, {3}, 3, 3},
    {{"4", ">"}, {5}, 5, 5},
    {{"4", "s>"}, {4, 5}, 5, 5},
    {{"4", "s>", "s>", "s<"}, {3, 4, 5, 6}, 3, 3},
    {{"4", "s>", "<"}, {3}, 3, 3},
    {{"2", "c7", "s>"}, {2, 3, 4, 5, 6, 7, 8}, 8, 8},
    {{"2", "c7", ">"}, {8}, 8, 8},
    {{"1", "<"}, {1}},
    {{"1", "s<"}, {1}},
    {{"10", ">"}, {10}},
    {{"10", "s>"}, {10}},
    {{"1", "s3", "<"}, {1}, 1, 1},
    {{"8", "s10", ">"}, {10}, 10, 10},
    {{"1", "s3", "s<"}, {1, 2, 3}},
    {{"all"}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
    {{"all", "esc"}, {}},
    {{"esc"}, {}},
};
INSTANTIATE_TEST_SUITE_P(Keys, SelectionSequence, testing::ValuesIn(keys));

TEST(Selection, RepaintsNoMoreThanChanged) {
    std::vector<ThumbnailRecord> records(pageCount);
    PageSelection selection(records);
    using Repaint = SelectionChange::Repaint;
    const std::pair<const char*, Repaint> steps[] = {
        {"esc", Repaint::Nothing}, {"-", Repaint::Nothing},     {"5", Repaint::Record},
        {"5", Repaint::Record},    {"6", Repaint::Everything},  {"c8", Repaint::Record},
        {"c8", Repaint::Record},   {"s9", Repaint::Everything}, {"s7", Repaint::Everything},
        {"x1", Repaint::Nothing},  {"esc", Repaint::Everything}};
    for (const auto& [step, repaint] : steps) {
        const SelectionChange change = Do(selection, step);
        EXPECT_EQ(change.repaint, repaint) << step;
        if (repaint != Repaint::Record) continue;
        EXPECT_EQ(change.record + 1, step[0] == 'c' ? 8u : 5u);
    }
}

TEST(Selection, PagesAreAddedToWhatIsSelected) {
    std::vector<ThumbnailRecord> records(pageCount);
    records[6].flags = thumbnailCurrent;
    PageSelection selection(records);
    const long first[] = {5, 3, 5};
    selection.AddPages(first);
    EXPECT_EQ(selection.Pages(), (std::vector<long>{3, 5}));
    EXPECT_FALSE(selection.Contiguous());
    const long more[] = {0, -7, 11, 2147483647, 7, 4};
    selection.AddPages(more);
    EXPECT_EQ(selection.Pages(), (std::vector<long>{3, 4, 5, 7}));
    EXPECT_EQ(selection.GetBounds(), (PageSelection::Bounds{2, 6}));
    EXPECT_EQ(records[6].flags, thumbnailSelected) << "the current page's mark goes";
    selection.Include(5);
    EXPECT_TRUE(selection.Contiguous());
}

TEST(Selection, WithoutPagesNothingHappens) {
    std::vector<ThumbnailRecord> records;
    PageSelection selection(records);
    for (const char* step : {"home", "end", "all", "esc", "<", ">", "s<", "-"}) {
        EXPECT_EQ(Do(selection, step), SelectionChange{}) << step;
    }
    EXPECT_TRUE(selection.Contiguous());
    EXPECT_TRUE(selection.Pages().empty());
}

}  // namespace
}  // namespace qz
