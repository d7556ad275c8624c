// Property values as VARIANTs: conversion, storage form, and access through an object's IDispatch.
#pragma once

#include "com/object.h"
#include "ui/property_image.h"

#include <windows.h>
#include <comdef.h>

namespace qz {

/// Converts in place, independent of the user's locale. Colours go between signed and unsigned numbers bit by
/// bit, since containers hand out both. On failure false, the value as it was.
bool TryCoerce(VARIANT& value, VARTYPE type) noexcept;
/// The same; throws DISP_E_TYPEMISMATCH or DISP_E_OVERFLOW.
void Coerce(VARIANT& value, VARTYPE type);

/// The form in which a value of that type is stored, and back. Throw when the value does not fit the type.
StoredValue ToStored(const VARIANT& value, VARTYPE type);
_variant_t FromStored(const StoredValue& value, VARTYPE type);

/// Reads and writes a property. Throw what the member answers, with its own text.
_variant_t GetProperty(IDispatch* object, DISPID id);
void PutProperty(IDispatch* object, DISPID id, const VARIANT& value);

}  // namespace qz
