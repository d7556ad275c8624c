#pragma once

#include <windows.h>

namespace qz {

/// From here on a fault of this program or its libraries (access violation, stack overflow, illegal
/// instruction, division by zero and the like) prints a backtrace to the standard error and ends the process
/// with exit code 99, and so do an abort and any structured exception that nobody handles. Faults are seen
/// before anybody can handle them, as the system swallows those of window procedures that it calls back.
/// Faults that the system's own code raises and handles for itself are let through.
///
/// To be called on the main thread, for which stack is reserved to report its overflow.
void InstallCrashGuard();

/// The same end for a thread, other than the calling one, that no longer gets on.
[[noreturn]] void EndStuckProgram(HANDLE thread, const char* what);

}  // namespace qz
