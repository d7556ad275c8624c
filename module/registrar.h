// Applies registration scripts to a Classes key of the registry, and takes them back.
#pragma once

#include "com/registry_key.h"
#include "module/registration_script.h"

#include <functional>
#include <vector>

namespace qz {

/// One run of registration. Unless it is kept, everything it did is undone when it ends: keys it made are
/// deleted, values it replaced and trees it emptied come back; what others keep there is not touched.
class RegistrationRun {
  public:
    /// `classes` is borrowed and outlives the run.
    explicit RegistrationRun(const RegistryKey& classes) : classes_(classes) {}
    ~RegistrationRun();
    RegistrationRun(const RegistrationRun&) = delete;
    RegistrationRun& operator=(const RegistrationRun&) = delete;

    /// Applies a script whose percent signs have been replaced. Throws when the registry refuses a step.
    void Apply(const RegistrationScript& script);

    /// Remembers a key and all below it, present or not, before somebody else writes there; undoing restores
    /// it.
    void Protect(const std::wstring& path);

    /// Nothing is undone any more.
    void Keep() noexcept { undo_.clear(); }

  private:
    void Apply(const ScriptEntry& entry);
    RegistryKey MakeKey(const std::wstring& path);
    void SetValue(const RegistryKey& key, const ScriptEntry& entry);

    const RegistryKey& classes_;
    std::vector<std::function<void()>> undo_;
};

/// Takes a script back: deletes the values that still are as the script sets them, and the keys of the script
/// that are then empty. Keys wholly of the class go with all below them. Throws when the registry refuses a
/// step.
void RemoveScript(const RegistryKey& classes, const RegistrationScript& script);

}  // namespace qz
