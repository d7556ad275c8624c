#include "sample/document/document_file.h"

#include "sample/document/document_json.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace qz::sample {

namespace {

constexpr std::array<uint8_t, 8> magic = {'V', 'D', 'O', 'C', '\r', '\n', 0x1A, '\n'};
constexpr uint32_t version = 1;

template <class Number>
void AppendNumber(std::vector<uint8_t>& bytes, Number number) {
    for (size_t i = 0; i < sizeof number; ++i) bytes.push_back(static_cast<uint8_t>(number >> (8 * i)));
}

uint64_t NumberAt(const uint8_t* bytes, size_t size) {
    uint64_t number = 0;
    for (size_t i = 0; i < size; ++i) number |= static_cast<uint64_t>(bytes[i]) << (8 * i);
    return number;
}

struct Preamble {
    uint64_t headerSize;
    uint64_t pictureSize;
};

Preamble ReadPreamble(const uint8_t* bytes) {
    if (!std::equal(magic.begin(), magic.end(), bytes)) throw FormatError("This is no document");
    if (NumberAt(bytes + 8, 4) != version) throw FormatError("The document has another format version");
    const Preamble preamble{NumberAt(bytes + 12, 4), NumberAt(bytes + 16, 8)};
    if (preamble.pictureSize > (1ull << 40)) throw FormatError("The document's length is impossible");
    return preamble;
}

/// The pictures that a save takes, each once.
struct PictureList {
    std::map<uint64_t, int32_t> indexes;
    std::vector<std::shared_ptr<const Picture>> pictures;
    std::vector<PicturePlace> places;
    uint64_t size = 0;

    int32_t IndexOf(const std::shared_ptr<const Picture>& picture) {
        if (!picture) return -1;
        const auto [found, isNew] = indexes.try_emplace(picture->id, static_cast<int32_t>(pictures.size()));
        if (isNew) {
            pictures.push_back(picture);
            places.push_back({size, picture->size});
            size += picture->size;
        }
        return found->second;
    }
};

void AttachPictures(LoadedHeader& header, const std::shared_ptr<const std::vector<uint8_t>>& bytes,
                    size_t start, uint64_t size) {
    std::vector<std::shared_ptr<const Picture>> pictures;
    for (const PicturePlace& place : header.pictures) {
        if (place.offset > size || place.size > size - place.offset) {
            throw FormatError("A picture lies outside the document");
        }
        pictures.push_back(place.size == 0 ? nullptr : MakePicture(bytes, start + place.offset, place.size));
    }
    for (size_t i = 0; i < header.pagePictures.size(); ++i) {
        const int32_t index = header.pagePictures[i];
        if (index < 0) continue;
        if (static_cast<size_t>(index) >= pictures.size()) throw FormatError("A page's picture is missing");
        header.document.pages.At(static_cast<int32_t>(i) + 1).picture = pictures[static_cast<size_t>(index)];
    }
}

}  // namespace

uint64_t LengthAfterPreamble(std::span<const uint8_t, documentPreambleSize> preamble) {
    const Preamble lengths = ReadPreamble(preamble.data());
    return lengths.headerSize + lengths.pictureSize;
}

std::vector<uint8_t> SaveDocument(const Document& document, const NumberList& sequence) {
    NumberList numbers = sequence;
    if (numbers.empty()) {
        numbers.resize(static_cast<size_t>(document.pages.Count()));
        std::iota(numbers.begin(), numbers.end(), 1);
    }
    PictureList pictures;
    std::vector<SavedPage> pages;
    for (const int32_t number : numbers)
        pages.push_back({number, pictures.IndexOf(document.pages.At(number).picture)});
    const std::string header = WriteHeader(document, pages, pictures.places, sequence.empty());

    std::vector<uint8_t> bytes(magic.begin(), magic.end());
    bytes.reserve(documentPreambleSize + header.size() + pictures.size);
    AppendNumber(bytes, version);
    AppendNumber(bytes, static_cast<uint32_t>(header.size()));
    AppendNumber(bytes, pictures.size);
    bytes.insert(bytes.end(), header.begin(), header.end());
    for (const auto& picture : pictures.pictures) {
        const uint8_t* data = picture->storage->data() + picture->offset;
        bytes.insert(bytes.end(), data, data + picture->size);
    }
    return bytes;
}

Document LoadDocument(const std::shared_ptr<const std::vector<uint8_t>>& bytes) {
    if (bytes->size() < documentPreambleSize) throw FormatError("The document is cut off");
    const Preamble lengths = ReadPreamble(bytes->data());
    if (lengths.headerSize + lengths.pictureSize > bytes->size() - documentPreambleSize) {
        throw FormatError("The document is cut off");
    }
    const auto* text = reinterpret_cast<const char*>(bytes->data()) + documentPreambleSize;
    LoadedHeader header = ReadHeader({text, static_cast<size_t>(lengths.headerSize)});
    AttachPictures(header, bytes, documentPreambleSize + static_cast<size_t>(lengths.headerSize),
                   lengths.pictureSize);
    return std::move(header.document);
}

}  // namespace qz::sample
