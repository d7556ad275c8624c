#include "sample/container/main_window.h"

#include "com/module.h"
#include "sample/container/commands.h"
#include "sample/container/dpi.h"
#include "sample/container/error_text.h"
#include "sample/container/pane_table.h"

#include <algorithm>
#include <utility>

namespace qz {

namespace {

constexpr wchar_t programName[] = L"Sample Container";
constexpr WindowSize preferredSize{1200, 860};  // at 96 dots per inch
constexpr WindowSize smallestSize{420, 320};
constexpr int logHeight = 96;

/// In the middle of the primary screen's free part.
RECT FirstBounds(std::optional<WindowSize> wanted) noexcept {
    RECT room{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &room, 0);
    const int roomWidth = room.right - room.left;
    const int roomHeight = room.bottom - room.top;
    const WindowSize size = wanted.value_or(WindowSize{
        std::min(roomWidth, Scaled(nullptr, preferredSize.width)),
        std::min(roomHeight, Scaled(nullptr, preferredSize.height)),
    });
    const LONG left = room.left + std::max(0, (roomWidth - size.width) / 2);
    const LONG top = room.top + std::max(0, (roomHeight - size.height) / 2);
    return {left, top, left + size.width, top + size.height};
}

std::wstring FileName(const std::wstring& path) { return path.substr(path.find_last_of(L"\\/") + 1); }

}  // namespace

MainWindow::MainWindow(std::optional<WindowSize> size, std::optional<bool> answer)
    : frame_(MakeObject<InPlaceFrame>(static_cast<FrameShell&>(*this))), answer_(answer) {
    keys_ = LoadAcceleratorsW(ThisModule(), MAKEINTRESOURCEW(QZ_CONTAINER_KEYS));
    ThrowLastErrorIf(!keys_, L"The keyboard table is missing");
    AppWindowOptions options;
    options.style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    options.bounds = FirstBounds(size);
    options.menu = LoadMenuW(ThisModule(), MAKEINTRESOURCEW(QZ_CONTAINER_MENU));
    options.title = programName;
    Create(options);
    status_.Create(Handle());
    log_.Create(Handle());
    host_ = std::make_unique<HostView>([this] { positionStale_ = true; });
    MakeEnvironment();
    workspace_ = std::make_unique<Workspace>(Handle(), PaneTable(), environment_, *host_);
    OnSize();
}

MainWindow::~MainWindow() { OnClosing(); }

void MainWindow::MakeEnvironment() {
    environment_.frame = frame_;
    environment_.fonts = MakeFonts(Handle());
    environment_.ambients->font = environment_.fonts.ambient;
    environment_.ambients->locale = MAKELCID(host_->Language(), SORT_DEFAULT);
    environment_.log = [this](const std::wstring& line) { Log(line); };
    environment_.ask = [this](const wchar_t* question) { return AskUser(question); };
}

void MainWindow::Log(const std::wstring& line) {
    status_.ShowLine(line);
    log_.Add(line);
}

/// What is asked cannot be undone, so the answer at hand is no.
bool MainWindow::AskUser(const wchar_t* question) const noexcept {
    if (answer_) return *answer_;
    return MessageBoxW(Handle(), question, programName, MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2) == IDYES;
}

void MainWindow::OpenDocument(const std::wstring& path, int page) {
    host_->OpenDocument(path);
    const std::wstring name = FileName(path);
    SetWindowTextW(Handle(), (name + L" - " + programName).c_str());
    status_.ShowLine(name + L" opened");
    positionStale_ = true;
    if (page > 1) host_->GoToPage(page);
    workspace_->Inspect(host_->SelectedOrDocument());
}

void MainWindow::Show(int showCommand) {
    ShowWindow(Handle(), showCommand);
    UpdateWindow(Handle());
    workspace_->FocusHost();
}

void MainWindow::ShowError(const std::wstring& text) noexcept {
    MessageBoxW(Handle(), text.c_str(), programName, MB_OK | MB_ICONERROR);
}

bool MainWindow::Translate(MSG& message) {
    const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    // The active control comes first: it may use a key that is also a command here.
    return isKey && (frame_->OfferKey(message) || UseKey(message));
}

bool MainWindow::UseKey(const MSG& message) {
    MSG copy = message;
    return TranslateAcceleratorW(Handle(), keys_, &copy) != 0;
}

void MainWindow::OnIdle() noexcept {
    if (!host_ || !std::exchange(positionStale_, false)) return;
    try {
        ShowPosition();
    } catch (...) {
        status_.ShowLine(CurrentExceptionText());
    }
}

void MainWindow::ShowPosition() {
    const long count = host_->PageCount();
    if (count == 0) return status_.ShowPosition(L"No pages");
    status_.ShowPosition(L"Page " + std::to_wstring(host_->CurrentPage()) + L" of " + std::to_wstring(count));
}

LRESULT MainWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            OnSize();
            return 0;
        case WM_ERASEBKGND:
            return 1;  // children cover the client area
        case WM_COMMAND:
            OnCommand(LOWORD(wParam));
            return 0;
        case WM_INITMENUPOPUP:
            OnMenuOpens(reinterpret_cast<HMENU>(wParam));
            return 0;
        case WM_ACTIVATE:
            OnActivate(LOWORD(wParam) != WA_INACTIVE);
            return 0;
        case WM_GETMINMAXINFO:
            OnMinimumSize(*reinterpret_cast<MINMAXINFO*>(lParam));
            return 0;
        case WM_DPICHANGED:
            OnDpiChanged(*reinterpret_cast<const RECT*>(lParam));
            return 0;
        case WM_SYSCOLORCHANGE:
        case WM_SETTINGCHANGE:
        case WM_THEMECHANGED:
            OnSettingsChanged();
            return 0;
        case WM_CLOSE:
            return workspace_ && !workspace_->MayClose() ? 0 : Default(message, wParam, lParam);
        case WM_DESTROY:
            OnClosing();
            PostQuitMessage(0);
            return 0;
        default:
            return Default(message, wParam, lParam);
    }
}

void MainWindow::OnError(const std::wstring& text) noexcept { status_.ShowLine(text); }

void MainWindow::OnSize() {
    if (!workspace_ || IsIconic(Handle())) return;
    status_.Layout(environment_.fonts.text.get());
    log_.SetFont(environment_.fonts.text.get());
    const RECT client = ClientRect();
    const int room = std::max(0, static_cast<int>(client.bottom) - status_.Height());
    const int below = log_.Shown() ? std::min(Scaled(Handle(), logHeight), room / 2) : 0;
    const Area logArea{0, room - below, static_cast<int>(client.right), below};
    log_.Place(logArea);
    SetWindowPos(workspace_->Handle(), nullptr, 0, 0, client.right, logArea.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void MainWindow::OnSettingsChanged() {
    if (!workspace_) return;
    // The old fonts stay until nothing uses them any more.
    const Fonts before = std::exchange(environment_.fonts, MakeFonts(Handle()));
    environment_.ambients->font = environment_.fonts.ambient;
    workspace_->EnvironmentChanged();
    OnSize();
    RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_FRAME);
}

void MainWindow::OnDpiChanged(const RECT& bounds) {
    OnSettingsChanged();
    SetWindowPos(Handle(), nullptr, bounds.left, bounds.top, bounds.right - bounds.left,
                 bounds.bottom - bounds.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void MainWindow::OnActivate(bool active) {
    if (!active) {
        focusBefore_ = GetFocus();
    } else if (focusBefore_ && IsChild(Handle(), focusBefore_)) {
        SetFocus(focusBefore_);
    } else if (workspace_) {
        workspace_->FocusHost();
    }
    frame_->OnFrameActivated(active);
}

void MainWindow::OnMinimumSize(MINMAXINFO& info) const noexcept {
    info.ptMinTrackSize = {Scaled(Handle(), smallestSize.width), Scaled(Handle(), smallestSize.height)};
}

/// Ends the controls while their windows are whole, then the host that they are attached to.
void MainWindow::OnClosing() noexcept {
    properties_ = nullptr;
    workspace_.reset();
    host_.reset();
    frame_->Detach();
}

}  // namespace qz
