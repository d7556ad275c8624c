// A floating-point number as the decimal digits that it prints as.
#pragma once

#include <array>

namespace qz {

/// The shortest decimal number that reads back as the same value, so that 2.675 is rounded as 2.675 and not
/// as the binary fraction a little below it. Places count from the decimal point: 0 the units, 1 the tens, -1
/// the tenths.
class DecimalNumber {
  public:
    explicit DecimalNumber(double value) noexcept;
    explicit DecimalNumber(float value) noexcept;

    bool IsFinite() const noexcept { return kind_ == Kind::Finite; }
    bool IsNan() const noexcept { return kind_ == Kind::Nan; }
    /// False for a negative zero.
    bool IsNegative() const noexcept { return negative_; }
    /// False for what is not finite.
    bool IsZero() const noexcept { return IsFinite() && count_ == 0; }

    /// Digits before the decimal point; zero or less when the number is below one.
    int IntegerDigits() const noexcept { return point_; }
    /// Digits after the decimal point, without trailing zeros.
    int FractionDigits() const noexcept { return count_ > point_ ? count_ - point_ : 0; }
    /// The digit at `place`, '0' where the number has none.
    wchar_t Digit(int place) const noexcept;

    /// Multiplies by ten to the power of `power`.
    void Shift(int power) noexcept;
    /// Rounds half away from zero to `places` digits after the decimal point (before it, when negative).
    void RoundToPlaces(int places) noexcept { KeepDigits(point_ + places); }
    /// Rounds half away from zero to `digits` significant digits.
    void RoundToDigits(int digits) noexcept { KeepDigits(digits); }

  private:
    enum class Kind { Finite, Infinite, Nan };
    static constexpr int maxDigits = 17;

    template <typename Float>
    void Read(Float value) noexcept;
    void KeepDigits(int keep) noexcept;
    void BecomeZero() noexcept;
    void TrimZeros() noexcept;

    Kind kind_ = Kind::Finite;
    bool negative_ = false;
    int count_ = 0;  // of digits_; none of them for zero, else the first and the last are not '0'
    int point_ = 0;  // the number is 0.digits times ten to this power
    std::array<char, maxDigits> digits_{};
};

}  // namespace qz
