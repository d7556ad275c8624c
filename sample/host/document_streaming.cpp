#include "sample/host/document_streaming.h"

#include "com/stream.h"
#include "generated/reference_host.h"
#include "sample/document/document_file.h"

namespace qz::sample {

namespace {

constexpr size_t longestPart = 4 << 20;

/// Reads that many bytes. They are asked for in parts, so that a wrong length in a damaged stream does not
/// claim memory for nothing.
void ReadMore(IStream* stream, uint64_t count, std::vector<uint8_t>& bytes) {
    while (count > 0) {
        const auto part = static_cast<size_t>(std::min<uint64_t>(count, longestPart));
        const size_t before = bytes.size();
        bytes.resize(before + part);
        ReadBytes(stream, std::as_writable_bytes(std::span(bytes).subspan(before)));
        count -= part;
    }
}

}  // namespace

Document ReadDocument(IStream* stream) {
    RequirePointer(stream);
    auto bytes = std::make_shared<std::vector<uint8_t>>();
    ReadMore(stream, documentPreambleSize, *bytes);
    ReadMore(stream, LengthAfterPreamble(std::span(*bytes).first<documentPreambleSize>()), *bytes);
    return LoadDocument(bytes);
}

STDMETHODIMP DocumentStreaming::GetClassID(CLSID* id) {
    if (!id) return E_POINTER;
    *id = CLSID_ReferenceHost;
    return S_OK;
}

STDMETHODIMP DocumentStreaming::IsDirty() { return Streamed().model.Modified() ? S_OK : S_FALSE; }

STDMETHODIMP DocumentStreaming::Load(IStream* stream) {
    HostSession& session = Streamed();
    return session.Call(LateBound::StreamLoad, __uuidof(IPersistStreamInit), [&] {
        session.model.Replace(ReadDocument(stream));
        session.Settle();
    });
}

STDMETHODIMP DocumentStreaming::Save(IStream* stream, BOOL clearDirty) {
    HostSession& session = Streamed();
    return session.Call(LateBound::StreamSave, __uuidof(IPersistStreamInit), [&] {
        RequirePointer(stream);
        const Document& document = session.model.Doc();
        const std::vector<uint8_t> bytes = SaveDocument(document, document.pageSequence);
        WriteBytes(stream, std::as_bytes(std::span(bytes)));
        if (clearDirty) session.model.SetModified(false);
    });
}

STDMETHODIMP DocumentStreaming::GetSizeMax(ULARGE_INTEGER* size) {
    return Guard(__uuidof(IPersistStreamInit), [&] {
        RequirePointer(size);
        const Document& document = Streamed().model.Doc();
        size->QuadPart = SaveDocument(document, document.pageSequence).size();
    });
}

STDMETHODIMP DocumentStreaming::InitNew() {
    HostSession& session = Streamed();
    return session.Call(LateBound::StreamLoad, __uuidof(IPersistStreamInit), [&] {
        session.model.Replace(Document());
        session.Settle();
    });
}

}  // namespace qz::sample
