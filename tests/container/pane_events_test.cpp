// What a container does about a pane's events: the log, the question, and the answer it gives back.
#include "sample/container/pane.h"

#include "tests/com/test_source.h"

#include "generated/qzVandraExt.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

using namespace qz;

namespace {

constexpr DISPID thumbActivated = 1;
constexpr DISPID deleteSelectedPages = 2;

/// The container's listener on an object that raises a pane's events.
class PaneEvents : public testing::Test {
  protected:
    PaneEvents() {
        environment.log = [this](const std::wstring& line) { lines.push_back(line); };
        environment.ask = [this](const wchar_t*) {
            ++questions;
            return answer;
        };
        ComPtr<ITypeLib> library;
        ThrowIfFailed(LoadTypeLibEx(L"qzVandraExt.dll", REGKIND_NONE, &library));
        ThrowIfFailed(library->GetTypeInfoOfGuid(DIID__IqzThumbnailCtrlEvents, &info));
    }

    /// Returns what is left in the event's in/out parameter.
    long Raise(DISPID event, long goOn = 1) {
        const EventConnection connection(
            source->Identity(), testEvents, [this](DISPID id, DISPPARAMS& parameters) {
                HandlePaneEvent(PaneTable().front(), environment, info.Get(), id, parameters);
            });
        if (event == thumbActivated)
            FireEvent(source->Events(), event, {EventArgument(3L), EventArgument(&goOn)});
        else
            FireEvent(source->Events(), event, {EventArgument(&goOn)});
        return goOn;
    }

    ComPtr<TestSource> source = MakeObject<TestSource>();
    ComPtr<ITypeInfo> info;
    PaneEnvironment environment;
    bool answer = false;
    int questions = 0;
    std::vector<std::wstring> lines;
};

}  // namespace

TEST_F(PaneEvents, PagesAreDeletedOnlyOnYes) {
    answer = true;
    EXPECT_EQ(Raise(deleteSelectedPages), 1);
    EXPECT_EQ(lines, std::vector<std::wstring>{L"Pages: DeleteSelectedPages(Continue: 1)"});
    answer = false;
    EXPECT_EQ(Raise(deleteSelectedPages), 0);
    EXPECT_EQ(lines.back(), L"Pages: answered DeleteSelectedPages(Continue: 0)");
    EXPECT_EQ(questions, 2);
}

TEST_F(PaneEvents, WhatIsVetoedAlreadyIsNotAskedFor) {
    answer = true;
    EXPECT_EQ(Raise(deleteSelectedPages, 0), 0);
    EXPECT_EQ(questions, 0);
}

TEST_F(PaneEvents, AQuestionThatCannotBePutKeepsThePages) {
    environment.ask = [](const wchar_t*) -> bool { throw std::runtime_error("no window"); };
    EXPECT_EQ(Raise(deleteSelectedPages), 0);
}

// A raiser may pass something else than its description says.
TEST_F(PaneEvents, AnEventWithoutItsParameterIsLeftAlone) {
    DISPPARAMS none{};
    AskBeforeDeletingPages(deleteSelectedPages, none, environment.ask);
    VARIANT byValue = EventArgument(1L);
    DISPPARAMS wrong{&byValue, nullptr, 1, 0};
    AskBeforeDeletingPages(deleteSelectedPages, wrong, environment.ask);
    EXPECT_EQ(questions, 0);
}
