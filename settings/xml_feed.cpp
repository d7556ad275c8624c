#include "settings/xml_feed.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace qz {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

/// Enough for any declaration.
constexpr std::size_t headSize = 1024;

/// Closes whatever may be open and is an error wherever it stands: a quote, a tag, a comment, CDATA, an
/// instruction, and then a tag that cannot be. Readers that do not tell a file's early end tell this.
constexpr std::string_view noEnd = "'\">-->]]>?></ >";

enum class Encoding { Bytes, Utf16LittleEndian, Utf16BigEndian };

/// How files begin, and how much of that is a mark.
struct FileKind {
    std::string_view beginning;
    std::size_t markSize;
    Encoding encoding;
};

constexpr FileKind fileKinds[] = {
    {utf8Mark, utf8Mark.size(), Encoding::Bytes}, {"\xFF\xFE", 2, Encoding::Utf16LittleEndian},
    {"\xFE\xFF", 2, Encoding::Utf16BigEndian},    {{"<\0", 2}, 0, Encoding::Utf16LittleEndian},
    {{"\0<", 2}, 0, Encoding::Utf16BigEndian},    {"", 0, Encoding::Bytes}};

const FileKind& KindOf(std::string_view head) noexcept {
    return *std::find_if(std::begin(fileKinds), std::end(fileKinds),
                         [&](const FileKind& kind) { return head.starts_with(kind.beginning); });
}

bool IsBlank(char character) noexcept {
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

/// The declaration a text begins with; without its "?>" it is all the text. Empty when there is none.
std::string_view DeclarationOf(std::string_view text) noexcept {
    constexpr std::string_view opening = "<?xml";
    if (!text.starts_with(opening) || (text.size() > opening.size() && !IsBlank(text[opening.size()])))
        return {};
    const std::size_t end = text.find("?>");
    return text.substr(0, end == std::string_view::npos ? end : end + 2);
}

/// Whether a declaration names an encoding that is neither UTF-8 nor UTF-16.
bool NamesOtherEncoding(std::string_view declaration) noexcept {
    const std::size_t place = declaration.find("encoding");
    if (place == std::string_view::npos || !declaration.ends_with("?>")) return false;
    const std::size_t quote = declaration.find_first_of("'\"", place);
    if (quote == std::string_view::npos) return false;
    constexpr std::string_view unicode = "utf-";
    const std::string_view name = declaration.substr(quote + 1, unicode.size());
    return !std::equal(name.begin(), name.end(), unicode.begin(), unicode.end(),
                       [](char found, char wanted) { return (found | 0x20) == (wanted | 0x20); });
}

}  // namespace

void XmlFeed::Add(std::string_view bytes, std::string& text) {
    if (!begun_) {
        head_ += bytes;
        if (head_.size() >= headSize) Begin(text);
    } else if (utf16_) {
        utf8_.clear();
        utf16_->Convert(bytes, utf8_);
        Hide(utf8_, text);
    } else {
        Hide(bytes, text);
    }
}

void XmlFeed::Finish(std::string& text) {
    if (!begun_) Begin(text);
    if (utf16_) {
        utf8_.clear();
        utf16_->Finish(utf8_);
        Hide(utf8_, text);
    }
    if (!hider_.Complete()) text += noEnd;
}

void XmlFeed::Begin(std::string& text) {
    begun_ = true;
    const FileKind& kind = KindOf(head_);
    if (kind.encoding != Encoding::Bytes) utf16_.emplace(kind.encoding == Encoding::Utf16BigEndian);
    std::string start;
    if (utf16_) {
        utf16_->Convert(std::string_view(head_).substr(kind.markSize), start);
    } else {
        start = head_.substr(kind.markSize);
    }
    const std::string_view declaration = DeclarationOf(start);
    const bool declarationStays = !utf16_ && NamesOtherEncoding(declaration);
    if (!declarationStays) text += utf8Mark;
    Hide(std::string_view(start).substr(declarationStays ? 0 : declaration.size()), text);
    head_.clear();
}

void XmlFeed::Hide(std::string_view utf8, std::string& text) {
    if (ended_) return;
    const std::size_t zero = utf8.find('\0');
    ended_ = zero != std::string_view::npos;
    hider_.Hide(utf8.substr(0, zero), text);
}

}  // namespace qz
