// Registration of the whole module: the scripts of its classes and the type library.
#pragma once

namespace qz {

/// For whom the module is registered: everybody on this machine (needs the right to write there), or the
/// current user only.
enum class RegistrationScope { Machine, User };

/// Registers every class that the module serves, and the type library. Throws when a step fails; everything
/// is then as it was before.
void RegisterModule(RegistrationScope scope);

/// The reverse. Goes on after a failure, so that as much as possible is removed, and throws the first one.
/// Nothing to remove is no failure.
void UnregisterModule(RegistrationScope scope);

}  // namespace qz
