// Selecting pages by mouse, keyboard and automation, and what the pane's listeners are told and may do.
#include "pages_fixture.h"

#include "com/safe_array.h"

#include <comdef.h>

namespace qz {
namespace {

using Selecting = PagesTest;

TEST_F(Selecting, ClicksSelectAndTell) {
    Click(3);
    EXPECT_EQ(TakeEvents(), (Events{"1:3,&1", "3:3"}));
    EXPECT_EQ(Selected(), (PageList{3}));
    EXPECT_EQ(CurrentPage(), 3) << "the page clicked is the page shown";
    Click(1, MK_SHIFT);
    EXPECT_EQ(TakeEvents(), (Events{"3:-1"}));
    EXPECT_EQ(Selected(), (PageList{1, 2, 3}));
    Click(2, MK_CONTROL);
    EXPECT_EQ(TakeEvents(), Events{}) << "deselecting is not told";
    EXPECT_EQ(Selected(), (PageList{1, 3}));
    Click(4, MK_CONTROL | MK_SHIFT);
    EXPECT_EQ(Selected(), (PageList{1, 3}));
    EXPECT_EQ(CurrentPage(), 3) << "only plain clicks go to the page";
    SendMessageW(PaneWindow(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(90, 20));
    SendMessageW(PaneWindow(), WM_LBUTTONUP, 0, MAKELPARAM(90, 20));
    EXPECT_EQ(Selected(), PageList{});
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(Selecting, FramesShowSelectedAndCurrent) {
    Click(4);
    PumpMessages();
    const POINT point = PointOn(4);
    const int left = point.x - 45 + 6;
    EXPECT_EQ(PixelAt(left - 2, point.y), RGB(0, 0, 139));
    EXPECT_EQ(PixelAt(left - 4, point.y), RGB(255, 0, 0));
    Click(3);
    PumpMessages();
    EXPECT_EQ(PixelAt(left - 2, point.y), RGB(255, 255, 255))
        << "the frames that went are gone from the screen";
    EXPECT_EQ(PixelAt(left - 4, point.y), RGB(255, 255, 255));
}

TEST_F(Selecting, VetoedClickChangesNothing) {
    Click(2);
    TakeEvents();
    events->answers[1] = 0;
    Click(3);
    EXPECT_EQ(TakeEvents(), (Events{"1:3,&1"}));
    EXPECT_EQ(Selected(), (PageList{2}));
    EXPECT_EQ(CurrentPage(), 2);
    Key(VK_RIGHT);
    Key(VK_RETURN);
    EXPECT_EQ(TakeEvents(), (Events{"3:3", "1:3,&1"}));
    EXPECT_EQ(CurrentPage(), 2);
    events->answers.clear();
    Key(VK_RETURN);
    EXPECT_EQ(CurrentPage(), 3);
    Click(5, MK_CONTROL);
    TakeEvents();
    Key(VK_RETURN);
    EXPECT_EQ(TakeEvents(), Events{}) << "two pages are selected";
}

TEST_F(Selecting, KeysSelectAndScroll) {
    Key(VK_END);
    EXPECT_EQ(TakeEvents(), (Events{"3:8"}));
    EXPECT_GT(ScrollPosition(), 0);
    Key(VK_SHIFT);
    Key(VK_LEFT);
    Key(VK_UP);
    EXPECT_EQ(Selected(), (PageList{6, 7, 8}));
    EXPECT_EQ(TakeEvents(), (Events{"3:7", "3:6"}));
    KeyUp(VK_SHIFT);
    Key(VK_DOWN);
    EXPECT_EQ(Selected(), (PageList{8}));
    Key(VK_HOME);
    EXPECT_EQ(ScrollPosition(), 0);
    Key(VK_NEXT);
    EXPECT_GT(ScrollPosition(), 0);
    Key(VK_PRIOR);
    EXPECT_EQ(ScrollPosition(), 0);
    EXPECT_EQ(Selected(), (PageList{1}));
    TakeEvents();
    Key(VK_CONTROL);
    Key('A');
    EXPECT_EQ(Selected().size(), static_cast<size_t>(pageCount));
    Key(VK_ESCAPE);
    EXPECT_EQ(Selected(), PageList{});
    Key('A');
    EXPECT_EQ(Selected(), PageList{}) << "Ctrl+A ends the holding of Ctrl";
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(Selecting, ModifiersEndWithTheFocus) {
    SetFocus(PaneWindow());
    Click(4);
    Key(VK_SHIFT);
    SetFocus(nullptr);
    SetFocus(PaneWindow());
    Key(VK_RIGHT);
    EXPECT_EQ(Selected(), (PageList{5}));
}

TEST_F(Selecting, ReleaseWithoutPressIsNothing) {
    Release(3);
    EXPECT_EQ(Selected(), PageList{});
    Press(3);
    pane->RedrawAllThumbs();
    Release(3);
    EXPECT_EQ(Selected(), PageList{}) << "what was pressed is gone";
    Press(3);
    Release(5);
    EXPECT_EQ(Selected(), (PageList{3})) << "the page that was pressed counts";
}

TEST_F(Selecting, WithoutHostNothingHappens) {
    pane->Reset();
    TakeEvents();
    Click(2);
    for (const WPARAM key : {VK_HOME, VK_DELETE, VK_RETURN, VK_LEFT}) Key(key);
    ControlKey('A');
    EXPECT_EQ(Selected(), PageList{});
    EXPECT_EQ(Select({1}), S_OK);
    EXPECT_EQ(TakeEvents(), Events{});
}

// SelectedPages
// -----------------------------------------------------------------------------------------------------

_variant_t ArrayOf(VARTYPE type, std::initializer_list<_variant_t> values) {
    _variant_t result;
    result.parray = MakeSafeArray(type, values.size()).Detach();
    result.vt = static_cast<VARTYPE>(VT_ARRAY | type);
    LONG index = 0;
    for (_variant_t value : values) {
        if (type != VT_VARIANT) value.ChangeType(type);
        void* const element = type == VT_VARIANT ? static_cast<void*>(&value)
                              : type == VT_BSTR  ? static_cast<void*>(value.bstrVal)
                                                 : static_cast<void*>(&value.bVal);
        ThrowIfFailed(SafeArrayPutElement(result.parray, &index, element));
        ++index;
    }
    return result;
}

TEST_F(Selecting, ArraysOfEveryIntegerTypeAreUnderstood) {
    for (const VARTYPE type : {VT_I1, VT_UI1, VT_I2, VT_UI2, VT_I4, VT_UI4, VT_INT, VT_UINT, VT_VARIANT}) {
        Key(VK_ESCAPE);
        _variant_t pages = ArrayOf(type, {2L, 5L});
        EXPECT_EQ(pane->put_SelectedPages(pages), S_OK) << type;
        EXPECT_EQ(Selected(), (PageList{2, 5})) << type;
        Key(VK_ESCAPE);
        VARIANT byReference{};
        byReference.vt = static_cast<VARTYPE>(VT_BYREF | VT_ARRAY | type);
        byReference.pparray = &pages.parray;
        VARIANT outer{};
        outer.vt = VT_BYREF | VT_VARIANT;
        outer.pvarVal = &byReference;
        EXPECT_EQ(pane->put_SelectedPages(outer), S_OK) << type;
        EXPECT_EQ(Selected(), (PageList{2, 5})) << type;
    }
    EXPECT_EQ(pane->put_SelectedPages(ArrayOf(VT_VARIANT, {_variant_t(L"3"), _variant_t(7.0)})), S_OK);
    EXPECT_EQ(Selected(), (PageList{2, 3, 5, 7})) << "what was selected stays";
    EXPECT_EQ(Select({0, -1, 99, 2147483647, 1}), S_OK);
    EXPECT_EQ(Selected(), (PageList{1, 2, 3, 5, 7}));
    EXPECT_EQ(Select({}), S_OK);
    EXPECT_EQ(TakeEvents(), Events{}) << "scripts know what they select";
}

TEST_F(Selecting, BadPageNumbersAreRefused) {
    Select({4});
    const auto expectRefused = [&](const VARIANT& value, HRESULT code) {
        SetErrorInfo(0, nullptr);
        EXPECT_EQ(pane->put_SelectedPages(value), code);
        EXPECT_NE(TakeErrorText(), L"");
        EXPECT_EQ(Selected(), (PageList{4}));
    };
    expectRefused(_variant_t(), DISP_E_TYPEMISMATCH);
    expectRefused(_variant_t(3L), DISP_E_TYPEMISMATCH);
    expectRefused(_variant_t(L"1,2"), DISP_E_TYPEMISMATCH);
    expectRefused(ArrayOf(VT_BSTR, {_variant_t(L"1")}), DISP_E_TYPEMISMATCH);
    expectRefused(ArrayOf(VT_R8, {_variant_t(1.0)}), DISP_E_TYPEMISMATCH);
    expectRefused(ArrayOf(VT_VARIANT, {_variant_t(1L), _variant_t(L"two")}), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(pane->put_SelectedPages(ArrayOf(VT_VARIANT, {_variant_t(L"x")})), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(TakeErrorText().find(L"An element of the array is no page number"), 0u)
        << "not the host's fault";
    VARIANT circle{};
    circle.vt = VT_BYREF | VT_VARIANT;
    circle.pvarVal = &circle;
    expectRefused(circle, DISP_E_TYPEMISMATCH);
    VARIANT nothing{};
    nothing.vt = VT_ARRAY | VT_I4;
    expectRefused(nothing, E_INVALIDARG);
    SAFEARRAYBOUND square[] = {{2, 0}, {2, 0}};
    _variant_t matrix;
    matrix.parray = SafeArrayCreate(VT_I4, 2, square);
    matrix.vt = VT_ARRAY | VT_I4;
    expectRefused(matrix, E_INVALIDARG);
    EXPECT_EQ(pane->get_SelectedPages(nullptr), E_POINTER);
    EXPECT_EQ(pane->get_SelectedPagesVariant(nullptr), E_POINTER);
}

// What listeners may do inside an event
// -----------------------------------------------------------------------------------------------------

TEST_F(Selecting, ListenersMayDoAnythingInsideAnEvent) {
    const std::function<void()> doings[] = {
        [&] { pane->RedrawAllThumbs(); }, [&] { pane->Reset(); },
        [&] { Select({6, 7}); },          [&] { pane->Initialize(MakeHost(1).Get()); },
        [&] { events->result = E_FAIL; }, [&] { Close(); },
    };
    for (const DISPID event : {1, 3}) {
        for (const auto& doing : doings) {
            if (!PaneWindow()) Activate();
            pane->Initialize(host.Get());
            events->result = S_OK;
            events->actions[event] = doing;
            Click(8);
            Key(VK_END);
            events->actions.clear();
        }
    }
    Activate();
    pane->Initialize(host.Get());
    Click(2);
    EXPECT_EQ(Selected(), (PageList{2})) << "the pane is none the worse";
}

TEST_F(Selecting, ListenerMayReleaseThePane) {
    events->actions[3] = [&] {
        events->Disconnect();
        Close();
        pane.Reset();
    };
    Click(2);
    EXPECT_FALSE(pane);
    EXPECT_EQ(TakeEvents(), (Events{"1:2,&1", "3:2"}));
}

}  // namespace
}  // namespace qz
