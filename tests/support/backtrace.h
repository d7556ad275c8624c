// The calls that led to a place, and what they say of a fault there.
#pragma once

#include <windows.h>

namespace qz {

/// Writes to the standard error past the C library, whose locks the thread may hold.
void PrintError(const char* format, ...);

/// One line for each call, the innermost first: its module and the address as the linker gave it.
void PrintBacktrace(CONTEXT context);

/// Whether the system's own code may be about to handle the fault at this place: it happened in a module of
/// the system, and some module of the system between there and the first call of ours has a handler.
bool SystemMayHandle(CONTEXT context);

}  // namespace qz
