// The editor of chains of actions.
#pragma once

#include "properties/editors/confirmation_pause.h"
#include "properties/editors/listed_objects.h"
#include "properties/editors/value_dlg.h"
#include "ui/gdi.h"

#include <array>
#include <cstddef>

namespace qz {

/// Lists the actions in their order. What the user does to the list is written at once. While the editor is
/// open the document's changes are not confirmed: an action's own attributes are changed in a dialog over it.
class CValueActionsDlg final : public CValueDlg {
  public:
    explicit CValueActionsDlg(Language language) noexcept;

    /// The menu of new actions.
    void OpenPicker() override;

  private:
    struct Picture {
        Bitmap enabled, disabled;
    };

    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;
    void OnFinished() override { pause_.reset(); }
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool WantsKey(HWND control, UINT message, WPARAM key) override;
    void OnKey(HWND control, UINT message, WPARAM key) override;

    std::optional<int> CommandOf(HWND control, UINT message, WPARAM key) const;
    bool Press(int button);
    void Add();
    ComPtr<IDispatch> CreateAction(int type) const;
    void Remove();
    void Edit();
    void Move(int by);

    std::optional<std::size_t> Selected() const noexcept;
    void ShowChain(std::size_t selected);
    void ShowSelected();
    void EnableButton(std::size_t button, bool enabled) const noexcept;

    std::vector<ListedObject> chain_;
    std::array<Picture, 5> pictures_;
    std::shared_ptr<ConfirmationPause> pause_;
};

}  // namespace qz
