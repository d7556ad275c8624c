// Documents as bytes: the one format of document files, of streams, and of pages on their way between
// documents.
//
// Little endian: 8 magic bytes, version (u32), length of the header (u32), length of the pictures (u64), the
// header (JSON in UTF-8), the pictures. docs/host-contract.md describes the header.
#pragma once

#include "sample/document/document.h"

#include <array>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <vector>

namespace qz::sample {

/// Bytes that are no document.
struct FormatError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

constexpr size_t documentPreambleSize = 24;

/// How many bytes follow the preamble. Throws FormatError when it is not that of a document.
uint64_t LengthAfterPreamble(std::span<const uint8_t, documentPreambleSize> preamble);

/// The whole document, or with a sequence only its pages in that order. A part holds no outline.
std::vector<uint8_t> SaveDocument(const Document& document, const NumberList& sequence);

/// The document held in the bytes, whose pictures it shares. Throws FormatError; bytes after it are ignored.
Document LoadDocument(const std::shared_ptr<const std::vector<uint8_t>>& bytes);

}  // namespace qz::sample
