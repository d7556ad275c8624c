// The host control: its document, its view, and its pages. Everything the program asks of the host is here.
#pragma once

#include "com/object.h"
#include "com/event_connection.h"
#include "host/object_path.h"
#include "sample/container/layout.h"

#include "generated/reference_host.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace qz {

/// The reference host as this program uses it. Members throw when the host fails, with its own description.
class HostView {
  public:
    /// Makes the host, without a document. `onChanged` is called, also in the midst of the host's work, when
    /// the host says that something has changed.
    explicit HostView(std::function<void()> onChanged);
    HostView(const HostView&) = delete;
    HostView& operator=(const HostView&) = delete;

    /// The host as panes get it.
    IDispatch* Automation() const noexcept { return host_.Get(); }

    /// On a failure the document before stays.
    void OpenDocument(const std::wstring& path);

    /// Shows the host's view as a child of a window; hide it before that window goes.
    void ShowIn(HWND parent);
    void Hide() noexcept { host_->ShowIn(0); }
    void Place(const Area& area);
    HWND Window() const;

    long PageCount() const;
    long CurrentPage() const;  ///< 1-based.
    void GoToPage(long page);

    /// The object selected, or the document itself.
    ComPtr<IDispatch> SelectedOrDocument() const;
    ComPtr<IDispatch> Document() const { return ObjectAt(documentPath); }
    ComPtr<IDispatch> ObjectAt(const wchar_t* path) const;
    /// Makes a form field on the current page, and selects it.
    void AddField();
    /// Selects the object of the current page that follows the one selected, the first one behind the last.
    void SelectNextObject();
    void SelectAllObjects();

    LANGID Language() const;
    void SetLanguage(LANGID language);

  private:
    ComPtr<IDispatch> Selected() const;

    ComPtr<IReferenceHost> host_;
    std::optional<EventConnection> events_;
};

}  // namespace qz
