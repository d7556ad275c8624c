#include "tests/host_reference/host_fixture.h"

#include "sample/host/sheet_painter.h"
#include "ui/gdi.h"

#include <algorithm>

namespace qz::sample {
namespace {

constexpr DWORD untouched = 0x123456;

/// A bitmap to draw into, filled with a colour that nothing else has.
struct Canvas {
    explicit Canvas(int width, int height) : pixels(width, height), selected(dc.Get(), pixels.Get()) {
        std::ranges::fill(pixels.Pixels(), untouched);
    }
    HdcHandle Handle() const { return reinterpret_cast<HdcHandle>(dc.Get()); }
    DWORD At(int x, int y) const {
        GdiFlush();
        return pixels.Pixels()[static_cast<size_t>(y) * static_cast<size_t>(pixels.Extent().cx) +
                               static_cast<size_t>(x)] &
               0xFFFFFF;
    }

    MemoryDc dc;
    DibSection pixels;
    SelectScope selected;
};

DWORD Swapped(COLORREF colour) {
    return static_cast<DWORD>(GetRValue(colour) << 16 | GetGValue(colour) << 8 | GetBValue(colour));
}

struct HostDrawing : HostTest {};

TEST_F(HostDrawing, APageTakesItsSizeAtTheScale) {
    const Canvas canvas(100, 130);
    ASSERT_EQ(host->DrawCurrentPage(canvas.Handle(), 0, 14), S_OK);
    EXPECT_EQ(canvas.At(0, 0), Swapped(SheetColour(1)));
    EXPECT_EQ(canvas.At(84, 109), 0xFFFFFFu);
    EXPECT_EQ(canvas.At(85, 50), untouched);
    EXPECT_EQ(canvas.At(50, 110), untouched);
}

TEST_F(HostDrawing, OriginAndClippingAreHonoured) {
    const Canvas canvas(300, 300);
    SetViewportOrgEx(canvas.dc.Get(), 100, 100, nullptr);
    IntersectClipRect(canvas.dc.Get(), 10, 0, 400, 400);
    host->SetCurrentPage(2);
    ASSERT_EQ(host->DrawCurrentPage(canvas.Handle(), 0, 14), S_OK);
    EXPECT_EQ(canvas.At(105, 102), untouched);
    EXPECT_EQ(canvas.At(111, 101), Swapped(SheetColour(2)));
    EXPECT_EQ(canvas.At(99, 99), untouched);
}

TEST_F(HostDrawing, ImpossiblePagesAndScalesDoNoHarm) {
    const Canvas canvas(50, 50);
    EXPECT_EQ(host->DrawCurrentPage(canvas.Handle(), 1, 0), E_INVALIDARG);
    EXPECT_EQ(host->DrawCurrentPage(canvas.Handle(), 1, 100000), E_INVALIDARG);
    for (const long size : {0L, -5000L, 2'000'000L}) {
        host->NewDocument(1, size, size);
        EXPECT_EQ(host->DrawCurrentPage(canvas.Handle(), 1, 50), S_OK) << size;
    }
    host->NewDocument(0, 1, 1);
    EXPECT_EQ(host->DrawCurrentPage(canvas.Handle(), 1, 14), E_INVALIDARG);
}

/// A document file with one picture: a PNG of 2 x 2 pixels, red and green above blue and white.
std::string FileWithPicture() {
    static const unsigned char png[] = {
        0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48, 0x44,
        0x52, 0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00, 0x02, 0x08, 0x02, 0x00, 0x00, 0x00, 0xfd,
        0xd4, 0x9a, 0x73, 0x00, 0x00, 0x00, 0x12, 0x49, 0x44, 0x41, 0x54, 0x78, 0x9c, 0x63, 0xf8,
        0xcf, 0xc0, 0xc0, 0x00, 0xc2, 0x0c, 0xff, 0x81, 0x00, 0x00, 0x1f, 0xee, 0x05, 0xfb, 0x0b,
        0xd9, 0x68, 0x8b, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};
    const std::string header =
        R"({"pages":[{"width":2000,"height":2000,"picture":0}],"pictures":[{"offset":0,"size":)" +
        std::to_string(sizeof png) + "}]}";
    std::string file("VDOC\r\n\x1a\n", 8);
    const auto number = [&file](size_t value, int bytes) {
        for (int i = 0; i < bytes; ++i) file += static_cast<char>(value >> (8 * i));
    };
    number(1, 4);
    number(header.size(), 4);
    number(sizeof png, 8);
    return file + header + std::string(reinterpret_cast<const char*>(png), sizeof png);
}

TEST_F(HostDrawing, ThePicturesOfAFileAreDrawn) {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"host_drawing_test.vdoc";
    const std::string bytes = FileWithPicture();
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
    const HRESULT loaded = host->LoadDocument(_bstr_t(path.c_str()));
    DeleteFileW(path.c_str());
    ASSERT_EQ(loaded, S_OK);

    const Canvas canvas(60, 60);
    ASSERT_EQ(host->DrawCurrentPage(canvas.Handle(), 0, 50), S_OK);
    EXPECT_EQ(canvas.At(5, 5), 0xFF0000u);
    EXPECT_EQ(canvas.At(45, 5), 0x00FF00u);
    EXPECT_EQ(canvas.At(5, 45), 0x0000FFu);
    EXPECT_EQ(canvas.At(45, 45), 0xFFFFFFu);
    EXPECT_EQ(canvas.At(55, 55), untouched);
}

TEST_F(HostDrawing, TheViewShowsTheCurrentPageAndFollows) {
    const HWND parent = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 400, 300, nullptr,
                                        nullptr, nullptr, nullptr);
    ASSERT_TRUE(parent);
    host->SetZoom(20);
    ASSERT_EQ(host->ShowIn(static_cast<long>(reinterpret_cast<LONG_PTR>(parent))), S_OK);
    long window = 0;
    host->get_ViewWindow(&window);
    const HWND view = reinterpret_cast<HWND>(static_cast<LONG_PTR>(window));
    ASSERT_TRUE(IsWindow(view));
    const auto pageColour = [view] {
        UpdateWindow(view);
        const WindowDc dc(view);
        RECT client{};
        GetClientRect(view, &client);
        return GetPixel(dc.Get(), client.right / 2,
                        (client.bottom - 158) / 2 + 4);  // in the band at the page's top
    };
    EXPECT_EQ(pageColour(), SheetColour(1));
    host->SetCurrentPage(2);
    EXPECT_EQ(pageColour(), SheetColour(2));
    host->SetAutoRefresh(0);
    host->SetCurrentPage(3);
    EXPECT_EQ(pageColour(), SheetColour(2));
    host->Refresh();
    EXPECT_EQ(pageColour(), SheetColour(3));
    host->SetAutoRefresh(1);
    Told();
    SendMessageW(view, WM_KEYDOWN, VK_END, 0);
    SendMessageW(view, WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, WHEEL_DELTA), 0);
    EXPECT_EQ(Told(), (Flags{0x20, 0x40}));
    sink->whenTold = [this] { host->ShowIn(0); };
    SendMessageW(view, WM_KEYDOWN, VK_HOME, 0);  // the view goes inside its own message
    EXPECT_FALSE(IsWindow(view));
    DestroyWindow(parent);
}

}  // namespace
}  // namespace qz::sample
