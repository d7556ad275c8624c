// The way to the properties dialog for what is built below it. Whoever serves the dialog opens the door.
#pragma once

#include "com/error.h"

#include <memory>

namespace qz {

class AttributeChanges;

/// What the dialog is to show, and how.
struct PropertiesRequest {
    IDispatch* host = nullptr;
    IDispatch* object = nullptr;
    HWND owner = nullptr;
    long options = 0;                             ///< Of `qzPropertiesDlgOptions`.
    std::shared_ptr<AttributeChanges> changes{};  ///< Where changes are recorded; null: in the dialog.
};

/// Null until the door is open. Set once, before there are objects that use it.
inline void (*propertiesDoor)(const PropertiesRequest& request) = nullptr;

/// Runs the dialog until the user closes it: look again at everything afterwards. Throws the dialog's
/// failure, and E_NOTIMPL when the door was not opened.
inline void ShowProperties(const PropertiesRequest& request) {
    if (!propertiesDoor) Throw(E_NOTIMPL, L"There is no dialog that shows properties");
    propertiesDoor(request);
}

}  // namespace qz
