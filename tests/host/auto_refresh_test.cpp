// The host's automatic refresh comes back whatever happens in between.
#include "host/auto_refresh.h"
#include "tests/support/host_under_test.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace qz {
namespace {

long FlagOf(IReferenceHost* host) {
    long flag = -1;
    ThrowIfFailed(host->GetAutoRefresh(&flag));
    return flag;
}

TEST(AutoRefresh, RestoresTheSavedFlag) {
    const auto host = MakeHost(1);
    const ULONG references = ReferencesOf(host.Get());
    for (const long saved : {0L, 1L}) {
        host->SetAutoRefresh(saved);
        try {
            const qzVandraAutoRefresh suspended(host.Get());
            EXPECT_EQ(FlagOf(host.Get()), 0);
            EXPECT_EQ(ReferencesOf(host.Get()), references + 1);
            throw std::runtime_error("the guarded work fails");
        } catch (const std::runtime_error&) {
        }
        EXPECT_EQ(FlagOf(host.Get()), saved);
        EXPECT_EQ(ReferencesOf(host.Get()), references);
    }
}

TEST(AutoRefresh, RefreshesAtTheEndWhenAsked) {
    const auto host = MakeHost(1);
    { const qzVandraAutoRefresh suspended(host.Get()); }
    EXPECT_EQ(CallCount(host.Get(), L"Refresh"), 0);
    { const qzVandraAutoRefresh suspended(host.Get(), 0, qzVandraAutoRefresh::AtEnd::Refresh); }
    EXPECT_EQ(CallCount(host.Get(), L"Refresh"), 1);
}

TEST(AutoRefresh, NeedsAHostThatAnswers) {
    const auto codeOf = [](IVandraX* host) {
        try {
            const qzVandraAutoRefresh suspended(host);
            return S_OK;
        } catch (const ComError& error) {
            return error.code;
        }
    };
    EXPECT_EQ(codeOf(nullptr), E_POINTER);
    const auto host = MakeHost(1);
    for (const long failing : {1L, 2L}) {  // the reading, then the writing of the flag
        host->FailCall(failing, E_ABORT);
        EXPECT_EQ(codeOf(host.Get()), E_ABORT);
        host->ClearFaults();
        EXPECT_EQ(FlagOf(host.Get()), 1);
    }
    host->FailCall(3, E_ABORT);  // one failure of the restoring
    EXPECT_EQ(codeOf(host.Get()), S_OK);
    host->ClearFaults();
    EXPECT_EQ(FlagOf(host.Get()), 1);
}

}  // namespace
}  // namespace qz
