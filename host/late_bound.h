// Members of host objects that are called by name.
#pragma once

#include "com/object.h"

#include <comdef.h>

#include <initializer_list>
#include <optional>
#include <string>

namespace qz {

/// One named member of one type of host object. Its dispatch id is looked up on the first use and kept, so an
/// instance serves objects of one type only (bookmarks of one host, attributes of one host...). Every
/// function throws the object's failure; a member that the object lacks is DISP_E_UNKNOWNNAME. Not
/// thread-safe.
class LateBoundMember {
  public:
    explicit LateBoundMember(std::wstring name) : name_(std::move(name)) {}

    _variant_t Get(IDispatch* object, std::initializer_list<_variant_t> arguments = {});
    void Put(IDispatch* object, const _variant_t& value, std::initializer_list<_variant_t> arguments = {});
    _variant_t Call(IDispatch* object, std::initializer_list<_variant_t> arguments = {});

  private:
    DISPID IdOn(IDispatch* object);
    _variant_t Invoke(IDispatch* object, WORD flags, DISPPARAMS& parameters);

    std::wstring name_;
    std::optional<DISPID> id_;
};

}  // namespace qz
