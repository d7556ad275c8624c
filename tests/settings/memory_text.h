// Streams of text in memory.
#pragma once

#include "com/stream.h"

#include <span>
#include <string>
#include <string_view>

namespace qz {

inline ComPtr<IStream> StreamOf(std::string_view text) {
    ComPtr<IStream> stream = MakeMemoryStream();
    WriteBytes(stream.Get(), std::as_bytes(std::span(text)));
    ThrowIfFailed(stream->Seek({}, STREAM_SEEK_SET, nullptr));
    return stream;
}

/// All that was written.
inline std::string TextOf(IStream* stream) {
    ThrowIfFailed(stream->Seek({}, STREAM_SEEK_SET, nullptr));
    const std::vector<std::byte> bytes = ReadToEnd(stream);
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace qz
