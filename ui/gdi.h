// Owners of GDI objects and device contexts. Makers throw when the system gives no object.
#pragma once

#include "com/error.h"

#include <windows.h>

#include <cstddef>
#include <span>
#include <utility>

namespace qz {

/// Owns a pen, brush, bitmap, font or region. It must not be selected into a device context when it goes: let
/// a SelectScope end first.
template <class Handle>
class GdiObject {
  public:
    GdiObject() = default;
    explicit GdiObject(Handle handle) noexcept : handle_(handle) {}
    GdiObject(GdiObject&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    GdiObject& operator=(GdiObject&& other) noexcept {
        if (this != &other) Reset(std::exchange(other.handle_, nullptr));
        return *this;
    }
    ~GdiObject() { Reset(); }

    Handle Get() const noexcept { return handle_; }
    explicit operator bool() const noexcept { return handle_ != nullptr; }
    Handle Detach() noexcept { return std::exchange(handle_, nullptr); }
    void Reset(Handle handle = nullptr) noexcept {
        if (handle_) DeleteObject(handle_);
        handle_ = handle;
    }

  private:
    Handle handle_ = nullptr;
};

using Pen = GdiObject<HPEN>;
using Brush = GdiObject<HBRUSH>;
using Bitmap = GdiObject<HBITMAP>;
using Font = GdiObject<HFONT>;
using Region = GdiObject<HRGN>;

/// A solid pen, `width` in pixels.
Pen MakePen(int width, COLORREF colour);
Brush MakeBrush(COLORREF colour);

/// Selects an object into a device context for a scope.
class SelectScope {
  public:
    SelectScope(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {
        ThrowLastErrorIf(!before_, L"A drawing object cannot be selected");
    }
    ~SelectScope() { SelectObject(dc_, before_); }
    SelectScope(const SelectScope&) = delete;
    SelectScope& operator=(const SelectScope&) = delete;

  private:
    HDC dc_;
    HGDIOBJ before_;
};

/// Saves every setting of a device context (origins, modes, clip, selected objects) and restores it at the
/// end.
class SavedDc {
  public:
    explicit SavedDc(HDC dc) : dc_(dc) {
        ThrowLastErrorIf(SaveDC(dc) == 0, L"The device context cannot be saved");
    }
    ~SavedDc() { RestoreDC(dc_, -1); }  // the last one: metafiles know no other
    SavedDc(const SavedDc&) = delete;
    SavedDc& operator=(const SavedDc&) = delete;

  private:
    HDC dc_;
};

/// A device context in memory.
class MemoryDc {
  public:
    explicit MemoryDc(HDC like = nullptr) : dc_(CreateCompatibleDC(like)) {
        ThrowLastErrorIf(!dc_, L"No memory device context could be made");
    }
    ~MemoryDc() { DeleteDC(dc_); }
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;

    HDC Get() const noexcept { return dc_; }

  private:
    HDC dc_;
};

/// The device context of a window's client area, or of the screen when the window is null.
class WindowDc {
  public:
    explicit WindowDc(HWND window) : window_(window), dc_(GetDC(window)) {
        ThrowLastErrorIf(!dc_, L"The window gives no device context");
    }
    ~WindowDc() { ReleaseDC(window_, dc_); }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;

    HDC Get() const noexcept { return dc_; }

  private:
    HWND window_;
    HDC dc_;
};

/// BeginPaint and EndPaint around the handling of WM_PAINT.
class PaintScope {
  public:
    explicit PaintScope(HWND window) : window_(window), dc_(BeginPaint(window, &paint_)) {
        ThrowLastErrorIf(!dc_, L"The window cannot be painted");
    }
    ~PaintScope() { EndPaint(window_, &paint_); }
    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;

    HDC Get() const noexcept { return dc_; }
    /// The part to paint, client coordinates.
    const RECT& Dirty() const noexcept { return paint_.rcPaint; }

  private:
    HWND window_;
    PAINTSTRUCT paint_{};
    HDC dc_;
};

/// A 32-bit bitmap, rows from top to bottom, whose pixels are reachable in memory. Copies from it are far
/// cheaper than from a screen-compatible bitmap. Movable; empty by default.
class DibSection {
  public:
    DibSection() = default;
    /// Throws E_INVALIDARG for a side below 1, E_OUTOFMEMORY when the system has no room.
    DibSection(int width, int height);
    DibSection(DibSection&& other) noexcept;
    DibSection& operator=(DibSection&& other) noexcept;

    HBITMAP Get() const noexcept { return bitmap_.Get(); }
    explicit operator bool() const noexcept { return static_cast<bool>(bitmap_); }
    SIZE Extent() const noexcept { return size_; }
    /// Bytes of the pixels.
    size_t ByteCount() const noexcept { return Pixels().size_bytes(); }
    /// The pixels as 0x00RRGGBB, row by row. Call GdiFlush before reading what GDI drew.
    std::span<DWORD> Pixels() const noexcept {
        return {bits_, static_cast<size_t>(size_.cx) * static_cast<size_t>(size_.cy)};
    }

  private:
    Bitmap bitmap_;
    SIZE size_{};
    DWORD* bits_ = nullptr;
};

/// Fills a rectangle with a colour without making a brush.
void FillSolid(HDC dc, const RECT& rect, COLORREF colour) noexcept;

/// Off-screen drawing of `area` of a device context: draw to Dc() in the coordinates of the target, then
/// Show(). Nothing reaches the target when Show() is not called.
class PaintBuffer {
  public:
    /// `area` in client pixels of `target` (mapping mode MM_TEXT); not empty.
    PaintBuffer(HDC target, const RECT& area);

    HDC Dc() const noexcept { return memory_.Get(); }
    void Show() const noexcept;

  private:
    HDC target_;
    RECT area_;
    DibSection pixels_;
    MemoryDc memory_;
    SelectScope selected_;
};

}  // namespace qz
