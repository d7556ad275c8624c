#include "properties/model/edit_state.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

TEST(EditStateTest, WhatWasEnteredKeepsTheHostsNewsAwayUntilItIsTaken) {
    EditState state;
    EXPECT_TRUE(state.FollowsHost() && !state.CanRestore());
    state.Enter();
    state.ForgetRefused();
    EXPECT_TRUE(state.Waiting() && state.CanRestore() && !state.FollowsHost());
    state.StopWaiting();
    EXPECT_TRUE(state.FollowsHost() && !state.CanRestore());
    for (const bool taken : {false, true}) {
        state.BeginWrite();
        EXPECT_FALSE(state.FollowsHost());
        state.EndWrite(taken);
        EXPECT_EQ(state.FollowsHost(), taken);
        EXPECT_TRUE(state.CanRestore());
    }
    state.TakenBack();
    EXPECT_FALSE(state.CanRestore());
    state.Refuse();
    state.StopWaiting();
    EXPECT_TRUE(state.CanRestore() && !state.FollowsHost());
    state.ForgetRefused();
    EXPECT_TRUE(state.FollowsHost());
}

TEST(EditStateTest, TypingWhileTheHostTakesAValueGoesOnWaiting) {
    EditState state;
    state.BeginWrite();
    EXPECT_TRUE(state.Hears(true));
    EXPECT_FALSE(state.Hears(false));
    state.Enter();
    state.EndWrite(false);
    EXPECT_TRUE(state.Waiting() && !state.Writing());
    EXPECT_TRUE(state.Hears(false));
}

TEST(EditStateTest, OwnChangesAreNotHeardHoweverNested) {
    EditState state;
    const bool outer = state.ChangeOwnControls(true);
    const bool inner = state.ChangeOwnControls(true);
    state.ChangeOwnControls(inner);
    EXPECT_FALSE(state.Hears(true));
    state.ChangeOwnControls(outer);
    EXPECT_TRUE(state.Hears(true));
    EXPECT_TRUE(state.ShowSeveral(true) && !state.ShowSeveral(true) && state.Several());
}

}  // namespace
}  // namespace qz
