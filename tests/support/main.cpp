#include <gtest/gtest.h>

#ifdef _WIN32
#include "tests/support/crash_guard.h"

#include <windows.h>
#include <ole2.h>

namespace {

// The tests' thread is a single-threaded apartment with OLE, as a container's user-interface thread is.
class OleThread : public testing::Environment {
  public:
    void SetUp() override { ASSERT_EQ(OleInitialize(nullptr), S_OK); }
    void TearDown() override { OleUninitialize(); }
};

}  // namespace
#endif

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
#ifdef _WIN32
    SetProcessDPIAware();  // else the system hides the screen's resolution, and tests at all of them are the
                           // same
    qz::InstallCrashGuard();
    testing::AddGlobalTestEnvironment(new OleThread);  // googletest deletes it
#endif
    return RUN_ALL_TESTS();
}
