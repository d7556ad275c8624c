// The dialog of the export to DOCX.
#pragma once

#include "res/language.h"
#include "settings/docx_settings.h"

#include <windows.h>

namespace qz {

/// Shows the record over `parent` (which may be null). True when the user pressed OK: the record has his
/// changes; values that he did not touch stay as they are. False when he cancelled: the record is as it was.
/// Throws when the dialog cannot be shown.
bool AskForDocxSettings(HWND parent, Language language, zrDocxSettings& record);

}  // namespace qz
