// The strip at the bottom: what happened last, and where in the document the view is.
#pragma once

#include <windows.h>

#include <string>

namespace qz {

class StatusStrip {
  public:
    /// Throws when the system refuses.
    void Create(HWND parent);
    /// Fits the strip to its parent's client area; `font` is not owned.
    void Layout(HFONT font);
    int Height() const noexcept;

    void ShowLine(const std::wstring& line) noexcept;
    void ShowPosition(const std::wstring& position) noexcept;

  private:
    void SetPart(int part, const std::wstring& text) noexcept;

    HWND handle_ = nullptr;  ///< Goes with its parent.
};

}  // namespace qz
