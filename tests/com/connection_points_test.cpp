// Events while their sinks come, go, fail and release the object that fires.
#include "test_source.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

DWORD Connect(ConnectionPoint& point, TestSink::Handler handler) {
    const auto sink = MakeObject<TestSink>(std::move(handler));
    DWORD cookie = 0;
    EXPECT_EQ(point.Advise(sink->Identity(), &cookie), S_OK);
    return cookie;
}

TEST(ConnectionPoints, ArgumentsArriveInTheDispatchOrder) {
    const auto source = MakeObject<TestSource>();
    long answer = 1;
    Connect(source->Events(), [](DISPID id, DISPPARAMS& parameters) -> HRESULT {
        EXPECT_EQ(id, 5);
        EXPECT_EQ(parameters.cArgs, 2u);
        EXPECT_EQ(parameters.rgvarg[1].lVal, 7);
        EXPECT_EQ(parameters.rgvarg[0].vt, VT_I4 | VT_BYREF);
        *parameters.rgvarg[0].plVal = 0;
        return E_FAIL;  // of no concern to the source
    });
    FireEvent(source->Events(), 5, {EventArgument(7l), EventArgument(&answer)});
    EXPECT_EQ(answer, 0);
}

TEST(ConnectionPoints, SinkThatLeavesInsideTheEventIsNotCalledAgain) {
    const auto source = MakeObject<TestSource>();
    ConnectionPoint& events = source->Events();
    std::string calls;
    DWORD first = 0;
    DWORD second = 0;
    first = Connect(events, [&](DISPID, DISPPARAMS&) {
        calls += '1';
        events.Unadvise(first);
        events.Unadvise(second);
        Connect(events, [&](DISPID, DISPPARAMS&) { return calls += '4', S_OK; });
        return S_OK;
    });
    second = Connect(events, [&](DISPID, DISPPARAMS&) { return calls += '2', S_OK; });
    Connect(events, [&](DISPID, DISPPARAMS&) { return calls += '3', S_OK; });
    FireEvent(events, 1);
    EXPECT_EQ(calls, "13");
    FireEvent(events, 1);
    EXPECT_EQ(calls, "1334");
    EXPECT_EQ(events.Unadvise(second), CONNECT_E_NOCONNECTION);
}

TEST(ConnectionPoints, SourceReleasedInsideItsEventLivesToItsEnd) {
    bool destroyed = false;
    auto source = MakeObject<TestSource>(&destroyed);
    ConnectionPoint& events = source->Events();
    int calls = 0;
    const auto release = [&](DISPID, DISPPARAMS&) {
        source.Reset();
        EXPECT_FALSE(destroyed);
        ++calls;
        return S_OK;
    };
    Connect(events, release);
    Connect(events, release);
    FireEvent(events, 1);
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(destroyed);
}

TEST(ConnectionPoints, EnumeratorsAreSnapshots) {
    const auto source = MakeObject<TestSource>();
    Connect(source->Events(), [](DISPID, DISPPARAMS&) { return S_OK; });
    const DWORD second = Connect(source->Events(), [](DISPID, DISPPARAMS&) { return S_OK; });

    ComPtr<IEnumConnections> connections;
    ASSERT_EQ(source->Events().EnumConnections(&connections), S_OK);
    source->Events().Unadvise(second);
    CONNECTDATA data[3] = {};
    ULONG fetched = 99;
    EXPECT_EQ(connections->Next(3, data, &fetched), S_FALSE);
    ASSERT_EQ(fetched, 2u);
    for (ULONG i = 0; i < fetched; ++i) data[i].pUnk->Release();
    EXPECT_EQ(connections->Next(1, data, nullptr), S_FALSE);
    EXPECT_EQ(connections->Next(2, data, nullptr), E_POINTER);
    EXPECT_EQ(connections->Reset(), S_OK);
    EXPECT_EQ(connections->Skip(1), S_OK);
    ComPtr<IEnumConnections> clone;
    ASSERT_EQ(connections->Clone(&clone), S_OK);
    EXPECT_EQ(clone->Next(1, data, nullptr), S_OK);
    EXPECT_EQ(data[0].dwCookie, second);
    data[0].pUnk->Release();

    ComPtr<IEnumConnectionPoints> points;
    ASSERT_EQ(source->EnumConnectionPoints(&points), S_OK);
    ComPtr<IConnectionPoint> point;
    ASSERT_EQ(points->Next(1, &point, nullptr), S_OK);
    IID iid{};
    EXPECT_EQ(point->GetConnectionInterface(&iid), S_OK);
    EXPECT_EQ(iid, testEvents);
}

TEST(ConnectionPoints, BadCallsAreRefused) {
    const auto source = MakeObject<TestSource>();
    DWORD cookie = 77;
    EXPECT_EQ(source->Events().Advise(nullptr, &cookie), E_POINTER);
    EXPECT_EQ(cookie, 0u);
    // A connection point answers neither the event interface nor IDispatch.
    EXPECT_EQ(source->Events().Advise(&source->Events(), &cookie), CONNECT_E_CANNOTCONNECT);
    IConnectionPoint* none = &source->Events();
    EXPECT_EQ(source->FindConnectionPoint(IID_IPropertyNotifySink, &none), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(source->FindConnectionPoint(testEvents, nullptr), E_POINTER);
}

}  // namespace
}  // namespace qz
