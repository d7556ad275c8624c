#include "sample/container/pane_table.h"

#include "generated/qzVandraExt.h"

namespace qz {

namespace {

/// A colour of the user's scheme, as an OLE_COLOR.
constexpr long SystemColour(int index) {
    return static_cast<long>(0x80000000u | static_cast<unsigned>(index));
}

constexpr InitialProperty thumbnailProperties[] = {
    {L"BackColor", SystemColour(COLOR_APPWORKSPACE)},
    {L"ThumbSizeFactor", 20},
};

constexpr InitialProperty statusProperties[] = {
    {L"UnitOfMeasure", qzStatusCtrlMillimeter},
};

constexpr InitialProperty bookmarkProperties[] = {
    {L"IconSet", qzBookmarksCtrlIconSet_Style1},
};

const PaneRow panes[] = {
    {L"Pages", &CLSID_qzThumbnailCtrl, DockSide::Left, 290, &DIID__IqzThumbnailCtrlEvents,
     thumbnailProperties, AskBeforeDeletingPages},
    {L"Bookmarks", &CLSID_qzBookmarkCtrl, DockSide::Right, 220, &DIID__IqzBookmarkCtrlEvents,
     bookmarkProperties},
    {L"Layers", &CLSID_qzLayersCtrl, DockSide::Right, 220, &DIID__IqzLayersCtrlEvents, {}},
    {L"Properties",
     &CLSID_qzPropCtrl,
     DockSide::Right,
     280,
     &DIID__IqzPropCtrlEvents,
     {},
     nullptr,
     PaneKind::Pane,
     2},
    {L"Status bar", &CLSID_qzStatusCtrl, DockSide::Bottom, 28, nullptr, statusProperties, nullptr,
     PaneKind::Bar},
};

}  // namespace

std::span<const PaneRow> PaneTable() noexcept { return panes; }

}  // namespace qz
