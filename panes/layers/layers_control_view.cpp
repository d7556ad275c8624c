// How the pane shows itself: the tree and the drawing of its rows.
#include "panes/layers/layers_control.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/platform_geometry.h"

namespace qz {

std::wstring LayersControl::Title() const { return LoadText(TextLanguage(), QZ_TEXT_LAYERS); }

void LayersControl::OnWindowCreated() {
    tree_.Create(WindowHandle());
    ApplyColours();
    FillTree({});
}

// Items
// --------------------------------------------------------------------------------------------------------

LayersControl::TreeState LayersControl::KeptState() const {
    TreeState kept;
    if (!tree_) return kept;
    const LayerRecords& records = layers_.Records();
    for (std::size_t i = 0; i < handles_.size(); ++i) {
        const bool parent = records.Items()[i].end > i + 1;
        if (handles_[i] && parent && tree_.Expanded(handles_[i]))
            kept.expanded.insert(records.RecordOf(i).name);
    }
    if (const auto selected = ItemOf(tree_.Selected())) kept.selected = records.RecordOf(*selected).name;
    return kept;
}

/// Lists the items anew.
void LayersControl::FillTree(const TreeState& kept) {
    const LayerRecords& records = layers_.Records();
    handles_.assign(records.Items().size(), nullptr);
    if (!tree_) return;
    const TreeRedrawScope still(tree_);
    tree_.DeleteItem(TVI_ROOT);
    InsertBelow(TVI_ROOT, 0, records.Items().size(), kept);
    for (std::size_t i = 0; i < handles_.size(); ++i) {
        if (handles_[i]) InsertBelow(handles_[i], i + 1, records.Items()[i].end, kept);
    }
    const auto selected = records.Find(kept.selected);
    if (!selected || records.All()[*selected].items.empty()) return;
    const HTREEITEM handle = handles_[records.All()[*selected].items.front()];
    if (handle) tree_.Select(handle);
}

/// Inserts the items of one level, which are those of a range that stand below nothing else in it.
void LayersControl::InsertBelow(HTREEITEM parent, std::size_t first, std::size_t end, const TreeState& kept) {
    const LayerRecords& records = layers_.Records();
    std::vector<TreeItem> children;
    for (std::size_t i = first; i < end; i = records.Items()[i].end) {
        if (!listed_[i]) continue;
        const LayerRecord& layer = records.RecordOf(i);
        // Whatever the mark, the window must know that there is one.
        UINT state = layer.missing ? 0 : INDEXTOSTATEIMAGEMASK(1);
        if (kept.expanded.contains(layer.name)) state |= TVIS_EXPANDED;
        children.push_back({.text = layer.Text(), .data = static_cast<LPARAM>(i), .state = state});
    }
    if (children.empty()) return;
    tree_.InsertChildren(parent, children);
    for (const TreeItem& child : children) handles_[static_cast<std::size_t>(child.data)] = child.handle;
}

/// The index of an item; nothing for none, and for one that the tree holds from before.
std::optional<std::size_t> LayersControl::ItemOf(HTREEITEM handle) const {
    if (!handle) return std::nullopt;
    const auto item = static_cast<std::size_t>(tree_.Data(handle));
    return item < handles_.size() && handles_[item] == handle ? std::optional(item) : std::nullopt;
}

UINT LayersControl::StateImage(LPARAM item) const {
    const LayerRecords& records = layers_.Records();
    const auto index = static_cast<std::size_t>(item);
    if (index >= records.Items().size() || records.RecordOf(index).missing) return 0;
    return records.RecordOf(index).visible ? 2 : 1;
}

void LayersControl::ShowStates() {
    if (tree_) InvalidateRect(tree_.Handle(), nullptr, FALSE);
}

// Drawing
// ------------------------------------------------------------------------------------------------------

LRESULT LayersControl::OnCustomDraw(const NMTVCUSTOMDRAW& notice) {
    if (notice.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (notice.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
    DrawItem(notice.nmcd.hdc, reinterpret_cast<HTREEITEM>(notice.nmcd.dwItemSpec));
    return CDRF_SKIPDEFAULT;
}

void LayersControl::DrawItem(HDC dc, HTREEITEM handle) {
    const auto item = ItemOf(handle);
    if (!item) return;
    const SelectScope font(dc, tree_.TextFont());
    DrawLayerRow(dc, LookOf(handle, *item));
}

LayerItemLayout LayersControl::LayoutOf(HTREEITEM handle, std::size_t item) const {
    RECT row{};
    RECT text{};
    if (!tree_.ItemRect(handle, false, row) || !tree_.ItemRect(handle, true, text)) return {};
    const bool missing = layers_.Records().RecordOf(item).missing;
    return LayerItemLayout::Of({.row = FromPlatform(row),
                                .textLeft = text.left,
                                .textRight = text.right,
                                .checkMark = !missing,
                                .expandMark = missing || tree_.FirstChild(handle)},
                               tree_.Metrics());
}

LayerRowLook LayersControl::LookOf(HTREEITEM handle, std::size_t item) const {
    const LayerRecord& layer = layers_.Records().RecordOf(item);
    LayerRowLook look;
    look.layout = LayoutOf(handle, item);
    look.metrics = tree_.Metrics();
    look.text = layer.Text();
    if (!layer.missing) {
        look.mark = layer.groups.empty() ? LayerRowLook::Mark::Check : LayerRowLook::Mark::Radio;
    }
    look.checked = layer.visible;
    look.greyed = layer.DisabledByParent();
    look.hasChildren = tree_.FirstChild(handle) != nullptr;
    look.expanded = tree_.Expanded(handle);
    look.selected = tree_.Selected() == handle;
    look.focused = GetFocus() == tree_.Handle();
    look.background = BackColorRef();
    return look;
}

}  // namespace qz
