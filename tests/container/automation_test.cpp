#include "sample/container/automation.h"

#include "tests/thumbnails/pane_fixture.h"

#include <gtest/gtest.h>

using namespace qz;

TEST(Automation, CallsByNameWithArgumentsInOrder) {
    const ComPtr<IReferenceHost> host = MakeHost(2);
    CallMethod(host.Get(), L"NewDocument", {5L, 1440L, 2880L});
    PutProperty(host.Get(), L"SettingsKeyPath", L"here");
    long width = 0;
    EXPECT_EQ(host->GetPageWidth(&width), S_OK);
    EXPECT_EQ(width, 1440);
    EXPECT_EQ(_bstr_t(GetProperty(host.Get(), L"SettingsKeyPath")), _bstr_t(L"here"));
    EXPECT_TRUE(HasMember(host.Get(), L"NewDocument"));
    EXPECT_FALSE(HasMember(host.Get(), L"NoSuchMember"));
}

TEST(Automation, FailureSaysWhyInTheObjectsWords) {
    const ComPtr<IReferenceHost> host = MakeHost(1);
    try {
        CallMethod(host.Get(), L"LoadDocument", {L"no such file.vdoc"});
        FAIL() << "nothing was thrown";
    } catch (const ComError& error) {
        EXPECT_TRUE(FAILED(error.code));
        EXPECT_NE(error.text.find(L"no such file.vdoc"), error.text.npos);
    }
    EXPECT_THROW(CallMethod(host.Get(), L"NoSuchMember"), ComError);
    EXPECT_THROW(CallMethod(host.Get(), L"LoadDocument"), ComError) << "an argument is missing";
}
