// The one advise connection of a view object.
#pragma once

#include "com/object.h"

#include <windows.h>
#include <ole2.h>

namespace qz {

/// Who is told when the view changes, as IViewObject::SetAdvise and GetAdvise define it. Apartment-threaded.
class ViewAdvice {
  public:
    void Set(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept;
    /// Each pointer may be null; the sink goes out counted.
    void Get(DWORD* aspects, DWORD* flags, IAdviseSink** sink) const noexcept;
    /// Tells the sink; the connection ends when it was for one time only.
    void Notify() noexcept;

  private:
    DWORD aspects_ = 0;
    DWORD flags_ = 0;
    ComPtr<IAdviseSink> sink_;
};

}  // namespace qz
