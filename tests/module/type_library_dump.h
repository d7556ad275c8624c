// A type library as readable lines, to be compared with what callers rely on.
#pragma once

#include "com/object.h"

#include <string>

namespace qz {

/// The members of an interface in the order of its function table (or, for events, of their declaration), one
/// a line: "<dispatch id> <call|get|put> <name>(<arguments>)". An argument is its direction unless it is only
/// in, "optional" where it is, and its type; "result" stands for out and returned.
std::wstring DumpInterface(ITypeLib* library, REFGUID id);

/// The constants of an enumeration: "<name>=<value>", one a line; empty when there is no such enumeration.
std::wstring DumpEnumeration(ITypeLib* library, const wchar_t* name);

/// A coclass: "[control] <interface><flags>; ..." where the flags are "default" and "source".
std::wstring DumpClass(ITypeLib* library, REFGUID id);

}  // namespace qz
