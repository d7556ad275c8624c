// A control's properties and extent in streams and property bags.
#pragma once

#include "ui/property_image.h"

#include <windows.h>
#include <ocidl.h>

#include <cstddef>
#include <span>
#include <vector>

namespace qz {

/// A property that is saved with the control and read back, through the control's own IDispatch.
struct PersistentProperty {
    const wchar_t* name;
    DISPID id;
    /// How it is stored: an integer, floating point, VT_BOOL or VT_BSTR type.
    VARTYPE type;
};

using PropertyTable = std::span<const PersistentProperty>;

// In a stream: all or nothing. Extents are in HIMETRIC.

/// Reads what SavedImage gives. Throws STG_E_INVALIDHEADER, STG_E_OLDDLL or STG_E_DOCFILECORRUPT for what it
/// is not, and the stream's failure.
std::vector<StoredProperty> ReadSaved(IStream* stream);
/// `otherwise` where none was saved. Throws STG_E_DOCFILECORRUPT for a negative one.
SIZEL SavedExtent(const std::vector<StoredProperty>& stored, SIZEL otherwise);
/// Puts the values saved; properties that lack one stay. When one is refused those before are put back, and
/// the refusal is thrown.
void PutSaved(IUnknown* control, PropertyTable properties, const std::vector<StoredProperty>& stored);
/// The bytes to save. Throws E_FAIL when they are too many.
std::vector<std::byte> SavedImage(IUnknown* control, PropertyTable properties, SIZEL extent);

// In a bag: what cannot be read or is refused keeps the value it has, and the log, if any, gets a line.

void PutFromBag(IPropertyBag* bag, IErrorLog* log, IUnknown* control, PropertyTable properties);
SIZEL ExtentFromBag(IPropertyBag* bag, IErrorLog* log, SIZEL otherwise);
/// Throws the bag's refusal.
void SaveInBag(IPropertyBag* bag, IUnknown* control, PropertyTable properties, SIZEL extent);

}  // namespace qz
