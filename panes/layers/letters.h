// Which characters the names of layers keep.
#pragma once

namespace qz {

/// A letter or a decimal digit of any script, whatever the user's locale: Unicode's categories L* and Nd.
/// One 16-bit code unit at a time, so that characters that need two are none.
bool IsLetterOrDigit(wchar_t character) noexcept;

}  // namespace qz
