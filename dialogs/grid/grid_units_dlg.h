// The dialog that asks for the step of the editing grid, as an automation object.
#pragma once

#include "com/dispatch.h"

#include "generated/qzVandraExt.h"

namespace qz {

/// See the type library for the members. The dialog opens over the thread's active window. As it has no host
/// of its own, it speaks the language of the host to which any component was attached last, and that of the
/// user's system before. Apartment-threaded.
class GridUnitsDlg final : public Object<GridUnitsDlg, Dispatch<IqzGridUnitsDlg>> {
  public:
    /// S_OK however the dialog was closed; Cancel leaves the step as it was.
    STDMETHODIMP DoModal() override;
    STDMETHODIMP get_GridSteps(long* pVal) override;
    STDMETHODIMP put_GridSteps(long newVal) override;

  private:
    long steps_ = 0;  // twips
};

}  // namespace qz
