// The attributes of a host object as objects.
#pragma once

#include "sample/host/host_object.h"

namespace qz::sample {

/// The collection; it and its elements know the attributes that the object has at this moment.
ComPtr<IDispatch> MakeHostAttributes(const ObjectReference& object);

}  // namespace qz::sample
