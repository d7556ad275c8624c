// Reads XML from a stream into a document.
#pragma once

#include "settings/xml_tree.h"

#include <objidl.h>

namespace qz {

/// Adds what the stream holds to the document: its outermost element's content to the root, whose name stays
/// when there is one. False when the stream is null, cannot be read, or is not one well-formed document
/// without document type declaration; what was read until then stays. The stream must leave the document
/// alone meanwhile.
///
/// An element's value is its last piece of text (ValueOfText); CDATA is text. White space alone is a value
/// only where the writer may have written it, as all there is in an element and after a line feed.
bool ReadXml(IStream* stream, XmlTree& tree);

}  // namespace qz
