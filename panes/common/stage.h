// Whether what was looked at before foreign code ran is still there.
#pragma once

#include <cstdint>

namespace qz {

/// Numbers the states of something that is replaced as a whole, such as a list of records: what was learnt in
/// one of them, indexes above all, means nothing in the next.
class Stage {
  public:
    /// One state, to be asked later. Not to be asked when the stage is gone.
    class Mark {
      public:
        bool Stale() const noexcept { return stage_->number_ != number_; }

      private:
        friend class Stage;
        explicit Mark(const Stage& stage) noexcept : stage_(&stage), number_(stage.number_) {}

        const Stage* stage_;
        std::uint64_t number_;
    };

    Stage() = default;
    Stage(const Stage&) = delete;  // marks refer to it
    Stage& operator=(const Stage&) = delete;

    void Next() noexcept { ++number_; }
    Mark Now() const noexcept { return Mark(*this); }

  private:
    std::uint64_t number_ = 0;
};

}  // namespace qz
