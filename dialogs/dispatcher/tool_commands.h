// The tool dialogs by number.
#pragma once

#include "com/object.h"

#include <oaidl.h>

namespace qz {

/// What a client called; a dialog may tell from it what is wanted.
enum class CallMode { Idle = 0, Modal = 1, ShowWindow = 2, EndWindow = 3 };

/// What a tool dialog is run with.
struct ToolCall {
    ComPtr<IDispatch> host;  ///< May be null.
    HWND parent = nullptr;
    CallMode mode = CallMode::Modal;
    const VARIANT* dataIn = nullptr;  ///< Null when there is none.
    VARIANT* dataOut = nullptr;       ///< Null when nothing is wanted. Untouched unless something goes there.
    bool dataOutHolds = false;        ///< A variable, to let go of what it holds; else it may be garbage.
};

struct ToolCommand {
    long number;
    const wchar_t* name;
    HRESULT (*run)(const ToolCall& call);  ///< Null for a dialog that does not exist yet.
};

/// The command of that number. Throws E_NOTIMPL, naming the command where it has a name, when it has no
/// dialog.
const ToolCommand& RequireCommand(long number);

}  // namespace qz
