#include "sample/host/change_tracker.h"

#include <gtest/gtest.h>

namespace qz::sample {
namespace {

struct Tracker : testing::Test {
    Tracker() { changes.Take(view); }
    ChangeTracker changes;
    ViewState view{1, 100, 1};
};

TEST_F(Tracker, CollectsWhileRefreshIsOffAndForgetsWhatCameBack) {
    changes.SetAutoRefresh(false);
    view.currentPage = 5;
    changes.Note(change::pages);
    EXPECT_EQ(changes.Take(view), change::none);
    EXPECT_EQ(changes.Flags(view), change::pages | change::currentPage);
    view.currentPage = 1;
    changes.SetAutoRefresh(true);
    EXPECT_EQ(changes.Take(view), change::pages);
}

TEST_F(Tracker, PageChangesWaitForTheEndOfPageOperations) {
    changes.SetPageOperations(false);
    changes.Note(change::pages | change::attribute);
    view.currentPage = 3;
    EXPECT_EQ(changes.Take(view), change::attribute);
    EXPECT_EQ(changes.Take(view), change::none);
    changes.SetPageOperations(true);
    EXPECT_EQ(changes.Take(view), change::pages | change::currentPage);
}

TEST_F(Tracker, FlagsCanBeReadByEveryoneWhileTheEventIsRaised) {
    {
        const ChangeTracker::Raising outer(changes, change::outline);
        EXPECT_EQ(changes.Flags(view), change::outline);
        EXPECT_EQ(changes.Flags(view), change::outline);
        {
            const ChangeTracker::Raising inner(changes, change::mode);
            EXPECT_EQ(changes.Flags(view), change::mode);
        }
        EXPECT_EQ(changes.Flags(view), change::outline);
    }
    EXPECT_EQ(changes.Flags(view), change::none);
}

}  // namespace
}  // namespace qz::sample
