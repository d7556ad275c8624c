#include "com/event_connection.h"

#include "sample/container/event_text.h"
#include "tests/com/test_source.h"

#include "generated/qzVandraExt.h"

#include <gtest/gtest.h>

#include <memory>

using namespace qz;

namespace {

/// An event with the arguments (3, in/out 1); returns what the sinks left in the second.
long Raise(TestSource& source) {
    long goOn = 1;
    FireEvent(source.Events(), 1, {EventArgument(3L), EventArgument(&goOn)});
    return goOn;
}

ComPtr<ITypeInfo> ThumbnailEvents() {
    ComPtr<ITypeLib> library;
    ComPtr<ITypeInfo> info;
    ThrowIfFailed(LoadTypeLibEx(L"qzVandraExt.dll", REGKIND_NONE, &library));
    ThrowIfFailed(library->GetTypeInfoOfGuid(DIID__IqzThumbnailCtrlEvents, &info));
    return info;
}

}  // namespace

TEST(EventSink, HandlerMayDisconnectInsideTheCall) {
    const ComPtr<TestSource> source = MakeObject<TestSource>();
    std::unique_ptr<EventConnection> connection;
    int calls = 0;
    const auto guard = std::make_shared<int>(7);  // owned by the handler, which must live until it returns
    connection = std::make_unique<EventConnection>(source->Identity(), testEvents,
                                                   [&calls, &connection, kept = guard](DISPID, DISPPARAMS&) {
                                                       connection.reset();
                                                       calls += *kept == 7 ? 1 : 100;
                                                   });
    Raise(*source.Get());
    Raise(*source.Get());
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(guard.use_count(), 1) << "the sink is still alive";
}

TEST(EventSink, ObjectWithoutTheEventsIsAnError) {
    const ComPtr<TestSource> source = MakeObject<TestSource>();
    const auto connect = [&] {
        EventConnection connection(source->Identity(), DIID__IqzThumbnailCtrlEvents,
                                   [](DISPID, DISPPARAMS&) {});
    };
    EXPECT_THROW(connect(), ComError);
}

TEST(EventText, NamesComeFromTheTypeLibrary) {
    const ComPtr<TestSource> source = MakeObject<TestSource>();
    const ComPtr<ITypeInfo> info = ThumbnailEvents();
    std::wstring named;
    std::wstring plain;
    const EventConnection connection(source->Identity(), testEvents,
                                     [&](DISPID event, DISPPARAMS& parameters) {
                                         named = DescribeEvent(info.Get(), event, parameters);
                                         plain = DescribeEvent(nullptr, event, parameters);
                                     });
    Raise(*source.Get());
    EXPECT_EQ(named, L"ThumbActivated(page: 3, Continue: 1)");
    EXPECT_EQ(plain, L"Event 1(3, 1)");
}
