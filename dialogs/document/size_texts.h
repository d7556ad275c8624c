// Sizes of pages and margins as texts, in the unit that the document is measured in.
#pragma once

#include <cstdint>
#include <string>

namespace qz {

/// The codes of the document's attribute. Any other code shows twips as well.
enum class SizeUnit : std::int32_t { TenthsOfMillimeters = 0, Inches = 1, Twips = 2 };

/// `number` x `by` / `per`, rounded to the nearest whole number, halves away from zero; the nearest number of
/// 32 bits when it is beyond them.
std::int32_t Scaled(std::int64_t number, std::int64_t by, std::int64_t per) noexcept;

std::int32_t TwipsOfTenths(std::int32_t tenthsOfMillimeters) noexcept;

std::wstring SizeText(std::int32_t twips, SizeUnit unit);

/// A width or length in twips. Text without a number is 0. Of inches the fraction is dropped: 8.99 is 8.
std::int32_t SizeOf(const std::wstring& text, SizeUnit unit) noexcept;

/// A margin in twips. Whole numbers only, also of inches; text without a number is 0.
std::int32_t MarginOf(const std::wstring& text, SizeUnit unit) noexcept;

}  // namespace qz
