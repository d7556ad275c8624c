// The formatter's own error codes.
#pragma once

#include "com/error.h"

namespace qz {

inline constexpr HRESULT badDecimalSeparator = static_cast<HRESULT>(0x80040001);
inline constexpr HRESULT noPredefinedCategory = static_cast<HRESULT>(0x80040002);
inline constexpr HRESULT noDefaultValue = static_cast<HRESULT>(0x80040006);
inline constexpr HRESULT badThousandsSeparator = static_cast<HRESULT>(0x80040007);

/// Throws one of these codes. The system has texts of its own for them that are about something else, so they
/// are not appended.
[[noreturn]] inline void Refuse(HRESULT code, std::wstring text) { throw ComError(code, std::move(text)); }

}  // namespace qz
