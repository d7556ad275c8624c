// The editor of truth values.
#pragma once

#include "properties/editors/value_dlg.h"

namespace qz {

class CValueBoolDlg final : public CValueDlg {
  public:
    explicit CValueBoolDlg(Language language) noexcept;

  private:
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;
};

}  // namespace qz
