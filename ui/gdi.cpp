#include "ui/gdi.h"

namespace qz {

Pen MakePen(int width, COLORREF colour) {
    Pen pen(CreatePen(PS_SOLID, width, colour));
    ThrowLastErrorIf(!pen, L"No pen could be made");
    return pen;
}

Brush MakeBrush(COLORREF colour) {
    Brush brush(CreateSolidBrush(colour));
    ThrowLastErrorIf(!brush, L"No brush could be made");
    return brush;
}

DibSection::DibSection(int width, int height) : size_{width, height} {
    if (width < 1 || height < 1) Throw(E_INVALIDARG, L"A bitmap needs at least one pixel");
    BITMAPINFO description{};
    description.bmiHeader.biSize = sizeof description.bmiHeader;
    description.bmiHeader.biWidth = width;
    description.bmiHeader.biHeight = -height;  // rows from top to bottom
    description.bmiHeader.biPlanes = 1;
    description.bmiHeader.biBitCount = 32;
    description.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    bitmap_.Reset(CreateDIBSection(nullptr, &description, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!bitmap_ || !bits) Throw(E_OUTOFMEMORY, L"No bitmap could be made");
    bits_ = static_cast<DWORD*>(bits);
}

DibSection::DibSection(DibSection&& other) noexcept
    : bitmap_(std::move(other.bitmap_)),
      size_(std::exchange(other.size_, {})),
      bits_(std::exchange(other.bits_, nullptr)) {}

DibSection& DibSection::operator=(DibSection&& other) noexcept {
    bitmap_ = std::move(other.bitmap_);
    size_ = std::exchange(other.size_, {});
    bits_ = std::exchange(other.bits_, nullptr);
    return *this;
}

void FillSolid(HDC dc, const RECT& rect, COLORREF colour) noexcept {
    const COLORREF before = SetBkColor(dc, colour);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
    SetBkColor(dc, before);
}

PaintBuffer::PaintBuffer(HDC target, const RECT& area)
    : target_(target),
      area_(area),
      pixels_(area.right - area.left, area.bottom - area.top),
      memory_(target),
      selected_(memory_.Get(), pixels_.Get()) {
    SetWindowOrgEx(memory_.Get(), area.left, area.top, nullptr);
}

void PaintBuffer::Show() const noexcept {
    BitBlt(target_, area_.left, area_.top, area_.right - area_.left, area_.bottom - area_.top, memory_.Get(),
           area_.left, area_.top, SRCCOPY);
}

}  // namespace qz
