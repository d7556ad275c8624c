#include "ui/progress.h"

#include "res/dialog_ids.h"
#include "ui/dialog.h"
#include "ui/dialog_keyboard.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace qz {

namespace {

constexpr int barLength = 1'000;

/// So many at a time: a window that never validates itself would keep the operation waiting for ever.
constexpr int mostMessages = 100;

}  // namespace

/// The window; Cancel, Escape and its close box all cancel.
class ProgressWindow final : public Dialog {
  public:
    ProgressWindow(Language language, const std::wstring& text)
        : Dialog(QZ_DIALOG_PROGRESS, language), text_(text) {}

    bool Cancelled() const noexcept { return cancelled_; }
    void ShowShare(double share) const noexcept {
        const double within = std::clamp(share, 0.0, 1.0);
        SendItem(QZ_PROGRESS_BAR, PBM_SETPOS, static_cast<WPARAM>(within * barLength));
    }

  private:
    void OnInit() override {
        SetItemText(QZ_PROGRESS_TEXT, text_);
        SetWindowTextW(Handle(), text_.c_str());
        NameControl(Item(QZ_PROGRESS_BAR), text_);
        SendItem(QZ_PROGRESS_BAR, PBM_SETRANGE32, 0, barLength);
        Centre();
    }
    bool OnCommand(int id, int) override {
        if (id == IDCANCEL) cancelled_ = true;
        return id == IDCANCEL;
    }

    void Centre() const noexcept {
        RECT own{}, owner{};
        GetWindowRect(Handle(), &own);
        GetWindowRect(GetWindow(Handle(), GW_OWNER), &owner);
        SetWindowPos(Handle(), nullptr, (owner.left + owner.right - (own.right - own.left)) / 2,
                     (owner.top + owner.bottom - (own.bottom - own.top)) / 2, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        SendMessageW(Handle(), DM_REPOSITION, 0, 0);  // onto the screen
    }

    std::wstring text_;
    bool cancelled_ = false;
};

Progress::Progress(ModalOwner owner, Language language, std::wstring text)
    : owner_(std::move(owner)), language_(language), text_(std::move(text)) {}

Progress::~Progress() {
    // Before the window goes, or another program's would become active.
    if (disabled_ && IsWindow(top_)) EnableWindow(top_, TRUE);
    const bool wasActive = ShowsWindow() && GetActiveWindow() == window_->Handle();
    window_.reset();
    pause_.reset();
    if (wasActive && IsWindow(focus_) && GetAncestor(focus_, GA_ROOT) == top_) SetFocus(focus_);
}

bool Progress::ShowsWindow() const noexcept { return window_ && window_->Handle(); }

bool Progress::GoOn(double share) noexcept {
    if (ended_) return false;
    // A system that gives no window leaves the operation without one.
    if (!std::exchange(tried_, true)) Guard(IID_NULL, [this] { Open(); });
    if (window_) {
        if (ShowsWindow()) window_->ShowShare(share);
        HandleMessages();
        ended_ = ended_ || !ShowsWindow() || window_->Cancelled();
    }
    pace_.Shown(GetTickCount64());
    return !ended_;
}

void Progress::Open() {
    top_ = GetAncestor(owner_.window, GA_ROOT);
    if (!top_ || !IsWindowVisible(top_)) return;
    focus_ = GetFocus();
    pause_.emplace(owner_.frame);
    if (!IsWindow(top_)) return;  // the container was called
    window_ = MakeDialog<ProgressWindow>(language_, text_);
    try {
        window_->Create(top_);
    } catch (...) {
        window_.reset();
        pause_.reset();
        throw;
    }
    disabled_ = !EnableWindow(top_, FALSE);
    ShowWindow(window_->Handle(), SW_SHOW);
}

void Progress::HandleMessages() noexcept {
    MSG message;
    for (int handled = 0; handled < mostMessages && ShowsWindow() && !window_->Cancelled(); ++handled) {
        if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) return;
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));  // the program's own loop is to see it
            ended_ = true;
            return;
        }
        if (HandleDialogMessage(window_->Handle(), message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}  // namespace qz
