#include "settings/xml_document.h"

#include "com/stream.h"
#include "settings/xml_reader.h"

#include <string>

namespace qz {

namespace {

/// Gathers small pieces, each of which would be a call to the stream.
class BufferedStream {
  public:
    explicit BufferedStream(IStream* stream) : stream_(stream) { bytes_.reserve(size); }

    void Write(std::string_view piece) {
        if (bytes_.size() + piece.size() > size) Flush();
        bytes_ += piece;
    }

    void Flush() {
        WriteBytes(stream_.Get(), std::as_bytes(std::span(bytes_)));
        bytes_.clear();
    }

  private:
    static constexpr std::size_t size = std::size_t{64} * 1024;

    ComPtr<IStream> stream_;
    std::string bytes_;
};

}  // namespace

bool qzSimpleXml::Load(IStream* stream) { return ReadXml(stream, *this); }

bool qzSimpleXml::Save(IStream* stream) {
    if (!HasRoot()) return false;
    RequirePointer(stream);
    BufferedStream buffer(stream);
    Write([&](std::string_view piece) { buffer.Write(piece); });
    buffer.Flush();
    return true;
}

}  // namespace qz
