// The inspector's inner dialog: tabs, list of attributes, description, frame of the value.
#pragma once

#include "properties/model/attribute_row.h"
#include "properties/model/inspector_layout.h"
#include "ui/child_keys.h"
#include "ui/dialog.h"

#include <commctrl.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace qz {

/// What the user does in the inner dialog. May end the dialog.
class InspectorDialogListener {
  public:
    virtual void OnTabChosen() = 0;
    virtual void OnAttributeChosen() = 0;
    /// F4, or Down with Alt, in the list.
    virtual void OnPickerKey() = 0;
    virtual bool CanRestoreValue() const = 0;
    /// Escape in the list.
    virtual void OnRestoreKey() = 0;
    virtual IUnknown* DialogOwner() noexcept = 0;

  protected:
    ~InspectorDialogListener() = default;
};

/// Shows; what is shown is the listener's business.
class InspectorDialog final : public Dialog, private ChildKeyListener {
  public:
    InspectorDialog(InspectorDialogListener& listener, Language language) noexcept
        : Dialog(dialogTemplate, language), listener_(listener) {}

    /// Shows these tabs, of which those that are there already stay; tells nobody. `selected` is an index.
    void SetTabs(std::span<const wchar_t> codes, std::size_t selected);
    void RemoveTabs();
    /// The code of the tab selected; "All" when there is none.
    wchar_t CurrentTab() const;

    void ClearList();
    /// Nothing of the list is drawn between the two calls: see `ListRefill`.
    void SuspendList(bool suspended);
    void AppendRow(const std::wstring& name, long index);
    /// Selects an entry as if the user had clicked it.
    void Choose(std::size_t entry);
    /// The text, and the attribute's index, of the entry selected; nothing when none is.
    std::optional<std::wstring> ChosenName() const;
    std::optional<long> ChosenIndex() const;

    void SetDescription(const std::wstring& text);
    /// The caption around the value tells when several objects have different ones.
    void SetSeveralValues(bool several);
    /// Lays the parts out for a client size, in pixels.
    void Arrange(SIZE client);
    /// Where the editor goes, in client pixels.
    RECT EditorBounds() const noexcept;
    HWND List() const noexcept;
    /// The id of the part that has the focus, which is the list while an editor has it; 0 when none has.
    int FocusedPart() const noexcept;
    void FocusPart(int id) const noexcept { SetFocus(Item(id)); }
    /// The window that the editor follows in the order of the Tab key.
    HWND BeforeEditor() const noexcept;

  private:
    static const unsigned dialogTemplate;

    void OnInit() override;
    bool OnCommand(int id, int notification) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    ComPtr<IUnknown> KeepAlive() noexcept override { return listener_.DialogOwner(); }
    bool WantsKey(HWND control, UINT message, WPARAM key) override;
    void OnKey(HWND control, UINT message, WPARAM key) override;

    void InsertTabs(std::span<const wchar_t> codes);
    std::wstring EntryText(WPARAM entry) const;
    InspectorMetrics Metrics(SIZE client) const;

    InspectorDialogListener& listener_;
    ChildWindow list_;  ///< The way past those who look at the list's messages.
    ChildKeys keys_{*this};
    std::vector<wchar_t> tabs_;  ///< Their codes.
    std::wstring description_;
    SIZE client_{};
    InspectorPlaces places_;
};

/// Empties the dialog's list for new rows. It is drawn, with its scroll bar, when this ends and no sooner: a
/// scroll bar that goes and comes back costs more than the rows.
class ListRefill {
  public:
    explicit ListRefill(std::shared_ptr<InspectorDialog> dialog) : dialog_(std::move(dialog)) {
        dialog_->SuspendList(true);
        dialog_->ClearList();
    }
    ~ListRefill() { End(); }
    ListRefill(ListRefill&& other) noexcept = default;
    ListRefill& operator=(ListRefill&&) = delete;

    void End() noexcept {
        if (const auto dialog = std::exchange(dialog_, nullptr)) dialog->SuspendList(false);
    }

  private:
    std::shared_ptr<InspectorDialog> dialog_;
};

}  // namespace qz
