// The text field of an editor.
#pragma once

#include "ui/child_window.h"

#include <string>

namespace qz {

/// A field whose text can be put back to what it was before an entry, caret included. Tab and Escape are the
/// dialog's also when it has several lines.
class EntryField final : public ChildWindow {
  public:
    /// Makes the field the first control of a dialog, in the dialog's font. `style` beside that of any field;
    /// placed and shown by the dialog.
    void Create(HWND dialog, int id, DWORD style);
    /// Takes over a field of the dialog's template.
    void AttachTo(HWND field);

    std::wstring Text() const;
    /// Puts a text there; one that is there already keeps its caret and its place in the window.
    void Show(const std::wstring& text);
    /// The text as it stands may be put back.
    void Accept() { accepted_ = Text(); }
    const std::wstring& Accepted() const noexcept { return accepted_; }
    /// Puts the text accepted last back, the caret to where it was before the entry.
    void Revert();

  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void NoteCaret() noexcept;
    bool IsFull() const;

    std::wstring accepted_;
    DWORD caretFrom_ = 0, caretTo_ = 0;
};

}  // namespace qz
