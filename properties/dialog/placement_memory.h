// Where the properties dialog stood when it was used last.
#pragma once

#include "com/registry_key.h"
#include "ui/geometry.h"

#include <optional>

namespace qz {

/// The place kept for the current user. A registry that cannot be used is no failure: nothing is remembered
/// then.
class PlacementMemory {
  public:
    /// Opens the key, which is made if need be.
    PlacementMemory();

    /// Screen pixels; nothing when no whole rectangle is there.
    std::optional<Rect> Read() const;
    void Write(const Rect& window) const;

  private:
    std::optional<RegistryKey> key_;
};

}  // namespace qz
