// The dialog of several pages on one sheet.
#pragma once

#include "res/language.h"
#include "settings/nup_settings.h"

#include <windows.h>

namespace qz {

/// What the sheets are for. Printing has its paper from the printer, a new document has no source scale.
enum class NUpMode { Printing = 1, NewDocument = 2, Everything = 3 };

/// Shows the record over `parent` (which may be null). True when the user pressed OK: the record has his
/// changes; values that he did not touch, unknown ones and what the mode does not offer stay. False when he
/// cancelled: the record is as it was. Throws when the dialog cannot be shown.
bool AskForNUpSettings(HWND parent, Language language, NUpMode mode, zrNUpSettings& record);

}  // namespace qz
