// The pane's members, its tie to the host, and its records.
#include "panes/layers/layers_control.h"

#include "host/auto_refresh.h"
#include "host/host_calls.h"

namespace qz {

namespace {

/// With one of these names may be other ones.
constexpr std::uint32_t namesChanged = change::pages | change::documentSettings | change::attribute;
/// With one of these another page is current, or other content is on it.
constexpr std::uint32_t pageChanged = change::objects | change::currentPage | change::pages;

constexpr bool DependsOnPage(long listLayers) noexcept {
    return listLayers == qzLayersCtrlListLayers_ForVisiblePages ||
           listLayers == qzLayersCtrlListLayers_ForCurrentPage;
}

}  // namespace

// Members
// ------------------------------------------------------------------------------------------------------

STDMETHODIMP LayersControl::Initialize(IDispatch* pDispatch) { return InitializePane(pDispatch); }

STDMETHODIMP LayersControl::Refresh() {
    if (!Host()) return S_OK;
    return Run([&] { Rebuild(); });
}

STDMETHODIMP LayersControl::Reset() { return ResetPane(); }

STDMETHODIMP LayersControl::get_IsInitialized(long* pVal) { return TellInitialized(pVal); }

STDMETHODIMP LayersControl::get_Locked(long* pVal) { return Answer(pVal, locked_); }

STDMETHODIMP LayersControl::put_Locked(long newVal) { return Keep(locked_, newVal); }

STDMETHODIMP LayersControl::get_ListLayers(qzLayersCtrlListLayers* pVal) {
    return Answer(pVal, static_cast<qzLayersCtrlListLayers>(listLayers_));
}

STDMETHODIMP LayersControl::put_ListLayers(qzLayersCtrlListLayers newVal) {
    return Run([&] {
        if (newVal < qzLayersCtrlListLayers_None || newVal > qzLayersCtrlListLayers_ForCurrentPage) {
            Throw(E_INVALIDARG, L"There is no such choice of layers");
        }
        Keep(listLayers_, newVal);
        List();
    });
}

STDMETHODIMP LayersControl::ResetToInitialVisibility() {
    const ComPtr<IVandraX> host = Host();
    if (!host) return S_OK;
    return Run([&] {
        if (locked_) Throw(E_ACCESSDENIED, L"The layers are locked");
        Carry(host, layers_.Reset());
    });
}

STDMETHODIMP LayersControl::LayerProperties() {
    const ComPtr<IVandraX> host = Host();
    if (!host) return S_OK;
    return Run([&] { ShowSelectedProperties(host); });
}

std::span<const PersistentProperty> LayersControl::PersistentProperties() const {
    static constexpr PersistentProperty properties[] = {
        {L"BackColor", DISPID_BACKCOLOR, VT_UI4},
        {L"FitToParent", 5, VT_I4},
        {L"Locked", 6, VT_I4},
        {L"ListLayers", 7, VT_I4},
    };
    return properties;
}

// Records
// ------------------------------------------------------------------------------------------------------

void LayersControl::ForgetDocument() { Take({}); }

/// Throws the first failure; what was read until then is shown.
void LayersControl::Rebuild() {
    const ShownDocument shown = Shown();
    if (!shown.Host()) return;
    LayerDocument document;
    const auto take = [&] {
        if (!shown.HostLeft()) Take(std::move(document));
    };
    try {
        const OwnHostCalls ours(*this);
        const qzVandraAutoRefresh suspended(shown.Host().Get());
        ReadLayers(shown.Host().Get(), document);
    } catch (...) {
        take();
        throw;
    }
    take();
    if (!shown.HostLeft()) List();
}

void LayersControl::Take(LayerDocument document) {
    const TreeState kept = KeptState();
    LayerPaths paths = PathsOf(document.records);
    ContentsReplaced();
    configurations_ = std::move(document.configurations);
    texts_ = std::move(document.texts);
    layers_.Start(std::move(document.records));
    paths_ = std::move(paths);
    // Until the pages are known.
    listed_.assign(layers_.Records().Items().size(), listLayers_ != qzLayersCtrlListLayers_None);
    FillTree(kept);
}

void LayersControl::FollowHost() {
    const ShownDocument shown = Shown();
    const OwnHostCalls ours(*this);
    const ChangeFlags changes = ChangesOf(shown.Host().Get());
    if (changes.OnlyView()) return;
    const LayerTexts texts = ReadLayerTexts(shown.Host().Get());
    if (shown.HostLeft()) return;
    if (texts != texts_) return Rebuild();
    ReadStates(shown.Host(), changes.AnyOrUntold(namesChanged));
    if (changes.AnyOrUntold(pageChanged) && DependsOnPage(listLayers_)) List();
}

/// What the user chose stays; a layer that is gone lets everything be read anew.
void LayersControl::ReadStates(const ComPtr<IVandraX>& host, bool names) {
    const ShownDocument shown = Shown(host);
    const LayerPaths paths = paths_;
    LayerAttributes attributes(host.Get());
    const std::vector<LayerRecord>& all = layers_.Records().All();
    bool renamed = false;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].missing) continue;
        bool visible = false;
        std::wstring displayName;
        try {
            visible = attributes.ReadVisible((*paths)[i]);
            if (names) displayName = attributes.ReadDisplayName((*paths)[i]);
        } catch (const ComError&) {
            if (attributes.Exists((*paths)[i])) throw;
            return Rebuild();
        }
        if (shown.Stale()) return;
        layers_.TakeHostState(i, visible);
        if (!names || displayName == all[i].displayName) continue;
        layers_.TakeDisplayName(i, std::move(displayName));
        renamed = true;
    }
    layers_.UpdateMarks();
    if (renamed) {
        FillTree(KeptState());
    } else {
        ShowStates();
    }
}

// The listed layers
// ---------------------------------------------------------------------------------------------

/// By record. The layers in the view are taken to be those of the current page: no host tells what it shows.
std::vector<bool> LayersControl::LayersOnPage(IVandraX* host) const {
    const long page = CurrentPageOf(host);
    const LayerPaths paths = paths_;
    std::vector<bool> listed;
    listed.reserve(paths->size());
    LayerAttributes attributes(host);
    for (const Bstr& path : *paths) listed.push_back(attributes.IsOnPage(path, page));
    return listed;
}

/// Finds out which items are to be listed, and lists them when they are other ones.
void LayersControl::List() {
    const ShownDocument shown = Shown();
    if (!shown.Host()) return;
    const OwnHostCalls ours(*this);
    std::optional<std::vector<bool>> onPage;
    if (DependsOnPage(listLayers_)) onPage = LayersOnPage(shown.Host().Get());
    if (shown.Stale()) return;
    const LayerRecords& records = layers_.Records();
    const bool all = listLayers_ == qzLayersCtrlListLayers_ForAllPages;
    std::vector<bool> listed =
        onPage ? records.Listed(*onPage) : std::vector<bool>(records.Items().size(), all);
    if (listed == listed_) return;
    const TreeState kept = KeptState();
    listed_ = std::move(listed);
    FillTree(kept);
}

// Changes
// ------------------------------------------------------------------------------------------------------

/// Brings a change that has been made here to the host, and shows it. When the host fails, what it has not
/// taken is taken back here.
void LayersControl::Carry(const ComPtr<IVandraX>& host, const LayerChange& change) {
    const ShownDocument shown = Shown(host);
    const unsigned number = ++changes_;
    std::size_t written = 0;
    try {
        if (!change.writes.empty()) WriteChange(host.Get(), change, written);
    } catch (...) {
        if (!shown.Stale() && changes_ == number) {
            layers_.Undo(change, written);
            ShowStates();
        }
        throw;
    }
    if (!shown.Stale()) ShowStates();
}

void LayersControl::WriteChange(IVandraX* host, const LayerChange& change, std::size_t& written) {
    const ShownDocument shown = Shown(host);
    const OwnHostCalls ours(*this);
    const qzVandraAutoRefresh suspended(host);
    const LayerPaths paths = paths_;
    LayerAttributes attributes(host);
    for (const LayerWrite& write : change.writes) {
        if (shown.Stale()) return;
        // The host may have come back here, and the layer may be wanted otherwise by now.
        if (layers_.Records().All()[write.record].visible == write.visible) {
            attributes.WriteVisible((*paths)[write.record], write.visible);
        }
        ++written;
    }
}

}  // namespace qz
