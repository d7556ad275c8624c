#pragma once

namespace qz {

// From here on, a structured exception that nobody handles, or an abort, prints a backtrace to the standard
// error and ends the process with exit code 99. Without it a crashed program may end with exit code 0.
void InstallCrashGuard();

}  // namespace qz
