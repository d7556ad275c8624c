#include "tests/host_reference/host_fixture.h"

namespace qz::sample {
namespace {

struct HostEvents : HostTest {};

TEST_F(HostEvents, EachChangeIsToldOnceWithItsBits) {
    host->SetCurrentPage(3);
    host->SetCurrentPage(3);
    host->SetZoom(150);
    host->SetZoom(150);
    host->put_Mode(4);
    Write(L"Pages[2]", L"Width", 9000L);
    Write(L"Document", L"Title", L"x");
    host->DeletePage(5, 1);
    EXPECT_EQ(Told(), (Flags{0x20, 0x40, 0x1, 0x100, 0x200, 0x80}));
    long flags = -1;
    host->GetChangeFlags(&flags);
    EXPECT_EQ(flags, 0);
}

TEST_F(HostEvents, WhatAPaneWritesWhileItReadsIsNoChange) {
    Write(L"Document", L"GetPagePtrNoReadContents", true);
    Write(L"Document", L"GetPagePtrNoReadContents", false);
    Write(L"Document", L"AlwaysConfirmAttributeChanges", 1L);
    Write(L"Document", L"PageSequence", L"2; 3");
    Write(L"Document", L"SetFocus_M", 1L);
    EXPECT_EQ(Told(), Flags{});
}

TEST_F(HostEvents, ChangesWithinAnEventAreToldWithinIt) {
    const ComPtr<EventSink> second = MakeObject<EventSink>(host.Get());
    Advise(second.Get());
    sink->whenTold = [this] {
        sink->whenTold = nullptr;
        host->SetCurrentPage(2);
    };
    host->SetZoom(50);
    EXPECT_EQ(Told(), (Flags{0x40, 0x20}));
    EXPECT_EQ(second->flags,
              (Flags{0x20, 0x40}));  // the inner event came first, the outer flags are back after it
}

TEST_F(HostEvents, ASinkMayLeaveOrReleaseTheHostInside) {
    sink->whenTold = [this] { Point()->Unadvise(cookie); };
    host->SetZoom(50);
    host->SetZoom(60);
    EXPECT_EQ(Told().size(), 1u);
    long sinks = -1;
    host->get_SinkCount(&sinks);
    EXPECT_EQ(sinks, 0);

    Advise(sink.Get());
    ComPtr<IHostObject> document = ObjectAt(L"Document");
    sink->whenTold = [&] {
        document.Reset();
        host.Reset();
    };
    IHostObject* const borrowed = document.Get();
    EXPECT_EQ(borrowed->put_Attribute(_bstr_t(L"Title"), _variant_t(L"last words")), S_OK);
    EXPECT_EQ(host, nullptr);
}

}  // namespace
}  // namespace qz::sample
