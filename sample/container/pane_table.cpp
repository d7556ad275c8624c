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

const PaneRow panes[] = {
    {L"Pages", &CLSID_qzThumbnailCtrl, DockSide::Left, 290, &DIID__IqzThumbnailCtrlEvents,
     thumbnailProperties, AskBeforeDeletingPages},
};

}  // namespace

std::span<const PaneRow> PaneTable() noexcept { return panes; }

}  // namespace qz
