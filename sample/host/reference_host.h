// The reference host: the host's contract over a document in memory.
#pragma once

#include "com/class_info.h"
#include "com/connection_points.h"
#include "com/dispatch.h"
#include "generated/reference_host.h"
#include "sample/host/document_streaming.h"
#include "sample/host/host_session.h"
#include "sample/host/page_view.h"

#include <comdef.h>

#include <map>

namespace qz::sample {

/// The host. Apartment-threaded, like everything it gives out.
class MemoryHost
    : public Object<MemoryHost, Dispatch<IReferenceHost>, ConnectionPointContainer, DocumentStreaming,
                    ProvideClassInfo<CLSID_ReferenceHost, DIID__IVandraXEvents>>,
      private SessionOwner {
  public:
    MemoryHost();
    void FinalRelease();

    STDMETHODIMP QueryInterface(REFIID iid, void** result) override;

    // Places of the dual interface.
    STDMETHODIMP GetDocumentMode(long* mode) override;
    STDMETHODIMP GetZoom(long* percent) override;
    STDMETHODIMP SetZoom(long percent) override;
    STDMETHODIMP Refresh() override;
    STDMETHODIMP GetAutoRefresh(long* flag) override;
    STDMETHODIMP SetAutoRefresh(long flag) override;
    STDMETHODIMP GetLanguageId(short* languageId) override;
    STDMETHODIMP GetBookmarks(IDispatch** root) override;
    STDMETHODIMP GetPageCount(long* count) override;
    STDMETHODIMP GetCurrentPage(long* page) override;
    STDMETHODIMP SetCurrentPage(long page) override;
    STDMETHODIMP GetObjectAttribute(BSTR path, BSTR attribute, VARIANT* value) override;
    STDMETHODIMP SetObjectAttribute(BSTR path, BSTR attribute, VARIANT value) override;
    STDMETHODIMP GetPageOpFlag(long* flag) override;
    STDMETHODIMP SetPageOpFlag(long flag) override;
    STDMETHODIMP GetCurrentObject(VARIANT* object) override;
    STDMETHODIMP GetPageWidth(long* twips) override;
    STDMETHODIMP GetPageHeight(long* twips) override;
    STDMETHODIMP GetSelectionCount(long* count) override;
    STDMETHODIMP GetObjectByPath(BSTR path, IDispatch** object) override;
    STDMETHODIMP DeletePage(long page, long flag) override;
    STDMETHODIMP InsertDocument(IDispatch* document) override;
    STDMETHODIMP GetBookmarkState(long* state) override;
    STDMETHODIMP MovePages(long first, long count, long target) override;
    STDMETHODIMP SetSelectionAttribute(BSTR attribute, VARIANT value, long flag) override;
    STDMETHODIMP GetChangeFlags(long* flags) override;
    STDMETHODIMP UpdateView(long what, long redraw) override;
    STDMETHODIMP ApplyObjectSetting(BSTR path, BSTR attribute, VARIANT value) override;
    STDMETHODIMP CreateDocument(IDispatch** document) override;
    STDMETHODIMP DrawCurrentPage(HdcHandle dc, long flag, long percent) override;
    STDMETHODIMP InsertPagesFromStream(IStream* stream) override;
#include "generated/reserved_places.inc"

    // By name.
    STDMETHODIMP Encrypt(BSTR owner, BSTR user, long permissions) override;
    STDMETHODIMP Encrypt128(BSTR owner, BSTR user, long permissions) override;
    STDMETHODIMP CreateObject(long type, BSTR name, IDispatch** object) override;
    STDMETHODIMP SelectObjects(long all) override;
    STDMETHODIMP get_SelectedObjects(VARIANT* objects) override;
    STDMETHODIMP SetScopedAttribute(BSTR path, BSTR attribute, VARIANT value, long scope) override;
    STDMETHODIMP get_SettingsKeyPath(BSTR* path) override;
    STDMETHODIMP put_SettingsKeyPath(BSTR path) override;

    // The document and the view.
    STDMETHODIMP LoadDocument(BSTR path) override;
    STDMETHODIMP NewDocument(long pages, long width, long height) override;
    STDMETHODIMP AddPages(long pages, long width, long height) override;
    STDMETHODIMP AddLayer(BSTR name, BSTR displayName, long visible) override;
    STDMETHODIMP SelectObject(BSTR path, long keepOthers) override;
    STDMETHODIMP RemoveObject(BSTR path) override;
    STDMETHODIMP AddAttribute(BSTR path, BSTR name, long category, long flags, long type, BSTR description,
                              BSTR choices, VARIANT value) override;
    STDMETHODIMP put_Mode(long mode) override;
    STDMETHODIMP put_LanguageId(long language) override;
    STDMETHODIMP ShowIn(long parentWindow) override;
    STDMETHODIMP MoveView(long left, long top, long width, long height) override;
    STDMETHODIMP get_ViewWindow(long* window) override;

    // For tests.
    STDMETHODIMP get_CallCount(BSTR operation, long* count) override;
    STDMETHODIMP put_LogEnabled(long enabled) override;
    STDMETHODIMP get_LogText(BSTR* text) override;
    STDMETHODIMP ClearLog() override;
    STDMETHODIMP FailCall(long number, long code) override;
    STDMETHODIMP InterruptCall(long number, IDispatch* called) override;
    STDMETHODIMP FailOperation(BSTR operation, long code) override;
    STDMETHODIMP ClearFaults() override;
    STDMETHODIMP put_HiddenInterfaces(long bits) override;
    STDMETHODIMP OverrideAttribute(BSTR path, BSTR attribute, VARIANT value) override;
    STDMETHODIMP ClearOverrides() override;
    STDMETHODIMP RaiseChange(long flags) override;
    STDMETHODIMP get_SinkCount(long* count) override;
    STDMETHODIMP get_EventCount(long* count) override;

  protected:
    std::vector<ConnectionPoint*> Points() override;
    HostSession& Streamed() override { return *session_; }

  private:
    void ChangesMade(bool redraw) override;
    void DrawNow() override;
    void TakeFocus() override;

    template <class Body, class... Arguments>
    HRESULT Call(Operation operation, Body&& body, const Arguments&... arguments) noexcept {
        return session_->Call(operation, IID_IVandraX, body, arguments...);
    }
    /// Members beyond the contract are neither counted nor let fail.
    template <class Body>
    HRESULT Extra(Body&& body) noexcept {
        return Guard(IID_IReferenceHost, [&] { return WithModelErrors(body); });
    }
    HRESULT Unused(Place place) noexcept;
    HRESULT Encrypt(LateBound member, int16_t level, BSTR owner, BSTR user, long permissions) noexcept;

    void ReadAttributeInto(BSTR path, BSTR attribute, VARIANT* value);
    ObjectKey Require(BSTR path) const;
    void Raise(uint32_t flags);
    HostModel& Model() const { return session_->model; }

    std::shared_ptr<HostSession> session_;
    ConnectionPoint events_;
    PagePainter painter_;
    std::unique_ptr<PageView> view_;
    std::wstring settingsKeyPath_;
    short languageId_;
    long hiddenInterfaces_ = 0;
    long eventCount_ = 0;
};

}  // namespace qz::sample
