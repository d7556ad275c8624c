// The base of the module's dialogs: a window made from a dialog template, its texts in the host's language.
#pragma once

#include "com/object.h"
#include "res/language.h"
#include "ui/activation.h"
#include "ui/dialog_keyboard.h"
#include "ui/modal_loop.h"

#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qz {

/// A dialog from a template of this module. Templates exist once, for all languages: a caption or control
/// text "@123" stands for text 123 of the string table.
///
/// Not movable; used on one thread. A dialog that may be deleted inside one of its own messages is either
/// made by MakeDialog and counted for the duration of every message, or gives its owner in KeepAlive().
class Dialog : public std::enable_shared_from_this<Dialog> {
  public:
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    /// Destroys a window still there, whose last messages no longer reach the derived class.
    virtual ~Dialog();

    /// Null before it is created and after it has gone.
    HWND Handle() const noexcept { return handle_; }

    /// Makes the window without running it: a child of `parent`, or a modeless dialog over it, as the
    /// template says. Throws when the system or OnInit refuses. There must be none yet.
    void Create(HWND parent);
    /// Shows the dialog over `owner` (which may be null) until EndModal; gives its result. Throws when the
    /// system or OnInit refuses.
    INT_PTR RunModal(HWND owner);
    void Destroy() noexcept;

  protected:
    Dialog(unsigned templateId, Language language) noexcept : templateId_(templateId), language_(language) {}

    /// The window is there, its texts are in the language. What it throws lets the creation fail.
    virtual void OnInit() {}
    /// A control's notification, or a command of a key (IDOK, IDCANCEL) with `notification` 0. True when it
    /// was handled.
    virtual bool OnCommand(int /*id*/, int /*notification*/) { return false; }
    /// Any other message; nothing lets the system's handling follow.
    virtual std::optional<LRESULT> OnMessage(UINT, WPARAM, LPARAM) { return std::nullopt; }
    /// Told when a handler threw; the thread's IErrorInfo has the text. By default the debugger's output
    /// shows it.
    virtual void OnMessageFailed(HRESULT code) noexcept;
    /// The object that this dialog is a part of, counted for the duration of every message.
    virtual ComPtr<IUnknown> KeepAlive() noexcept { return nullptr; }

    /// Hides the dialog at once; RunModal destroys it.
    void EndModal(INT_PTR result) noexcept;

    Language TextLanguage() const noexcept { return language_; }
    void UseLanguage(Language language) noexcept { language_ = language; }
    HWND Item(int id) const noexcept { return GetDlgItem(handle_, id); }
    LRESULT SendItem(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const noexcept {
        return SendDlgItemMessageW(handle_, id, message, wParam, lParam);
    }
    std::wstring ItemText(int id) const;
    void SetItemText(int id, const std::wstring& text) const noexcept;
    /// Names a control within the dialog for assistive tools, as long as the dialog is there.
    void NameControl(HWND control, const std::wstring& name);
    void EnableItem(int id, bool enabled) const noexcept { EnableChild(Item(id), enabled); }
    /// Moves a control, in client pixels of the dialog; one without room is hidden.
    void PlaceItem(int id, const RECT& bounds) const noexcept;
    /// Where a control lies, in client pixels of the dialog.
    RECT ItemBounds(int id) const noexcept;
    /// Dialog units of the dialog's font in pixels.
    SIZE Pixels(SIZE dialogUnits) const noexcept;

  private:
    /// The window, and the focus on its first control; OnInit's failure thrown.
    void MakeWindow(HWND parent);
    static INT_PTR CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    INT_PTR Dispatch(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    INT_PTR Initialize() noexcept;
    std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Answer(UINT message, LRESULT result) const noexcept;
    void ForgetNames() noexcept;

    HWND handle_ = nullptr;
    CallerContext caller_;
    ModalLoop* modal_ = nullptr;  ///< While it runs.
    unsigned templateId_;
    Language language_;
    std::vector<HWND> named_;  ///< For assistive tools.
    HRESULT initFailure_ = S_OK;
    std::wstring initFailureText_;
};

/// A dialog owned by shared pointers. Its window, should it still be there, goes while the dialog is whole,
/// so that the window's last messages find one.
template <class D, class... Arguments>
std::shared_ptr<D> MakeDialog(Arguments&&... arguments) {
    return {new D(std::forward<Arguments>(arguments)...), [](D* dialog) {
                dialog->Destroy();
                delete dialog;
            }};
}

/// The text of any window.
std::wstring WindowText(HWND window);

}  // namespace qz
