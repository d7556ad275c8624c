// The simple XML document with its streams.
#pragma once

#include "settings/xml_tree.h"

namespace qz {

class qzSimpleXml final : public XmlTree {
  public:
    /// As ReadXml (settings/xml_reader.h).
    bool Load(IStream* stream) override;

    /// The text goes to the stream in parts of 64 KB, the last one before this returns. The stream must leave
    /// the document alone meanwhile.
    bool Save(IStream* stream) override;
};

}  // namespace qz
