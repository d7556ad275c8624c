// The pane's window: the tree in it, its colours, images and keys.
#include "panes/bookmarks/bookmark_control.h"

#include "panes/common/pane_font.h"
#include "res/strings.h"
#include "res/text_ids.h"

namespace qz {

namespace {

/// Posted to the pane's window when it is new: the tree is filled once the container is ready.
constexpr UINT fillTreeMessage = WM_APP + 1;

}  // namespace

std::wstring BookmarkControl::Title() const { return LoadText(TextLanguage(), QZ_TEXT_BOOKMARKS); }

void BookmarkControl::OnWindowCreated() {
    tree_.Create(WindowHandle(), Title().c_str());
    ApplyFont();
    ApplyColours();
    ApplyImages();
    if (Host()) PostMessageW(WindowHandle(), fillTreeMessage, 0, 0);
}

std::optional<LRESULT> BookmarkControl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_DESTROY:
            tree_.Clear();  // while its notifications still arrive
            return std::nullopt;
        case WM_NOTIFY: {
            NMHDR& header = *reinterpret_cast<NMHDR*>(lParam);
            if (tree_ && header.hwndFrom == tree_.Handle() && header.code == NM_CUSTOMDRAW) {
                return OnCustomDraw(reinterpret_cast<NMTVCUSTOMDRAW&>(header));
            }
            return tree_.OnNotify(header);
        }
        case WM_SYSCOLORCHANGE:
            TreePane::OnMessage(message, wParam, lParam);
            ApplyImages();
            return std::nullopt;
        case fillTreeMessage:
            Rebuild(oneLevel);
            return 0;
        default:
            return std::nullopt;
    }
}

void BookmarkControl::OnAmbientChanged(DISPID id) {
    if (tree_ && (id == DISPID_AMBIENT_FONT || id == DISPID_UNKNOWN)) ApplyFont();
    TreePane::OnAmbientChanged(id);
}

bool BookmarkControl::IsInputKey(const MSG& message) const {
    if (IsTreeKey(message.wParam)) return true;
    switch (message.wParam) {
        case VK_BACK:
            return true;
        case VK_RETURN:
            return tree_ && tree_.Selected();
        default:
            return false;
    }
}

LRESULT BookmarkControl::OnCustomDraw(NMTVCUSTOMDRAW& draw) const {
    const COLORREF text = TreeColour(colours_.selectedText);
    const COLORREF back = TreeColour(colours_.selectedBack);
    if (text == CLR_NONE && back == CLR_NONE) return CDRF_DODEFAULT;
    if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (draw.nmcd.dwDrawStage == CDDS_ITEMPREPAINT && (draw.nmcd.uItemState & CDIS_SELECTED)) {
        if (text != CLR_NONE) draw.clrText = text;
        if (back != CLR_NONE) draw.clrTextBk = back;
    }
    return CDRF_DODEFAULT;
}

void BookmarkControl::ApplyFont() {
    Font font = MakePaneFont(Ambients());
    tree_.Send(WM_SETFONT, reinterpret_cast<WPARAM>(font.Get()), TRUE);
    font_ = std::move(font);
    ApplyItemHeight();
}

void BookmarkControl::ApplyColours() {
    TreePane::ApplyColours();
    if (tree_) {
        tree_.Send(TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(static_cast<int>(TreeColour(colours_.text))));
    }
    Redraw();
}

/// Outline icons have the colour of the text beside them.
void BookmarkControl::ApplyImages() {
    if (!tree_) return;
    ImageList images;
    if (iconSet_ != qzBookmarksCtrlIconSet_None) {
        const bool classic = iconSet_ == qzBookmarksCtrlIconSet_Style1;
        const COLORREF text = TreeColour(colours_.text);
        images = MakeBookmarkImages(classic ? IconStyle::Classic : IconStyle::Outline,
                                    text == CLR_NONE ? GetSysColor(COLOR_WINDOWTEXT) : text);
    }
    tree_.Send(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images.Get()));
    images_ = std::move(images);
    ApplyItemHeight();
    Redraw();
}

/// The tree goes by its font alone: images get some room between them.
void BookmarkControl::ApplyItemHeight() {
    tree_.Send(TVM_SETITEMHEIGHT, static_cast<WPARAM>(-1));
    int width = 0;
    int height = 0;
    if (!ImageList_GetIconSize(images_.Get(), &width, &height)) return;
    const int needed = height + 2;
    if (tree_.Send(TVM_GETITEMHEIGHT) < needed) {
        tree_.Send(TVM_SETITEMHEIGHT, static_cast<WPARAM>(needed));
    }
}

void BookmarkControl::Redraw() noexcept {
    if (tree_) InvalidateRect(tree_.Handle(), nullptr, TRUE);
    Invalidate();
}

}  // namespace qz
