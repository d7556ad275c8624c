// Documents to and from streams.
#pragma once

#include "com/object.h"
#include "sample/host/host_session.h"

#include <ocidl.h>

namespace qz::sample {

/// IPersistStreamInit over a session. Saving honours the document's "PageSequence"; loading reads exactly one
/// document from the stream's current position and leaves the stream behind it.
class DocumentStreaming : public Chain<IPersistStreamInit, IPersist> {
  public:
    STDMETHODIMP GetClassID(CLSID* id) override;
    STDMETHODIMP IsDirty() override;
    STDMETHODIMP Load(IStream* stream) override;
    STDMETHODIMP Save(IStream* stream, BOOL clearDirty) override;
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) override;
    /// An empty document.
    STDMETHODIMP InitNew() override;

  protected:
    ~DocumentStreaming() = default;
    virtual HostSession& Streamed() = 0;
};

/// Reads one document from a stream. Throws ComError, or FormatError for bytes that are no document.
Document ReadDocument(IStream* stream);

}  // namespace qz::sample
