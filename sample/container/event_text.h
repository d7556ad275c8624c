// Events in words, by the names that the object's type library has for them.
#pragma once

#include "com/object.h"

#include <string>

namespace qz {

/// The description of an event dispinterface from the type library of the object that raises it; null when it
/// has none.
ComPtr<ITypeInfo> FindEventInfo(IDispatch* object, REFIID events) noexcept;

/// An event as a line such as "ThumbActivated(page: 3, Continue: 1)". Without a description the event's
/// number stands for its name.
std::wstring DescribeEvent(ITypeInfo* info, DISPID event, const DISPPARAMS& parameters);

}  // namespace qz
