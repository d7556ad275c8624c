// A document without streams.
#pragma once

#include "settings/xml_tree.h"

#include <string>

namespace qz {

class PlainTree final : public XmlTree {
  public:
    bool Load(IStream*) override { return false; }
    bool Save(IStream*) override { return false; }

    std::string Text() {
        std::string text;
        Write([&](std::string_view piece) { text += piece; });
        return text;
    }
};

}  // namespace qz
