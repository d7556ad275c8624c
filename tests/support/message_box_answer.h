// Answers a message box in place of the user.
#pragma once

#include <windows.h>

#include <string>

namespace qz {

/// Presses a button of every message box that this thread shows, or the one button that a box has, and keeps
/// the texts of the last.
class MessageBoxAnswer {
  public:
    explicit MessageBoxAnswer(int button);
    ~MessageBoxAnswer();
    MessageBoxAnswer(const MessageBoxAnswer&) = delete;
    MessageBoxAnswer& operator=(const MessageBoxAnswer&) = delete;

    bool Shown() const noexcept { return shown_; }
    const std::wstring& Text() const noexcept { return text_; }
    const std::wstring& Caption() const noexcept { return caption_; }

  private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) noexcept;
    void Look();

    static MessageBoxAnswer* current_;
    int button_;
    UINT_PTR timer_;
    bool shown_ = false;
    HWND answered_ = nullptr;
    std::wstring text_, caption_;
};

}  // namespace qz
