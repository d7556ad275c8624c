// The header of a document file.
#pragma once

#include "sample/document/document.h"

#include <string>
#include <string_view>

namespace qz::sample {

/// A place in the pictures' part of a file.
struct PicturePlace {
    uint64_t offset;
    uint64_t size;
};

/// The pages, by number, that a saved document holds, each with the index of its picture (-1: none).
struct SavedPage {
    int32_t number;
    int32_t picture;
};

std::string WriteHeader(const Document& document, const std::vector<SavedPage>& pages,
                        const std::vector<PicturePlace>& pictures, bool wholeDocument);

struct LoadedHeader {
    Document document;
    std::vector<int32_t> pagePictures;  // of each page in turn, -1: none
    std::vector<PicturePlace> pictures;
};

/// Throws FormatError.
LoadedHeader ReadHeader(std::string_view text);

}  // namespace qz::sample
