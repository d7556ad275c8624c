// What the thumbnail pane asks of its host to delete pages, to write some of them to a stream and to insert
// others. No windows; every function throws the host's failure and stops there.
#pragma once

#include "com/object.h"
#include "host/attributes.h"
#include "com/text.h"
#include "panes/thumbnails/page_placing.h"

#include <objidl.h>

#include <span>
#include <vector>

namespace qz {

/// Clears the host's page-operation flag for a scope, so that changes of the page order are not told, and
/// restores it at the end.
class PageFlagScope {
  public:
    explicit PageFlagScope(IVandraX* host);
    ~PageFlagScope();
    PageFlagScope(const PageFlagScope&) = delete;
    PageFlagScope& operator=(const PageFlagScope&) = delete;

  private:
    ComPtr<IVandraX> host_;
    long saved_ = 0;
};

/// Restricts the document's streaming to some pages (1-based, in that order) for a scope.
class PageSequenceScope {
  public:
    PageSequenceScope(IVandraX* host, std::span<const long> pages);
    ~PageSequenceScope();
    PageSequenceScope(const PageSequenceScope&) = delete;
    PageSequenceScope& operator=(const PageSequenceScope&) = delete;

  private:
    ComPtr<IVandraX> host_;
    PageFlagScope flag_;
    Bstr document_;  // made beforehand: restoring must not need memory
    Bstr attribute_;
    _variant_t saved_;
};

/// Deletes pages (1-based, in any order), the highest first.
void DeletePages(IVandraX* host, std::vector<long> pages);

/// Writes the document, reduced to `pages` in that order, into a stream. E_INVALIDARG without pages, which
/// the host would take for all of them.
void WritePages(IVandraX* host, std::span<const long> pages, IStream* stream);

/// Inserts the pages that a data object holds and gives their number; 0 when it held none, and nothing is
/// changed then. DV_E_FORMATETC when it offers no pages. After a failure nothing is changed but that the
/// pages may stand at the document's end, or that some of `where.moved` are gone from their old place. The
/// caller suspends automatic refresh and rebuilds what it shows of the host, also after a failure.
long InsertPages(IVandraX* host, IDataObject* data, const Insertion& where);

}  // namespace qz
