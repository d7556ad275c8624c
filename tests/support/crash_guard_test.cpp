// What ends a test program, and what does not.
#include "tests/ui/test_control.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace qz {
namespace {

void* NoObject() {
    void* volatile nothing = reinterpret_cast<void*>(std::uintptr_t{16});
    return nothing;
}

void WriteToNothing() { *static_cast<volatile int*>(NoObject()) = 1; }

/// Does something in a window procedure that the system calls back.
void InWindowProcedure(void (*action)()) {
    Container container;
    container.control->onMessage = [&](UINT message) -> std::optional<LRESULT> {
        if (message == WM_CREATE) action();
        return std::nullopt;
    };
    container.Do(OLEIVERB_SHOW);
}

int Descend(const volatile char* above) {
    volatile char here[1000];
    here[0] = *above;
    return here[0] == 1 ? 0 : Descend(here) + here[0];
}

void OverflowStack() {
    const volatile char first = 0;
    Descend(&first);
}

/// Runs what no processor knows, outside any module.
void LetTheSystemWriteToNothing() { SetRect(static_cast<RECT*>(NoObject()), 1, 2, 3, 4); }

TEST(CrashGuardDeathTest, FaultsEndTheProgramWhereverTheyAre) {
    const struct {
        const char* name;
        void (*fault)();
    } rows[] = {
        {"access violation.*writing 0x10", WriteToNothing},
        {"access violation", LetTheSystemWriteToNothing},
        {"stack overflow", OverflowStack},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EXIT(row.fault(), ::testing::ExitedWithCode(99), row.name);
        EXPECT_EXIT(InWindowProcedure(row.fault), ::testing::ExitedWithCode(99), row.name);
    }
}

TEST(CrashGuard, TheSystemHandlesWhatItHandles) {
    const auto look = [] {
        EXPECT_TRUE(IsBadReadPtr(NoObject(), 4));
        EXPECT_EQ(lstrlenW(static_cast<const wchar_t*>(NoObject())), 0);
    };
    look();
    InWindowProcedure(look);
}

}  // namespace
}  // namespace qz
