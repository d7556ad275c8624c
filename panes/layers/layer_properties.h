// Showing a layer's attributes in the module's properties dialog.
#pragma once

#include "com/com_ptr.h"

#include "generated/qzVandraExt.h"

namespace qz {

/// A new properties dialog of this module; null when the module serves none.
ComPtr<IqzPropertiesDlg> MakePropertiesDialog() noexcept;

/// Runs the dialog over a window until the user closes it: look again at everything afterwards. Throws the
/// dialog's failure.
void ShowProperties(IqzPropertiesDlg* dialog, IDispatch* host, IDispatch* object, HWND owner);

}  // namespace qz
