// Writing an attribute of the document for some of its pages.
#pragma once

#include "host/host_objects.h"

#include <string_view>

namespace qz {

/// To which pages a setup applies. The numbers are those that hosts are given.
enum class PageScope : long { All = 0, Current = 1, FromCurrentOn = 2 };

/// Writes attributes of the object "Document". For other scopes than all pages the host is asked by its
/// member SetScopedAttribute(path, attribute, value, scope); a host without it gets the plain write. Throws
/// the host's failure.
class ScopedWriter {
  public:
    ScopedWriter(IDispatch* host, IDispatch* document, HostObjects& objects, PageScope scope);

    void Write(std::wstring_view attribute, const _variant_t& value);

  private:
    ComPtr<IDispatch> host_, document_;
    HostObjects& objects_;
    PageScope scope_;
    LateBoundMember scoped_;
};

}  // namespace qz
