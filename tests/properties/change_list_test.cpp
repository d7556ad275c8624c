#include "properties/model/change_list.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace qz {
namespace {

class ChangeListTest : public testing::Test {
  protected:
    ChangeListTest() {
        for (const char* change : {"a", "b", "c"}) changes.Add(change);
    }
    std::string TakeRestBack() {
        std::string taken;
        changes.TakeBack([&](const std::string& change) { taken += change; });
        return taken;
    }

    ChangeList<std::string> changes;
};

TEST_F(ChangeListTest, TakesTheNewestBackFirst) {
    EXPECT_EQ(TakeRestBack(), "cba");
    EXPECT_TRUE(changes.Empty());
}

TEST_F(ChangeListTest, LosesNothingWhenOneCannotBeTakenBack) {
    const auto fails = [](const std::string& change) {
        if (change == "b") throw std::runtime_error(change);
    };
    EXPECT_THROW(changes.TakeBack(fails), std::runtime_error);
    EXPECT_EQ(TakeRestBack(), "ba");
}

TEST_F(ChangeListTest, ClearedFromWithinItTakesNoMoreBack) {
    std::string taken;
    changes.TakeBack([&](const std::string& change) {
        changes.Clear();
        for (const char* next : {"1", "2", "3"}) changes.Add(next);
        taken += change;  // its record is gone, another lies in its place
    });
    EXPECT_EQ(taken, "c");
    EXPECT_EQ(TakeRestBack(), "321");
}

TEST_F(ChangeListTest, ChangesMadeMeanwhileAreTakenBackToo) {
    std::string taken;
    changes.TakeBack([&](const std::string& change) {
        taken += change;
        if (change == "c") changes.Add("d");
        if (change == "b") taken += "(" + TakeRestBack() + ")";
    });
    EXPECT_EQ(taken, "cdb(ba)");
    EXPECT_TRUE(changes.Empty());
}

}  // namespace
}  // namespace qz
