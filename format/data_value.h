// The value that a variant stands for.
#pragma once

#include "com/object.h"

#include <comdef.h>

#include <string>

namespace qz {

/// A reference is looked through, also one to another variant, and an object gives its default value: both
/// one step only. The given variant must outlive this, for nothing is copied but what an object gives.
class DataValue {
  public:
    /// Throws noDefaultValue when an object has no default value, E_POINTER for a reference to nothing. An
    /// object that is asked may call anything.
    explicit DataValue(const VARIANT& data);
    DataValue(const DataValue&) = delete;
    DataValue& operator=(const DataValue&) = delete;

    /// Without VT_BYREF.
    VARTYPE Type() const noexcept { return type_; }
    /// What the type is called in a sentence.
    std::wstring TypeName() const;

    /// The value; T must be what the automation type holds.
    template <class T>
    const T& As() const noexcept {
        return *static_cast<const T*>(place_);
    }

    /// The same value as a variant, possibly by reference.
    const VARIANT& Variant() const noexcept { return *variant_; }

  private:
    void LookInto(const VARIANT& data);

    _variant_t given_;  // by an object
    const VARIANT* variant_ = nullptr;
    VARTYPE type_ = VT_EMPTY;
    const void* place_ = nullptr;
};

}  // namespace qz
