// What the module's classes need of the process around them.
#pragma once

namespace qz {

/// Loads the rich-edit library, initialises every common-control class and runs the classes' own start-up
/// routines; once, however often it is called, from any thread. Throws when a step fails; the next call tries
/// again. Not to be called while the module is being loaded: the loader's lock forbids all of it.
void StartUp();

/// Undoes the start-up unless the module is in use. Tells whether the module may be unloaded.
bool ShutDownIfUnused() noexcept;

}  // namespace qz
