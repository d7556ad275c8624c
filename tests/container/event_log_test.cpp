#include "sample/container/event_log.h"

#include "com/error.h"

#include <gtest/gtest.h>

using namespace qz;

namespace {

class EventLogTest : public testing::Test {
  protected:
    void SetUp() override {
        frame_ = CreateWindowExW(0, L"STATIC", L"frame", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                                 nullptr, nullptr, nullptr);
        ThrowLastErrorIf(!frame_, L"No window could be made");
        log.Create(frame_);
        log.Place({0, 0, 300, 80});
    }
    void TearDown() override { DestroyWindow(frame_); }

    int Count() const { return static_cast<int>(SendMessageW(log.Handle(), LB_GETCOUNT, 0, 0)); }
    std::wstring Line(int index) const {
        std::wstring text(100, L'\0');
        const auto length = SendMessageW(log.Handle(), LB_GETTEXT, static_cast<WPARAM>(index),
                                         reinterpret_cast<LPARAM>(text.data()));
        text.resize(length < 0 ? 0 : static_cast<size_t>(length));
        return text;
    }
    bool InSight(int index) const {
        RECT line{};
        RECT client{};
        GetClientRect(log.Handle(), &client);
        SendMessageW(log.Handle(), LB_GETITEMRECT, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&line));
        return line.top >= client.top && line.bottom <= client.bottom;
    }

    EventLog log;

  private:
    HWND frame_ = nullptr;
};

}  // namespace

TEST_F(EventLogTest, KeepsTheNewestLinesInSight) {
    const int added = EventLog::capacity + 3;
    for (int i = 1; i <= added; ++i) {
        log.Add(L"line");
        ASSERT_TRUE(InSight(Count() - 1)) << i;
    }
    EXPECT_EQ(Count(), EventLog::capacity);
    EXPECT_EQ(Line(0), L"4  line") << "the oldest have gone";
    EXPECT_EQ(Line(EventLog::capacity - 1), std::to_wstring(added) + L"  line");
}
