#include "benchmarks/subjects.h"

#include "com/error.h"
#include "com/text.h"
#include "sample/host/reference_host.h"
#include "tests/module/loaded_module.h"
#include "tests/support/pane_window.h"

#include "generated/qzVandraExt.h"

#include <commctrl.h>
#include <comdef.h>

#include <cstring>
#include <optional>
#include <string>
#include <vector>

namespace qz::bench {

namespace {

constexpr int layerCount = 5'000;

std::wstring NameOf(int layer) { return L"Layer " + std::to_wstring(layer); }

/// A host with one layer and all others below it, every one visible.
ComPtr<IReferenceHost> MakeLayeredHost() {
    ComPtr<IReferenceHost> host = MakeObject<sample::MemoryHost>();
    ThrowIfFailed(host->NewDocument(1, 12240, 15840));
    std::wstring order;
    for (int i = 0; i < layerCount; ++i) {
        const Bstr name(NameOf(i));
        ThrowIfFailed(host->AddLayer(name.Get(), name.Get(), 1));
        order += L"(" + NameOf(i) + L")" + (i == 0 ? L"[" : L"");
    }
    ThrowIfFailed(host->SetObjectAttribute(Bstr(L"LayerConfigs[1]").Get(), Bstr(L"ConfigOrder").Get(),
                                           _variant_t((order + L"]").c_str())));
    return host;
}

/// The writes that showing and hiding all layers cannot do without, their texts made beforehand.
class BareWrites {
  public:
    BareWrites() : host_(MakeLayeredHost()) {
        for (int i = 0; i < layerCount; ++i) paths_.emplace_back(L"Layers[" + NameOf(i) + L"]");
    }

    void Toggle() {
        visible_ = !visible_;
        long refresh = 0;
        ThrowIfFailed(host_->GetAutoRefresh(&refresh));
        ThrowIfFailed(host_->SetAutoRefresh(0));
        for (const Bstr& path : paths_) {
            ThrowIfFailed(host_->SetObjectAttribute(path.Get(), state_.Get(), visible_ ? on_ : off_));
        }
        ThrowIfFailed(host_->SetAutoRefresh(refresh));
    }

  private:
    ComPtr<IReferenceHost> host_;
    std::vector<Bstr> paths_;
    Bstr state_{L"CurrentViewState"};
    _variant_t on_{L"ON"};
    _variant_t off_{L"OFF"};
    bool visible_ = true;
};

/// A user who clicks the check mark of a layer.
class LayersPane {
  public:
    LayersPane() : host_(MakeLayeredHost()) {
        ComPtr<IClassFactory> factory;
        ThrowIfFailed(module_.GetClassObject(CLSID_qzLayersCtrl, IID_PPV_ARGS(&factory)));
        ThrowIfFailed(factory->CreateInstance(nullptr, IID_PPV_ARGS(&pane_)));
        window_.emplace(pane_.Get(), SIZE{220, 600});
        ThrowIfFailed(pane_->Initialize(host_.Get()));
        tree_ = window_->Child(WC_TREEVIEWW);
        const LRESULT root = SendMessageW(tree_, TVM_GETNEXTITEM, TVGN_ROOT, 0);
        RECT text{};
        std::memcpy(&text, &root, sizeof root);  // the message takes the item there
        SendMessageW(tree_, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&text));
        checkMark_ = MAKELPARAM(text.left - 9, text.top + 8);
    }
    ~LayersPane() { window_.reset(); }
    LayersPane(const LayersPane&) = delete;
    LayersPane& operator=(const LayersPane&) = delete;

    /// The root and all below it. A time is worth nothing when the work was not done.
    void Toggle() {
        const std::wstring before = LastState();
        SendMessageW(tree_, WM_LBUTTONDOWN, MK_LBUTTON, checkMark_);
        if (LastState() == before) Throw(E_UNEXPECTED, L"The layers are not toggled");
    }

  private:
    std::wstring LastState() {
        _variant_t state;
        ThrowIfFailed(host_->GetObjectAttribute(last_.Get(), state_.Get(), &state));
        return std::wstring(_bstr_t(state));
    }

    LoadedModule module_;
    ComPtr<IReferenceHost> host_;
    ComPtr<IqzLayersCtrl> pane_;
    std::optional<PaneWindow> window_;
    HWND tree_ = nullptr;
    LPARAM checkMark_ = 0;
    Bstr last_{L"Layers[" + NameOf(layerCount - 1) + L"]"};
    Bstr state_{L"CurrentViewState"};
};

}  // namespace

void MeasureLayers(Report& report) {
    LayersPane pane;
    BareWrites bare;
    report.AddTime("toggle a layer with 4,999 below it to the bare host writes",
                   MeasureBoth([&] { pane.Toggle(); }, [&] { bare.Toggle(); }), 1.5);
}

}  // namespace qz::bench
