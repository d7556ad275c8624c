// What the user's regional settings say of numbers, dates and letters. Every function throws when the system
// does not tell it.
#pragma once

#include "format/date_format.h"
#include "format/number_format.h"
#include "format/text_format.h"

namespace qz {

NumberSeparators UserSeparators();
DateNames UserDateNames();
LetterCase UserLetterCase() noexcept;

}  // namespace qz
