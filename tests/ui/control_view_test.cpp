#include "tests/ui/test_control.h"

#include "ui/gdi.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF untouched = RGB(0, 0, 255);

/// A blue picture to draw into.
struct Canvas {
    Canvas() : pixels(200, 200), selected(dc.Get(), pixels.Get()) {
        FillSolid(dc.Get(), RECT{0, 0, 200, 200}, untouched);
    }
    COLORREF At(int x, int y) const { return GetPixel(dc.Get(), x, y); }

    DibSection pixels;
    MemoryDc dc;
    SelectScope selected;
};

HRESULT DrawTo(TestControl& control, HDC dc, const RECTL& bounds, const RECTL* window = nullptr) {
    return control.Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc, &bounds, window, nullptr, 0);
}

/// The control fills its bounds 50, 60 .. 150, 160: red in the upper left quarter, white elsewhere.
void ExpectPicture(const Canvas& canvas) {
    EXPECT_EQ(canvas.At(52, 62), red);
    EXPECT_EQ(canvas.At(97, 107), red);
    EXPECT_EQ(canvas.At(103, 113), white);
    EXPECT_EQ(canvas.At(147, 157), white);
    for (const auto& [x, y] : {std::pair{47, 62}, {52, 57}, {153, 100}, {100, 163}}) {
        EXPECT_EQ(canvas.At(x, y), untouched) << x << ", " << y;
    }
}

TEST(View, DrawsWithoutAWindowScaledIntoTheBounds) {
    const auto control = MakeObject<TestControl>();
    const Canvas canvas;
    ASSERT_EQ(DrawTo(*control.Get(), canvas.dc.Get(), {50, 60, 150, 160}), S_OK);
    ExpectPicture(canvas);
    // In its own pixels: 5080 HIMETRIC are two inches.
    EXPECT_EQ(control->drawnBounds.left, 0);
    EXPECT_EQ(control->drawnBounds.right, 2 * GetDeviceCaps(canvas.dc.Get(), LOGPIXELSX));
}

TEST(View, FollowsTheMappingOfTheDeviceContextAndRestoresIt) {
    const auto control = MakeObject<TestControl>();
    const Canvas canvas;
    const HDC dc = canvas.dc.Get();
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowExtEx(dc, 1000, 1000, nullptr);
    SetViewportExtEx(dc, 100, 100, nullptr);
    SetViewportOrgEx(dc, 50, 60, nullptr);
    ASSERT_EQ(DrawTo(*control.Get(), dc, {0, 0, 1000, 1000}), S_OK);
    POINT origin{};
    SIZE window{};
    GetViewportOrgEx(dc, &origin);
    GetWindowExtEx(dc, &window);
    EXPECT_EQ(origin.x, 50);
    EXPECT_EQ(window.cx, 1000);
    SetMapMode(dc, MM_TEXT);
    SetViewportOrgEx(dc, 0, 0, nullptr);
    ExpectPicture(canvas);
}

TEST(View, DrawsTheClientAreaWhenThereIsAWindow) {
    Container container;
    ASSERT_EQ(container.Do(OLEIVERB_SHOW), S_OK);
    const Canvas canvas;
    ASSERT_EQ(DrawTo(*container.control.Get(), canvas.dc.Get(), {50, 60, 150, 160}), S_OK);
    EXPECT_EQ(container.control->drawnBounds.right, 100);
    EXPECT_EQ(container.control->drawnBounds.bottom, 80);
    ExpectPicture(canvas);
}

TEST(View, DrawsIntoAnOldStyleMetafile) {
    const auto control = MakeObject<TestControl>();
    const HDC recorder = CreateMetaFileW(nullptr);
    ASSERT_TRUE(recorder);
    SetMapMode(recorder, MM_ANISOTROPIC);
    SetWindowOrgEx(recorder, 0, 0, nullptr);
    SetWindowExtEx(recorder, 1000, 1000, nullptr);
    const RECTL window{0, 0, 1000, 1000};
    EXPECT_EQ(DrawTo(*control.Get(), recorder, {250, 300, 750, 800}, &window), S_OK);
    const HMETAFILE metafile = CloseMetaFile(recorder);
    const Canvas canvas;
    SetMapMode(canvas.dc.Get(), MM_ANISOTROPIC);
    SetViewportExtEx(canvas.dc.Get(), 200, 200, nullptr);
    EXPECT_TRUE(PlayMetaFile(canvas.dc.Get(), metafile));
    DeleteMetaFile(metafile);
    SetMapMode(canvas.dc.Get(), MM_TEXT);
    SetWindowOrgEx(canvas.dc.Get(), 0, 0, nullptr);
    ExpectPicture(canvas);
}

BOOL STDMETHODCALLTYPE Stop(ULONG_PTR) { return FALSE; }

TEST(View, RefusesWhatItCannotDraw) {
    const auto control = MakeObject<TestControl>();
    const Canvas canvas;
    const HDC dc = canvas.dc.Get();
    const RECTL bounds{0, 0, 10, 10};
    EXPECT_EQ(control->Draw(DVASPECT_ICON, -1, nullptr, nullptr, nullptr, dc, &bounds, nullptr, nullptr, 0),
              DV_E_DVASPECT);
    EXPECT_EQ(control->Draw(DVASPECT_CONTENT, 0, nullptr, nullptr, nullptr, dc, &bounds, nullptr, nullptr, 0),
              DV_E_LINDEX);
    EXPECT_EQ(
        control->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc, nullptr, nullptr, nullptr, 0),
        E_POINTER);
    EXPECT_EQ(DrawTo(*control.Get(), nullptr, bounds), E_INVALIDARG);
    EXPECT_EQ(control->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc, &bounds, nullptr, Stop, 0),
              E_ABORT);
    EXPECT_EQ(DrawTo(*control.Get(), dc, {5, 5, 5, 10}), S_OK);  // nothing to be seen
    EXPECT_EQ(control->draws, 0);
}

TEST(View, TellsItsAdviseSink) {
    Container container;
    TestControl& control = *container.control.Get();
    ASSERT_EQ(control.SetAdvise(DVASPECT_CONTENT, ADVF_PRIMEFIRST, container.site.Get()), S_OK);
    EXPECT_EQ(container.site->Count("OnViewChange"), 1);
    control.Invalidate();
    EXPECT_EQ(container.site->Count("OnViewChange"), 2);
    ASSERT_EQ(control.SetAdvise(DVASPECT_CONTENT, ADVF_ONLYONCE, container.site.Get()), S_OK);
    control.Invalidate();
    control.Invalidate();
    EXPECT_EQ(container.site->Count("OnViewChange"), 3);
    DWORD aspects = 0;
    ComPtr<IAdviseSink> sink;
    EXPECT_EQ(control.GetAdvise(&aspects, nullptr, &sink), S_OK);
    EXPECT_EQ(sink, nullptr);
    EXPECT_EQ(control.SetAdvise(0, 0, nullptr), S_OK);
}

}  // namespace
}  // namespace qz
