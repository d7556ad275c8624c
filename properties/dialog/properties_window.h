// The window of the properties dialog: object list, pin, inspector, OK and Cancel.
#pragma once

#include "com/event_connection.h"
#include "properties/dialog/placement_memory.h"
#include "properties/editors/edited_attribute.h"
#include "properties/inspector/prop_control.h"
#include "ui/dialog.h"
#include "ui/gdi.h"
#include "ui/hosted_control.h"
#include "ui/modeless_keyboard.h"

#include "generated/qzVandraExt.h"
#include "generated/vandra_x.h"

#include <optional>
#include <string>

namespace qz {

/// What the dialog object keeps while there is a window and while there is none.
struct PropertiesState {
    ComPtr<IDispatch> host;
    ComPtr<IDispatch> object;
    std::shared_ptr<AttributeChanges> changes;  ///< Where changes are recorded; null: in the inspector.
    long alwaysVisible = 0;
    long options = qzPropertiesDlgOptions_None;
    Rect lastPlace;  ///< Screen pixels; all zero before there was a window.
    PlacementMemory memory;
};

/// Modal or modeless; after it was closed another one is made. Owned by a shared_ptr.
class PropertiesWindow final : public Dialog {
  public:
    /// `owner` is the object that the state is a part of.
    PropertiesWindow(PropertiesState& state, IUnknown* owner, Language language) noexcept;

    /// Over a window, or none. Return when the window was closed, and at once.
    void ShowModal(HWND parent);
    void ShowModeless(HWND parent);
    void Activate() const noexcept;

    /// The state's host or object is another one now.
    void TakeHost();
    void TakeObject();
    /// The state's flag is another one now.
    void ShowPin() const noexcept;

    /// Empties the list of objects but for one empty entry.
    void ClearObjects() const;
    /// False when the list refuses.
    bool AppendObject(const wchar_t* path) const noexcept;

  private:
    void OnInit() override;
    bool OnCommand(int id, int notification) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    ComPtr<IUnknown> KeepAlive() noexcept override { return owner_; }

    bool Has(long option) const noexcept { return (state_.options & option) != 0; }
    void SetFrame() const noexcept;
    void LoadPins();
    void OpenInspector();
    void CloseInspector() noexcept;
    void HearInspector(DISPID event);
    void ShowCaption();
    void PlaceWindow(HWND parent) const noexcept;
    void Arrange(SIZE client);
    void KeepInLimits() const noexcept;
    void RememberPlace() noexcept;

    void OnPinClicked();
    void OnObjectChosen();
    std::wstring ChosenPath() const;
    void LetSelectionGo(IDispatch* host) const noexcept;
    void ShowChosen(const std::wstring& path);
    void RequestClose(INT_PTR result);
    void End(INT_PTR result) noexcept;
    void TellFailure(HRESULT code);
    bool ClosesWhenLeft() const noexcept;

    PropertiesState& state_;
    IUnknown* owner_;
    HWND parent_ = nullptr;
    bool modal_ = false;
    bool choosing_ = false;
    bool closing_ = false;
    int childDialogs_ = 0;  ///< Modal windows of the inspector that are open.
    HostedControl site_;
    ComPtr<PropControl> inspector_;
    std::optional<EventConnection> events_;
    std::optional<ModelessKeyboard> keyboard_;
    Bitmap pinned_, unpinned_;
};

}  // namespace qz
