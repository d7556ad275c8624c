// Makes any XML file into text that every reader takes alike.
//
// Readers differ in what they make of encodings, of names with colons and of files that end too early; some
// even crash or never end. What they get here is UTF-8 with its mark, without a declaration, with colons
// hidden (colon_hiding.h), and no document that lacks its end looks as if it had one.
#pragma once

#include "settings/colon_hiding.h"
#include "settings/utf16.h"

#include <optional>
#include <string>
#include <string_view>

namespace qz {

/// Feeds one document. The file is UTF-8 or, as its mark or its first characters tell, UTF-16; a file whose
/// declaration names another encoding keeps its bytes and its declaration. A zero character ends it.
class XmlFeed {
  public:
    /// Appends the reader's text for the next bytes of the file.
    void Add(std::string_view bytes, std::string& text);

    /// Appends what the reader is to get when the file has ended. For a document without its end that is an
    /// error in every state of a reader.
    void Finish(std::string& text);

  private:
    void Begin(std::string& text);
    void Hide(std::string_view utf8, std::string& text);

    std::string head_;  // the file's beginning, until it is long enough to tell the encoding
    bool begun_ = false;
    bool ended_ = false;
    std::optional<Utf16Bytes> utf16_;
    std::string utf8_;
    ColonHider hider_;
};

}  // namespace qz
