#include "com/stream.h"

namespace qz {

ComPtr<IStream> MakeMemoryStream() {
    ComPtr<IStream> stream;
    ThrowIfFailed(CreateStreamOnHGlobal(nullptr, TRUE, &stream), L"No memory stream could be made");
    return stream;
}

void WriteBytes(IStream* stream, std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const ULONG part = static_cast<ULONG>(std::min<size_t>(bytes.size(), 1u << 30));
        ULONG written = 0;
        ThrowIfFailed(stream->Write(bytes.data(), part, &written), L"The stream cannot be written");
        if (written == 0) Throw(STG_E_MEDIUMFULL, L"The stream takes no more");
        bytes = bytes.subspan(written);
    }
}

void ReadBytes(IStream* stream, std::span<std::byte> bytes) {
    while (!bytes.empty()) {
        const ULONG part = static_cast<ULONG>(std::min<size_t>(bytes.size(), 1u << 30));
        ULONG read = 0;
        ThrowIfFailed(stream->Read(bytes.data(), part, &read), L"The stream cannot be read");
        if (read == 0) Throw(E_FAIL, L"The stream ends too early");
        bytes = bytes.subspan(read);
    }
}

std::vector<std::byte> ReadToEnd(IStream* stream) {
    std::vector<std::byte> bytes;
    constexpr size_t step = size_t{64} * 1024;
    for (;;) {
        const size_t before = bytes.size();
        bytes.resize(before + step);
        ULONG read = 0;
        ThrowIfFailed(stream->Read(bytes.data() + before, step, &read), L"The stream cannot be read");
        bytes.resize(before + read);
        if (read == 0) return bytes;
    }
}

}  // namespace qz
