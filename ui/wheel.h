// Mouse wheel turns collected to whole notches; fine wheels report parts of a notch.
#pragma once

namespace qz {

class WheelAccumulator {
  public:
    static constexpr int notch = 120;

    /// Takes the turn of one wheel message (120 a notch, positive away from the user) and gives the whole
    /// notches reached. The remainder is kept for the next turn, and dropped when the direction changes.
    constexpr int Turn(int delta) noexcept {
        if ((delta < 0 && kept_ > 0) || (delta > 0 && kept_ < 0)) kept_ = 0;
        kept_ += delta;
        const int notches = kept_ / notch;
        kept_ %= notch;
        return notches;
    }

    constexpr void Reset() noexcept { kept_ = 0; }

  private:
    int kept_ = 0;
};

}  // namespace qz
