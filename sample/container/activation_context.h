// Finding classes by a manifest instead of in the registry.
#pragma once

#include <windows.h>

#include <string>

namespace qz {

/// While this lives, the thread finds the classes that the manifest file lists.
class ActivationContext {
  public:
    /// Throws when the file is missing or not a manifest.
    explicit ActivationContext(const std::wstring& manifest);
    ~ActivationContext();
    ActivationContext(const ActivationContext&) = delete;
    ActivationContext& operator=(const ActivationContext&) = delete;

  private:
    HANDLE context_;
    ULONG_PTR cookie_ = 0;
};

}  // namespace qz
