#include "settings/xml_source.h"

#include <cstring>
#include <utility>

namespace qz {

namespace {

constexpr std::size_t pieceSize = std::size_t{64} * 1024;

/// How much of a piece ends in a character of one byte: some readers break a longer one that does not lie in
/// one piece. 0 when there is no such character.
std::size_t WholeCharacters(std::string_view piece) noexcept {
    while (!piece.empty() && (piece.back() & 0x80) != 0) piece.remove_suffix(1);
    return piece.size();
}

}  // namespace

XmlSource::XmlSource(ComPtr<IStream> stream) : stream_(std::move(stream)), bytes_(pieceSize, '\0') {}

STDMETHODIMP XmlSource::Read(void* buffer, ULONG size, ULONG* read) {
    if (read) *read = 0;
    return Guard(__uuidof(ISequentialStream), [&] {
        RequirePointer(buffer);
        const std::string_view piece = Next(size);
        std::memcpy(buffer, piece.data(), piece.size());
        if (read) *read = static_cast<ULONG>(piece.size());
        return piece.empty() && size > 0 ? S_FALSE : S_OK;
    });
}

STDMETHODIMP XmlSource::Write(const void*, ULONG, ULONG* written) {
    if (written) *written = 0;
    return STG_E_ACCESSDENIED;
}

std::string_view XmlSource::Next(std::size_t longest) {
    const auto rest = [&] { return std::string_view(text_).substr(given_); };
    while (!ended_ && rest().size() < longest && WholeCharacters(rest()) == 0) Refill();
    std::string_view piece = rest().substr(0, longest);
    const std::size_t whole = WholeCharacters(piece);
    if (whole > 0) piece = piece.substr(0, whole);
    given_ += piece.size();
    return piece;
}

void XmlSource::Refill() {
    if (failed_) Throw(E_FAIL, L"The stream could not be read before");
    failed_ = true;  // unless all goes well
    text_.erase(0, given_);
    given_ = 0;
    ULONG read = 0;
    ThrowIfFailed(stream_->Read(bytes_.data(), static_cast<ULONG>(bytes_.size()), &read),
                  L"The stream cannot be read");
    ended_ = read == 0;
    if (ended_) {
        feed_.Finish(text_);
    } else {
        feed_.Add(std::string_view(bytes_).substr(0, read), text_);
    }
    failed_ = false;
}

}  // namespace qz
