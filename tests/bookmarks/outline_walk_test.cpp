// The order and the bounds of reading an outline, over outlines of numbers.
#include "panes/bookmarks/outline_walk.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <stdexcept>
#include <string>

namespace qz {
namespace {

/// Bookmarks are numbers; what is below them comes from a function.
struct NumberSource {
    using Node = int;
    using Identity = int;
    using Entries = std::vector<OutlineEntry<int>>;

    std::function<std::vector<int>(int)> below;
    std::set<int> unreadable = {};
    int readsUntilChange = -1;
    int readsUntilStop = -1;
    long reads = 0;

    void Children(int node, Entries& entries) {
        ++reads;
        if (readsUntilChange-- == 0) throw OutlineChanged();
        if (readsUntilStop-- == 0) throw OutlineStopped();
        for (const int child : below(node)) {
            if (unreadable.contains(child)) throw std::runtime_error("unreadable");
            entries.push_back({child, std::to_wstring(child), !below(child).empty()});
        }
    }
    int IdentityOf(int node) const { return node; }
};

/// Writes down what it is told: "+3" inserted, "?3" left unread, "!3" opened.
struct TextView {
    using Place = int;

    std::string text;
    std::size_t inserted = 0;

    std::vector<int> Insert(int, std::vector<OutlineEntry<int>>& entries) {
        std::vector<int> places;
        for (const auto& entry : entries) {
            text += "+" + std::to_string(entry.node) + " ";
            places.push_back(entry.node);
        }
        inserted += places.size();
        return places;
    }
    void LeaveUnread(int place) { text += "?" + std::to_string(place) + " "; }
    void Open(int place) { text += "!" + std::to_string(place) + " "; }
};

/// 0 has 1, 2, 3; 1 has 11, 12; 11 has 111; 3 has 31.
std::vector<int> SmallOutline(int node) {
    switch (node) {
        case 0:
            return {1, 2, 3};
        case 1:
            return {11, 12};
        case 11:
            return {111};
        case 3:
            return {31};
        default:
            return {};
    }
}

std::string Walked(NumberSource& source, OutlineLimits limits) {
    TextView view;
    OutlineWalk(source, view, limits).TopLevel(0, 0);
    return view.text;
}

TEST(OutlineWalk, OneLevelLeavesParentsUnreadAndAllLevelsOpensThemFromBelow) {
    NumberSource source{SmallOutline};
    EXPECT_EQ(Walked(source, oneLevel), "+1 +2 +3 ?1 ?3 ");
    EXPECT_EQ(source.reads, 1);
    EXPECT_EQ(Walked(source, everyLevel), "+1 +2 +3 +11 +12 +111 !11 !1 +31 !3 ");
}

TEST(OutlineWalk, ASubtreeThatFailsIsLeftUnreadAndTheOthersAreRead) {
    NumberSource source{SmallOutline, {12}};
    EXPECT_EQ(Walked(source, everyLevel), "+1 +2 +3 ?1 +31 !3 ");
    source.unreadable = {111};
    EXPECT_EQ(Walked(source, everyLevel), "+1 +2 +3 +11 +12 ?11 !1 +31 !3 ");
}

TEST(OutlineWalk, AtTheTopWhatWasReadStaysAndBelowNothingDoes) {
    NumberSource source{SmallOutline, {3}};
    TextView view;
    EXPECT_THROW(OutlineWalk(source, view, everyLevel).TopLevel(0, 0), std::runtime_error);
    EXPECT_EQ(view.text, "+1 +2 +11 +12 +111 !11 !1 ");
    view.text.clear();
    EXPECT_THROW(OutlineWalk(source, view, everyLevel).Below(0, 0), std::runtime_error);
    EXPECT_EQ(view.text, "");
}

TEST(OutlineWalk, EndsAtOnceWhenTheOutlineChanged) {
    for (int reads = 0; reads < 4; ++reads) {
        NumberSource source{SmallOutline};
        source.readsUntilChange = reads;
        TextView view;
        EXPECT_THROW(OutlineWalk(source, view, everyLevel).TopLevel(0, 0), OutlineChanged);
        EXPECT_EQ(source.reads, reads + 1);
    }
}

TEST(OutlineWalk, StoppedLeavesTheRestUnreadAndAsksNoMore) {
    const char* const shown[] = {"", "+1 +2 +3 ?1 ?3 ", "+1 +2 +3 +11 +12 ?11 !1 ?3 ",
                                 "+1 +2 +3 +11 +12 +111 !11 !1 ?3 "};
    for (int reads = 0; reads < 5; ++reads) {
        NumberSource source{SmallOutline};
        source.readsUntilStop = reads;
        TextView view;
        OutlineWalk walk(source, view, everyLevel);
        walk.TopLevel(0, 0);
        EXPECT_EQ(walk.Stopped(), reads < 4);
        if (reads < 4) {
            EXPECT_EQ(view.text, shown[reads]);
        }
        EXPECT_EQ(source.reads, std::min(reads + 1, 4));
    }
}

TEST(OutlineWalk, TheShareGrowsFrom0To1) {
    NumberSource source{SmallOutline};
    TextView view;
    OutlineWalk walk(source, view, everyLevel);
    std::vector<double> shares;
    source.below = [&](int node) {
        if (shares.empty() || shares.back() != walk.Share()) shares.push_back(walk.Share());
        return SmallOutline(node);
    };
    EXPECT_EQ(walk.Share(), 0);
    walk.TopLevel(0, 0);
    EXPECT_EQ(shares, (std::vector<double>{0, 0.5}));
}

TEST(OutlineWalk, BookmarksBelowThemselvesAreNotReadAgain) {
    NumberSource source{[](int node) -> std::vector<int> {
        if (node == 3) return {};
        return node == 2 ? std::vector<int>{3, 1} : std::vector<int>{node + 1};
    }};
    EXPECT_EQ(Walked(source, everyLevel), "+1 +2 +3 +1 ?1 !2 !1 ");
}

TEST(OutlineWalk, OutlinesWithoutEndAreCutOff) {
    // Every bookmark is another object, so only the limits help.
    int next = 0;
    NumberSource source{[&](int) { return std::vector<int>{++next, ++next}; }};
    TextView view;
    OutlineWalk(source, view, OutlineLimits{50, 10'000}).TopLevel(0, 0);
    EXPECT_GE(view.inserted, 10'000u);
    EXPECT_LE(view.inserted, 10'002u);

    NumberSource chain{[](int node) { return std::vector<int>{node + 1}; }};
    TextView deep;
    OutlineWalk(chain, deep, everyLevel).TopLevel(0, 0);
    EXPECT_EQ(deep.inserted, everyLevel.levels);
}

}  // namespace
}  // namespace qz
