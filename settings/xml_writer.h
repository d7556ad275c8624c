// Writes elements as XML text.
#pragma once

#include <functional>
#include <string_view>

namespace qz {

class qzSimpleXmlElement;

/// Takes the text piece by piece, in UTF-8. What it throws ends the writing and reaches the caller.
using XmlSink = std::function<void(std::string_view bytes)>;

/// Writes the element and all below it, one blank of indent a level. Nothing is escaped, and a line break
/// stands before a text but none behind it: "<a>\ntext</a>\n" for an element at the top.
void WriteXml(const qzSimpleXmlElement& top, const XmlSink& sink);

}  // namespace qz
