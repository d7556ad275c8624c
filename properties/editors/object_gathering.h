// The objects of a document among which a form action's fields are chosen.
#pragma once

#include "properties/editors/edited_attribute.h"
#include "properties/editors/listed_objects.h"

#include <vector>

namespace qz {

/// First the fields of the document's form, as the host lists them; then what stands on the pages, page by
/// page, and is not among them: everything, or with `fieldsOnly` fields of all kinds. Each object once. A
/// host that fails ends the part that it fails in; what it gave until then stays. Calls the host for every
/// page and object.
std::vector<ListedObject> GatherObjects(const EditedAttribute& edited, bool fieldsOnly);

}  // namespace qz
