// What the fields show, and when they change.
#include "status_fixture.h"

#include "tests/support/heap_blocks.h"

namespace qz {
namespace {

class StatusFields : public StatusTest {};

TEST_F(StatusFields, TellOfTheDocumentInTheChosenUnit) {
    const auto host = MakeHost(12);
    host->SetCurrentPage(5);
    host->SetZoom(130);
    SelectNew(host.Get(), L"Stamp", {2879, 1440, 5760, 4400});
    Show(host.Get());
    EXPECT_EQ(Text(PageSize), L"Page: 12240 x 15840");
    EXPECT_EQ(Text(ObjectCoords), L"(2879,1440:5760,4400) w:2881, h:2960");
    EXPECT_EQ(Text(ObjectName), L"Stamp");
    EXPECT_EQ(Text(PagePosition), L"5 / 12");
    EXPECT_EQ(Text(Zoom), L"130%");

    EXPECT_EQ(bar->put_UnitOfMeasure(qzStatusCtrlInches), S_OK);
    EXPECT_EQ(Text(PageSize), L"Page: 8.5 x 11");
    EXPECT_EQ(Text(ObjectCoords), L"(1,1:4,3) w:3, h:2");
    EXPECT_EQ(bar->put_UnitOfMeasure(qzStatusCtrlMillimeter), S_OK);
    EXPECT_EQ(Text(PageSize), L"Page: 215.9 x 279.4");
    EXPECT_EQ(bar->put_UnitOfMeasure(static_cast<StatusCtrlUnitsOfMeasure>(-3)), S_OK);
    EXPECT_EQ(Text(PageSize), L"Page: 12240 x 15840");
    StatusCtrlUnitsOfMeasure unit{};
    EXPECT_EQ(bar->get_UnitOfMeasure(&unit), S_OK);
    EXPECT_EQ(unit, -3);
}

TEST_F(StatusFields, FollowEveryChangeOfTheHost) {
    const auto host = MakeHost(3);
    Show(host.Get());
    EXPECT_EQ(Text(ObjectName), L"");
    EXPECT_FALSE(Visible(ObjectCoords));
    EXPECT_FALSE(Enabled(PreviousPage));
    host->SetCurrentPage(3);
    host->SetZoom(45);
    EXPECT_EQ(Text(PagePosition), L"3 / 3");
    EXPECT_EQ(Text(Zoom), L"45%");
    EXPECT_TRUE(Enabled(PreviousPage));
    EXPECT_FALSE(Enabled(NextPage));
    SelectNew(host.Get(), L"First", {100, 200, 300, 400});
    EXPECT_EQ(Text(ObjectCoords), L"(100,200:300,400) w:200, h:200");
    host->put_Mode(2);
    EXPECT_EQ(Text(ObjectName), L"") << "an object is selected in modes 1 and 4 only";
    EXPECT_EQ(Text(ObjectCoords), L"");
    host->put_Mode(4);
    EXPECT_EQ(Text(ObjectName), L"First");
    host->SelectObjects(0);
    EXPECT_EQ(Text(ObjectName), L"");
    EXPECT_FALSE(Visible(ObjectCoords));
    host->SetObjectAttribute(_bstr_t(L"Pages[3]"), _bstr_t(L"Width"), _variant_t(7000L));
    host->RaiseChange(0);
    EXPECT_EQ(Text(PageSize), L"Page: 7000 x 15840");
}

TEST_F(StatusFields, AreEmptyWithoutAHost) {
    window = std::make_unique<PaneWindow>(bar.Get(), Wide());
    EXPECT_EQ(bar->Reset(), S_OK);
    EXPECT_EQ(bar->Initialize(nullptr), E_INVALIDARG);
    EXPECT_NE(TakeErrorText(), L"");
    const auto host = MakeHost(3);
    const ULONG before = ReferencesOf(host.Get());
    ASSERT_EQ(bar->Initialize(host.Get()), S_OK);
    EXPECT_EQ(Text(PagePosition), L"1 / 3");
    EXPECT_EQ(SinkCount(host.Get()), 1);
    ASSERT_EQ(bar->Reset(), S_OK);
    EXPECT_EQ(SinkCount(host.Get()), 0);
    EXPECT_EQ(ReferencesOf(host.Get()), before);
    for (const StatusField field : {PageSize, ObjectCoords, ObjectName, PagePosition, Zoom}) {
        EXPECT_EQ(Text(field), L"");
    }
    for (const StatusField field : {FirstPage, PreviousPage, PagePosition, NextPage, LastPage, Zoom}) {
        EXPECT_FALSE(Enabled(field)) << static_cast<int>(field);
    }
}

TEST_F(StatusFields, VisibilitySwitches) {
    const auto host = MakeHost(1);
    SelectNew(host.Get(), L"Stamp", {1, 2, 3, 4});
    Show(host.Get());
    struct Row {
        HRESULT (STDMETHODCALLTYPE IqzStatusCtrl::*get)(VARIANT_BOOL*);
        HRESULT (STDMETHODCALLTYPE IqzStatusCtrl::*put)(VARIANT_BOOL);
        StatusField field;
    };
    const Row rows[] = {
        {&IqzStatusCtrl::get_SelectedObjectNameVisible, &IqzStatusCtrl::put_SelectedObjectNameVisible,
         ObjectName},
        {&IqzStatusCtrl::get_SelectedObjectCoordsVisible, &IqzStatusCtrl::put_SelectedObjectCoordsVisible,
         ObjectCoords},
        {&IqzStatusCtrl::get_PageSizeVisible, &IqzStatusCtrl::put_PageSizeVisible, PageSize},
    };
    for (const Row& row : rows) {
        VARIANT_BOOL visible = 7;
        EXPECT_EQ((bar.Get()->*row.get)(&visible), S_OK);
        EXPECT_EQ(visible, VARIANT_TRUE);
        EXPECT_EQ((bar.Get()->*row.get)(nullptr), E_POINTER);
        EXPECT_TRUE(Visible(row.field));
        EXPECT_EQ((bar.Get()->*row.put)(VARIANT_FALSE), S_OK);
        EXPECT_FALSE(Visible(row.field));
        EXPECT_EQ((bar.Get()->*row.put)(1), S_OK);
        (bar.Get()->*row.get)(&visible);
        EXPECT_EQ(visible, VARIANT_TRUE) << "whatever was meant as true";
        EXPECT_TRUE(Visible(row.field));
    }
}

TEST_F(StatusFields, NarrowBarsDropFieldsAndTheFocusWithThem) {
    const auto host = MakeHost(3);
    host->SetCurrentPage(2);
    Show(host.Get());
    ComPtr<IOleInPlaceObject> place;
    ASSERT_EQ(bar.As(&place), S_OK);
    const auto resize = [&](int width) {
        const RECT bounds{0, 0, width, 26};
        place->SetObjectRects(&bounds, &bounds);
        PumpMessages();
    };
    SetFocus(Field(LastPage));
    resize(150);
    EXPECT_TRUE(Visible(PagePosition));
    EXPECT_FALSE(Visible(PageSize));
    EXPECT_FALSE(Visible(LastPage));
    EXPECT_EQ(GetFocus(), Field(PagePosition)) << "a hidden window would swallow the keys";
    resize(5);
    EXPECT_FALSE(Visible(PagePosition));
    resize(900);
    EXPECT_TRUE(Visible(PageSize));
    EXPECT_TRUE(Visible(LastPage));
}

TEST_F(StatusFields, PropertiesArePersistent) {
    bar->put_UnitOfMeasure(qzStatusCtrlInches);
    bar->put_PageSizeVisible(VARIANT_FALSE);
    bar->put_BackColor(0x123456);
    ComPtr<IStream> stream;
    ComPtr<IPersistStreamInit> saved;
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    ASSERT_EQ(bar.As(&saved), S_OK);
    ASSERT_EQ(saved->IsDirty(), S_OK);
    ASSERT_EQ(saved->Save(stream.Get(), TRUE), S_OK);
    bar->put_UnitOfMeasure(qzStatusCtrlTwips);
    bar->put_PageSizeVisible(VARIANT_TRUE);
    bar->put_SelectedObjectNameVisible(VARIANT_FALSE);
    bar->put_BackColor(0);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    ASSERT_EQ(saved->Load(stream.Get()), S_OK);
    StatusCtrlUnitsOfMeasure unit{};
    VARIANT_BOOL pageSize = VARIANT_TRUE;
    VARIANT_BOOL name = VARIANT_FALSE;
    OLE_COLOR colour = 0;
    bar->get_UnitOfMeasure(&unit);
    bar->get_PageSizeVisible(&pageSize);
    bar->get_SelectedObjectNameVisible(&name);
    bar->get_BackColor(&colour);
    EXPECT_EQ(unit, qzStatusCtrlInches);
    EXPECT_EQ(pageSize, VARIANT_FALSE);
    EXPECT_EQ(name, VARIANT_TRUE);
    EXPECT_EQ(colour, 0x123456u);
}

TEST_F(StatusFields, AreDrawnOnTheBackgroundColour) {
    const auto host = MakeHost(1);
    Show(host.Get());
    EXPECT_EQ(bar->put_BackColor(RGB(10, 60, 110)), S_OK);
    PumpMessages();
    EXPECT_EQ(window->PixelAt(1, 1), RGB(10, 60, 110));
    RECT text{};
    GetWindowRect(Field(PageSize), &text);
    MapWindowPoints(nullptr, window->Window(), reinterpret_cast<POINT*>(&text), 2);
    EXPECT_EQ(window->PixelAt(text.right - 1, text.top), RGB(10, 60, 110));
    int light = 0;
    for (int x = text.left; x < text.right; ++x) {
        const COLORREF colour = window->PixelAt(x, (text.top + text.bottom) / 2);
        if (GetRValue(colour) > 200 && GetGValue(colour) > 200) ++light;
    }
    EXPECT_GT(light, 0) << "text that can be read on a dark background";
}

TEST_F(StatusFields, CanBeDrawnWithoutAWindow) {
    const auto host = MakeHost(1);
    ASSERT_EQ(bar->Initialize(host.Get()), S_OK);
    ComPtr<IOleObject> object;
    ComPtr<IViewObject2> view;
    ASSERT_EQ(bar.As(&object), S_OK);
    ASSERT_EQ(bar.As(&view), S_OK);
    SIZEL extent{20000, 700};
    object->SetExtent(DVASPECT_CONTENT, &extent);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateBitmap(760, 26, 1, 32, nullptr);
    const HGDIOBJ before = SelectObject(dc, bitmap);
    const RECTL bounds{0, 0, 760, 26};
    EXPECT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc, &bounds, nullptr, nullptr, 0),
              S_OK);
    int drawn = 0;
    for (int x = 0; x < 760; ++x) drawn += GetPixel(dc, x, 13) != GetSysColor(COLOR_BTNFACE);
    EXPECT_GT(drawn, 50);
    SelectObject(dc, before);
    DeleteObject(bitmap);
    DeleteDC(dc);
}

TEST_F(StatusFields, ActivatedAgainAndAgainLeavesNothingBehind) {
    const auto host = MakeHost(4);
    ASSERT_EQ(bar->Initialize(host.Get()), S_OK);
    const auto activate = [&](int times) {
        for (int i = 0; i < times; ++i) {
            window = std::make_unique<PaneWindow>(bar.Get(), Wide());
            window.reset();
        }
        return HeapBlocksInUse();
    };
    constexpr int times = 40;
    const std::size_t before = activate(10);
    constexpr int labels = 3;  // Wine forgets a few bytes of each
    EXPECT_LT(activate(times), before + times * (labels + 1));
}

}  // namespace
}  // namespace qz
