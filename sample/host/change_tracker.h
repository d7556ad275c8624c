// What has to be told to those who follow the host, and when.
#pragma once

#include "com/scope.h"
#include "host/change_flags.h"

#include <cstdint>

namespace qz::sample {

/// State that may go away and come back between two notifications; then nothing is told of it.
struct ViewState {
    int32_t mode = 1;
    int32_t zoom = 100;       // percent
    int32_t currentPage = 0;  // 1-based; 0 in a document without pages
    bool operator==(const ViewState&) const = default;
};

class ChangeTracker {
  public:
    /// Something changed; told with the next event.
    void Note(uint32_t flags) { pending_ |= flags; }

    /// 0 holds all events back until it is set again.
    void SetAutoRefresh(bool on) { autoRefresh_ = on; }
    bool AutoRefresh() const { return autoRefresh_; }

    /// While it is off, changes of the page order wait: others may be told meanwhile.
    void SetPageOperations(bool on) { pageOperations_ = on; }
    bool PageOperations() const { return pageOperations_; }

    /// The flags an event has to be raised with now, 0 for none. They count as told.
    uint32_t Take(const ViewState& view);

    /// What GetChangeFlags answers: the flags of the event being raised, else what is held back.
    uint32_t Flags(const ViewState& view) const { return raising_ ? told_ : pending_ | Differences(view); }

    /// The time in which an event is raised: its flags can be read. Events may nest.
    class Raising {
      public:
        Raising(ChangeTracker& tracker, uint32_t flags);

      private:
        ScopedValue<bool> raising_;
        ScopedValue<uint32_t> told_;
    };

    /// Counts the view as told without an event.
    void Forget(const ViewState& view) {
        pending_ = change::none;
        toldView_ = view;
    }

  private:
    uint32_t Differences(const ViewState& view) const;

    uint32_t pending_ = change::none;
    bool autoRefresh_ = true;
    bool pageOperations_ = true;
    ViewState toldView_;
    bool raising_ = false;
    uint32_t told_ = change::none;
};

}  // namespace qz::sample
