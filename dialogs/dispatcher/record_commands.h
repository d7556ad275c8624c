// The two commands that let the user change a settings record and hand it back.
#pragma once

#include "dialogs/dispatcher/tool_commands.h"

namespace qz {

/// S_OK with a stream of the record's XML, at its start, in the data out; S_FALSE, and the data out
/// untouched, when the user cancelled. The record is kept in the registry; that it could not be is told to
/// the debugger's output, as the caller has it all the same.
HRESULT RunDocxSettings(const ToolCall& call);

/// The same. The data in selects what the dialog offers: its 16-bit value 0 printing, 1 a new document,
/// anything else, and no data, everything.
HRESULT RunNUpSettings(const ToolCall& call);

}  // namespace qz
