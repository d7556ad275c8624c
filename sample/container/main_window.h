// The program's window: menu, panes around the host's view, status strip.
#pragma once

#include "sample/container/app_window.h"
#include "sample/container/command_line.h"
#include "sample/container/event_log.h"
#include "sample/container/host_view.h"
#include "sample/container/in_place_frame.h"
#include "sample/container/pane.h"
#include "sample/container/status_strip.h"
#include "sample/container/workspace.h"

#include <memory>
#include <optional>
#include <span>
#include <string>

namespace qz {

class MainWindow final : public AppWindow, private FrameShell {
  public:
    /// Creates the window, not shown yet, with the host and all panes. `size` in pixels, else a good part of
    /// the screen; `answer` is taken for the user's to all questions. Throws when the host or a pane cannot
    /// be created.
    MainWindow(std::optional<WindowSize> size, std::optional<bool> answer);
    ~MainWindow() override;

    /// Opens a document at a page (1-based). On a failure throws; the document before stays.
    void OpenDocument(const std::wstring& path, int page);
    /// Hands the host to the panes.
    void AttachPanes() { workspace_->AttachPanes(); }
    void Show(int showCommand);
    void ShowError(const std::wstring& text) noexcept;

    /// To be called with every message; true when it is done with.
    bool Translate(MSG& message);
    /// To be called when no message waits.
    void OnIdle() noexcept;

  private:
    struct Command;
    static std::span<const Command> Commands() noexcept;

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnError(const std::wstring& text) noexcept override;

    // FrameShell
    HWND FrameWindow() const noexcept override { return Handle(); }
    bool UseKey(const MSG& message) override;
    void ShowStatus(const std::wstring& text) noexcept override { status_.ShowLine(text); }

    void OnSize();
    void OnSettingsChanged();
    void OnDpiChanged(const RECT& bounds);
    void OnActivate(bool active);
    void OnClosing() noexcept;
    void OnMinimumSize(MINMAXINFO& info) const noexcept;
    void MakeEnvironment();
    void ShowPosition();
    void Log(const std::wstring& line);
    bool AskUser(const wchar_t* question) const noexcept;

    // main_window_commands.cpp
    void OnCommand(WORD id);
    void OnMenuOpens(HMENU menu);
    void AskForDocument();
    void Exit();
    void LargerThumbnails();
    void SmallerThumbnails();
    void ChangeThumbnails(long step);
    void NextPane();
    void PreviousPane();
    void ToggleEventLog();
    void FirstPage();
    void PreviousPage();
    void NextPage();
    void LastPage();
    bool HasPageBefore() const;
    bool HasPageAfter() const;
    bool HasThumbnails() const;
    void ChangeLanguage(LANGID language);

    // main_window_objects.cpp
    bool HasPages() const { return host_->PageCount() > 0; }
    void NewField() { host_->AddField(); }
    void SelectNextObject() { host_->SelectNextObject(); }
    void SelectAllObjects() { host_->SelectAllObjects(); }
    void ShowObjectProperties();
    void ShowDocumentProperties();
    ComPtr<IDispatch> MakePropertiesDialog() const;

    // main_window_tools.cpp
    void ShowDocumentSettings();
    void ShowDocxSettings();
    void ShowNUpSettings();
    void ShowGrid();
    void RunTool(long command);

    ComPtr<InPlaceFrame> frame_;
    PaneEnvironment environment_;
    StatusStrip status_;
    EventLog log_;
    std::optional<bool> answer_;
    std::unique_ptr<HostView> host_;
    std::unique_ptr<Workspace> workspace_;
    ComPtr<IDispatch> properties_;  ///< The modeless properties dialog, once it was called for.
    long gridSteps_ = 0;            ///< As the grid's dialog was left, in twips.
    HACCEL keys_ = nullptr;
    HWND focusBefore_ = nullptr;  ///< Where the focus was when the window was left.
    bool positionStale_ = true;   ///< The status strip does not tell the current page yet.
};

}  // namespace qz
