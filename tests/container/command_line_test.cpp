#include "sample/container/command_line.h"

#include <gtest/gtest.h>

#include <vector>

using namespace qz;

namespace {

std::optional<CommandLine> Parse(const std::vector<std::wstring>& arguments) {
    std::wstring error;
    const auto line = ParseCommandLine(arguments, error);
    EXPECT_EQ(line.has_value(), error.empty());
    return line;
}

}  // namespace

TEST(CommandLine, TakesOptionsInAnyOrder) {
    const auto line = Parse({L"--page", L"12", L"a b.vdoc", L"--size", L"800x600", L"--ready-file", L"r",
                             L"--manifest", L"m", L"--answer", L"no"});
    ASSERT_TRUE(line);
    EXPECT_EQ(line->document, L"a b.vdoc");
    EXPECT_EQ(line->page, 12);
    EXPECT_EQ(line->size, (WindowSize{800, 600}));
    EXPECT_EQ(line->readyFile, L"r");
    EXPECT_EQ(line->manifest, L"m");
    EXPECT_EQ(line->answer, false);
}

TEST(CommandLine, RefusesWhatItDoesNotUnderstand) {
    const std::vector<std::vector<std::wstring>> bad = {
        {L"--page"},
        {L"--page", L"0"},
        {L"--page", L"-3"},
        {L"--page", L"3x"},
        {L"--page", L""},
        {L"--size", L"800"},
        {L"--size", L"800x"},
        {L"--size", L"x600"},
        {L"--size", L"0x0"},
        {L"--ready-file", L""},
        {L"--page", L"99999999999999999999"},
        {L"--answer"},
        {L"--answer", L"maybe"},
        {L"--colour"},
        {L"one", L"two"},
    };
    for (const auto& arguments : bad) EXPECT_FALSE(Parse(arguments)) << arguments.size();
}
