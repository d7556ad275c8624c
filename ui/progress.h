// How far a long operation is, and the way to end it.
#pragma once

#include "res/language.h"
#include "ui/modal_owner.h"
#include "ui/progress_pace.h"

#include <memory>
#include <optional>
#include <string>

namespace qz {

class ProgressWindow;

/// Shows, once an operation has taken a second, a window with a text, a bar and a Cancel button over the
/// owner's top-level window, which is disabled meanwhile. Lives as long as the operation, on its thread.
///
///     Progress progress({window, frame}, language, L"Reading");
///     for (...) {
///         if (progress.Due() && !progress.GoOn(share)) break;
///         ...
///     }
///
/// An owner that is not visible gets no window, and the operation no end but its own.
class Progress {
  public:
    Progress(ModalOwner owner, Language language, std::wstring text);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Whether GoOn is to be called now. Cheap: to be asked at every step.
    bool Due() const { return pace_.Due(GetTickCount64()); }

    /// Shows that this share (0 to 1) is done and handles the messages that wait, whatever they do: look at
    /// everything again afterwards. False when the operation is to end: cancelled, the owner gone, the
    /// program ending. False ever after.
    bool GoOn(double share) noexcept;

  private:
    void Open();
    void HandleMessages() noexcept;
    bool ShowsWindow() const noexcept;

    ModalOwner owner_;
    Language language_;
    std::wstring text_;
    ProgressPace pace_{GetTickCount64()};
    std::shared_ptr<ProgressWindow> window_;
    std::optional<ModelessPause> pause_;
    HWND top_ = nullptr;     ///< The owner's top-level window.
    HWND focus_ = nullptr;   ///< Had it before.
    bool disabled_ = false;  ///< By us.
    bool tried_ = false;     ///< To open the window.
    bool ended_ = false;
};

}  // namespace qz
