// The module's type library as the registry knows it.
#pragma once

#include "com/object.h"
#include "module/registration.h"

#include <string>
#include <vector>

namespace qz {

/// A type library read from a module's resources.
class TypeLibrary {
  public:
    /// Throws when the module has none.
    explicit TypeLibrary(std::wstring modulePath);

    /// Throws when the system refuses.
    void Register(RegistrationScope scope) const;
    /// The system's answer, a failure also when the library was not registered.
    HRESULT Unregister(RegistrationScope scope) const;

    /// The key of this version below a Classes key.
    std::wstring VersionKey() const;
    /// The keys below a Classes key that registration writes to: the library's and those of its interfaces.
    std::vector<std::wstring> RegistryKeys() const;

  private:
    std::wstring path_;
    ComPtr<ITypeLib> library_;
    TLIBATTR attributes_;
};

}  // namespace qz
