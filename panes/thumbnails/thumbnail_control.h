// The thumbnail pane as a control: joins model, painter and host.
#pragma once

#include "com/class_info.h"
#include "com/connection_points.h"
#include "com/dispatch.h"
#include "host/host_binding.h"
#include "panes/thumbnails/thumbnail_model.h"
#include "panes/thumbnails/thumbnail_painter.h"
#include "ui/control.h"
#include "ui/wheel.h"

#include "generated/qzVandraExt.h"

namespace qz {

/// See the type library for the members. Those with a host return S_OK and do nothing without one.
class ThumbnailControl final
    : public Object<ThumbnailControl, Control, Dispatch<IqzThumbnailCtrl>,
                    ProvideClassInfo<CLSID_qzThumbnailCtrl, DIID__IqzThumbnailCtrlEvents>,
                    ConnectionPointContainer>,
      private HostListener {
  public:
    ThumbnailControl();
    void FinalRelease() noexcept;

    STDMETHODIMP Initialize(IDispatch* pDispatch) override;
    STDMETHODIMP Reset() override;
    STDMETHODIMP ScrollPageThumbIntoView(long page) override;
    STDMETHODIMP get_IsInitialized(long* pVal) override;
    STDMETHODIMP get_ThumbSizeFactor(long* pVal) override;
    STDMETHODIMP put_ThumbSizeFactor(long newVal) override;
    STDMETHODIMP RedrawAllThumbs() override;
    STDMETHODIMP get_SelectedPages(VARIANT* pVal) override;
    STDMETHODIMP put_SelectedPages(VARIANT newVal) override;
    STDMETHODIMP get_BackColor(OLE_COLOR* pVal) override { return GetBackColor(pVal); }
    STDMETHODIMP put_BackColor(OLE_COLOR newVal) override { return PutBackColor(newVal); }
    STDMETHODIMP get_Settings(qzThumbnailCtrlSettings* pVal) override;
    STDMETHODIMP put_Settings(qzThumbnailCtrlSettings newVal) override;
    STDMETHODIMP SettingsChange(long enabled, qzThumbnailCtrlSettings settingsToChange) override;

  private:
    // Control
    REFCLSID ClassId() const noexcept override { return CLSID_qzThumbnailCtrl; }
    std::wstring Title() const override;
    OLE_COLOR InitialBackColor() const override { return RGB(255, 255, 255); }
    std::span<const PersistentProperty> PersistentProperties() const override;
    void OnDraw(HDC dc, const RECT& bounds) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnSized(SIZE client) override;

    std::vector<ConnectionPoint*> Points() override { return {&events_, &PropertyNotifyPoint()}; }
    void OnHostChanged() noexcept override;

    void DrawPane(HDC dc, const RECT& dirty);

    void Attach(IDispatch* host);
    void LetGo();
    void RebuildAndMarkCurrent();
    void Rebuild();
    void ReadRecords(IVandraX* host, std::vector<ThumbnailRecord>& records);
    void FollowHost();
    void TakeRecords(std::vector<ThumbnailRecord> records);
    void MarkCurrent();

    void OnVerticalScroll(WORD command);
    void OnWheel(short delta);
    void ScrollTo(std::int64_t position);
    void UpdateScrollBar();
    void SyncScrollPosition();

    ThumbnailModel model_;
    ThumbnailPainter painter_{model_};
    HostBinding binding_{*this};
    ConnectionPoint events_;
    WheelAccumulator wheel_;
    /// The size factor that the records were made with: a new one shows from the next rebuild on, also in the
    /// pictures drawn until then.
    long recordFactor_ = 0;
    /// Non-zero while the pane itself calls the host, whose notifications then tell it nothing new.
    int ownHostCalls_ = 0;
    long settings_ = qzThumbnailCtrlSettings_ContextMenu | qzThumbnailCtrlSettings_PageMoveOrDragAndDrop;
};

}  // namespace qz
