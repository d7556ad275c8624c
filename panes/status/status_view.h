// The fields of the status bar on the screen: child windows where the bar has a window, else a drawing.
#pragma once

#include "panes/status/button_tips.h"
#include "panes/status/status_field_window.h"
#include "ui/gdi.h"

#include <optional>
#include <string>

namespace qz {

/// What the fields show.
struct StatusContent {
    PerField<bool> wanted;         ///< A text that is empty is left out all the same.
    PerField<bool> enabled;        ///< Of buttons and entry fields.
    PerField<std::wstring> texts;  ///< Of texts and entry fields.
    PerField<std::wstring> names;  ///< Of buttons and entry fields, for tips and assistive tools.

    friend bool operator==(const StatusContent&, const StatusContent&) = default;
};

/// Setting texts, places and the focus runs foreign code only through the focus, whose changes the bar's
/// window hears.
class StatusView {
  public:
    /// Makes the child windows of a bar. Throws when the system refuses.
    void Create(HWND bar);
    /// To be called before the bar's window goes.
    void Destroy() noexcept;

    /// Shows a content in a bar of that size. A text that the user is just changing stays as he has it. True
    /// when the bar looks different now.
    bool Show(StatusContent content, SIZE bar);
    /// Draws all fields, whether there are child windows or not.
    void Draw(HDC dc, COLORREF textColour);
    void DrawButton(const DRAWITEMSTRUCT& item) const;
    /// Repaints the fields.
    void Invalidate() const noexcept;

    /// What the user has made of an entry field's text; nothing when it is as it was shown.
    std::optional<std::wstring> Edit(StatusField entry) const;
    /// Shows again what was shown before the user changed it.
    void Restore(StatusField entry) const;
    void SelectAll(StatusField entry) const noexcept;

    HWND WindowOf(StatusField field) const noexcept { return windows_[field].Handle(); }
    /// The field that has that child window, or that lies at a client point of the bar.
    std::optional<StatusField> FieldOf(HWND child) const noexcept;
    std::optional<StatusField> FieldAt(POINT point) const noexcept;
    const Rect& PlaceOf(StatusField field) const noexcept { return places_[field]; }

    /// The window that gets the focus when the bar does: an entry field if possible. Null when none can.
    HWND FirstToFocus() const noexcept;
    /// The next window in the order of the Tab key that can have the focus; null behind the last.
    HWND NextToFocus(HWND from, bool backwards) const noexcept;

  private:
    void UseFont();
    PerField<Rect> Arrange(SIZE bar) const;
    void Update(StatusField field, bool edited, const std::wstring& nameBefore);
    void PassFocusOn(StatusField field) const noexcept;

    HWND bar_ = nullptr;
    PerField<StatusFieldWindow> windows_;
    ButtonTips tips_;
    StatusContent content_;
    PerField<Rect> places_;
    SIZE size_{};
    Font font_;
    int fontDpi_ = 0;
};

}  // namespace qz
