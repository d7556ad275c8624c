// The editor of the list of fields that a form action concerns.
#pragma once

#include "properties/editors/confirmation_pause.h"
#include "properties/editors/listed_objects.h"
#include "properties/editors/value_dlg.h"

#include <commctrl.h>

#include <cstddef>

namespace qz {

/// Lists the objects among which the user chooses, those that are in the attribute's value with a check mark.
/// A check box leaves out what is no form field. While the editor is open the document's changes are not
/// confirmed.
class CValueObjectListDlg final : public CValueDlg {
  public:
    explicit CValueObjectListDlg(Language language) noexcept;

  private:
    struct Row {
        ListedObject listed;
        bool checked = false;
    };

    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;
    void OnFinished() override { pause_.reset(); }
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    void FitColumn() const;
    void Gather();
    void FillList();
    void AddChosenRows();
    void InsertRow(std::size_t row) const;
    void ShowChecks();
    void OnItemChanged(const NMLISTVIEW& change);
    void Choose(const ListedObject& object, bool chosen);

    std::vector<Row> rows_;             ///< As in the list.
    std::vector<ListedObject> chosen_;  ///< The value, in its order.
    std::shared_ptr<ConfirmationPause> pause_;
};

}  // namespace qz
