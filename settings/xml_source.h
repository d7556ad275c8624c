// What the XML reader reads from instead of the file's own stream.
#pragma once

#include "com/object.h"
#include "settings/xml_feed.h"

#include <objidl.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace qz {

/// Reads a stream from where it stands, through an XmlFeed. After a failure all further reads fail.
class XmlSource final : public Object<XmlSource, ISequentialStream> {
  public:
    explicit XmlSource(ComPtr<IStream> stream);

    STDMETHODIMP Read(void* buffer, ULONG size, ULONG* read) override;
    STDMETHODIMP Write(const void* bytes, ULONG size, ULONG* written) override;

    /// Whether a read failed: some readers go on as if nothing had happened.
    bool Failed() const noexcept { return failed_; }

  private:
    std::string_view Next(std::size_t longest);
    void Refill();

    ComPtr<IStream> stream_;
    XmlFeed feed_;
    std::string bytes_;
    std::string text_;  // for the reader; what it has got already is cut off in Refill
    std::size_t given_ = 0;
    bool ended_ = false;
    bool failed_ = false;
};

}  // namespace qz
