#include "format/decimal_number.h"

#include <charconv>
#include <cmath>
#include <cstddef>

namespace qz {

DecimalNumber::DecimalNumber(double value) noexcept { Read(value); }

DecimalNumber::DecimalNumber(float value) noexcept { Read(value); }

template <typename Float>
void DecimalNumber::Read(Float value) noexcept {
    negative_ = value < 0;
    if (!std::isfinite(value)) {
        kind_ = std::isnan(value) ? Kind::Nan : Kind::Infinite;
        return;
    }
    char text[32];  // d.dddddddddddddddde-ddd
    const char* const end =
        std::to_chars(text, text + sizeof text, std::abs(value), std::chars_format::scientific).ptr;
    const char* in = text;
    for (; in != end && *in != 'e'; ++in) {
        if (*in != '.') digits_[static_cast<std::size_t>(count_++)] = *in;
    }
    in += in[1] == '+' ? 2 : 1;
    int exponent = 0;
    std::from_chars(in, end, exponent);
    point_ = exponent + 1;
    TrimZeros();
}

wchar_t DecimalNumber::Digit(int place) const noexcept {
    const int index = point_ - 1 - place;
    if (index < 0 || index >= count_) return L'0';
    return static_cast<wchar_t>(digits_[static_cast<std::size_t>(index)]);
}

void DecimalNumber::Shift(int power) noexcept {
    if (count_ > 0) point_ += power;
}

void DecimalNumber::KeepDigits(int keep) noexcept {
    if (keep >= count_) return;
    if (keep < 0) return BecomeZero();
    const bool up = digits_[static_cast<std::size_t>(keep)] >= '5';
    count_ = keep;
    if (!up) return TrimZeros();
    while (count_ > 0 && digits_[static_cast<std::size_t>(count_ - 1)] == '9') --count_;
    if (count_ == 0) {  // 9.99 became 10
        digits_[0] = '1';
        count_ = 1;
        ++point_;
    } else {
        ++digits_[static_cast<std::size_t>(count_ - 1)];
    }
}

void DecimalNumber::BecomeZero() noexcept { count_ = point_ = 0; }

void DecimalNumber::TrimZeros() noexcept {
    while (count_ > 0 && digits_[static_cast<std::size_t>(count_ - 1)] == '0') --count_;
    if (count_ == 0) BecomeZero();
}

}  // namespace qz
