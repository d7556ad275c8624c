// Registration of the reference host for this machine: its class, its ProgID "VandraX.ReferenceHost", and its
// type library.
#pragma once

namespace qz::sample {

/// Throw when the registry refuses.
void RegisterHost();
/// Nothing to remove is no failure.
void UnregisterHost();

}  // namespace qz::sample
