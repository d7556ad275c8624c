// Whole reads and writes on streams.
#pragma once

#include "com/object.h"

#include <objidl.h>

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace qz {

/// An empty growing stream in memory.
ComPtr<IStream> MakeMemoryStream();

/// Writes all bytes or throws.
void WriteBytes(IStream* stream, std::span<const std::byte> bytes);

/// Reads exactly that many bytes or throws (E_FAIL at a premature end).
void ReadBytes(IStream* stream, std::span<std::byte> bytes);

/// Reads from the current position to the end.
std::vector<std::byte> ReadToEnd(IStream* stream);

}  // namespace qz
