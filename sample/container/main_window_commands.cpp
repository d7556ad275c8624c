// What the menu and its keys do.
#include "sample/container/main_window.h"

#include "sample/container/automation.h"
#include "sample/container/commands.h"
#include "sample/container/error_text.h"
#include "sample/container/open_dialog.h"

#include "generated/qzVandraExt.h"

#include <algorithm>

namespace qz {

struct MainWindow::Command {
    WORD id;
    void (MainWindow::*run)();
    bool (MainWindow::*enabled)() const;  ///< Null: always.
};

std::span<const MainWindow::Command> MainWindow::Commands() noexcept {
    static constexpr Command commands[] = {
        {QZ_FILE_OPEN, &MainWindow::AskForDocument, nullptr},
        {QZ_FILE_EXIT, &MainWindow::Exit, nullptr},
        {QZ_THUMBNAILS_LARGER, &MainWindow::LargerThumbnails, &MainWindow::HasThumbnails},
        {QZ_THUMBNAILS_SMALLER, &MainWindow::SmallerThumbnails, &MainWindow::HasThumbnails},
        {QZ_NEXT_PANE, &MainWindow::NextPane, nullptr},
        {QZ_PREVIOUS_PANE, &MainWindow::PreviousPane, nullptr},
        {QZ_EVENT_LOG, &MainWindow::ToggleEventLog, nullptr},
        {QZ_PAGE_FIRST, &MainWindow::FirstPage, &MainWindow::HasPageBefore},
        {QZ_PAGE_PREVIOUS, &MainWindow::PreviousPage, &MainWindow::HasPageBefore},
        {QZ_PAGE_NEXT, &MainWindow::NextPage, &MainWindow::HasPageAfter},
        {QZ_PAGE_LAST, &MainWindow::LastPage, &MainWindow::HasPageAfter},
        {QZ_OBJECT_NEW_FIELD, &MainWindow::NewField, &MainWindow::HasPages},
        {QZ_OBJECT_NEXT, &MainWindow::SelectNextObject, &MainWindow::HasPages},
        {QZ_OBJECT_ALL, &MainWindow::SelectAllObjects, &MainWindow::HasPages},
        {QZ_OBJECT_PROPERTIES, &MainWindow::ShowObjectProperties, nullptr},
        {QZ_DOCUMENT_PROPERTIES, &MainWindow::ShowDocumentProperties, nullptr},
        {QZ_TOOL_DOCUMENT_SETTINGS, &MainWindow::ShowDocumentSettings, nullptr},
        {QZ_TOOL_DOCX_SETTINGS, &MainWindow::ShowDocxSettings, nullptr},
        {QZ_TOOL_NUP_SETTINGS, &MainWindow::ShowNUpSettings, nullptr},
        {QZ_TOOL_GRID, &MainWindow::ShowGrid, nullptr},
    };
    return commands;
}

namespace {

struct LanguageCommand {
    WORD id;
    LANGID language;
};

constexpr LanguageCommand languageCommands[] = {
    {QZ_LANGUAGE_ENGLISH, MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US)},
    {QZ_LANGUAGE_GERMAN, MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN)},
    {QZ_LANGUAGE_SPANISH, MAKELANGID(LANG_SPANISH, SUBLANG_SPANISH_MODERN)},
    {QZ_LANGUAGE_FRENCH, MAKELANGID(LANG_FRENCH, SUBLANG_FRENCH)},
    {QZ_LANGUAGE_ITALIAN, MAKELANGID(LANG_ITALIAN, SUBLANG_ITALIAN)},
    {QZ_LANGUAGE_JAPANESE, MAKELANGID(LANG_JAPANESE, SUBLANG_JAPANESE_JAPAN)},
    {QZ_LANGUAGE_SWEDISH, MAKELANGID(LANG_SWEDISH, SUBLANG_SWEDISH)},
};

constexpr long thumbnailStep = 4;  // percent
constexpr long smallestThumbnails = 10;
constexpr long largestThumbnails = 50;

}  // namespace

void MainWindow::OnCommand(WORD id) {
    try {
        for (const Command& command : Commands()) {
            if (command.id == id) return (this->*command.run)();
        }
        for (const LanguageCommand& command : languageCommands) {
            if (command.id == id) return ChangeLanguage(command.language);
        }
    } catch (...) {
        ShowError(CurrentExceptionText());
    }
}

/// Accelerators come by here too: the system does not run the command of a greyed item.
void MainWindow::OnMenuOpens(HMENU menu) {
    for (const Command& command : Commands()) {
        if (!command.enabled) continue;
        const bool enabled = (this->*command.enabled)();
        EnableMenuItem(menu, command.id, MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
    }
    CheckMenuItem(menu, QZ_EVENT_LOG, MF_BYCOMMAND | (log_.Shown() ? MF_CHECKED : MF_UNCHECKED));
    const LANGID current = host_->Language();
    for (const LanguageCommand& command : languageCommands) {
        if (PRIMARYLANGID(command.language) != PRIMARYLANGID(current)) continue;
        CheckMenuRadioItem(menu, QZ_LANGUAGE_ENGLISH, QZ_LANGUAGE_SWEDISH, command.id, MF_BYCOMMAND);
    }
}

void MainWindow::AskForDocument() {
    const auto path = AskForFile(Handle(), {L"Documents (*.vdoc)", L"*.vdoc"});
    if (path) OpenDocument(*path, 1);
}

void MainWindow::Exit() { PostMessageW(Handle(), WM_CLOSE, 0, 0); }

// View
// -----------------------------------------------------------------------------------------------------------

bool MainWindow::HasThumbnails() const { return !workspace_->PanesOf(CLSID_qzThumbnailCtrl).empty(); }

void MainWindow::LargerThumbnails() { ChangeThumbnails(thumbnailStep); }

void MainWindow::SmallerThumbnails() { ChangeThumbnails(-thumbnailStep); }

/// Late-bound, as a script would.
void MainWindow::ChangeThumbnails(long step) {
    const long page = host_->CurrentPage();
    for (const Pane* const pane : workspace_->PanesOf(CLSID_qzThumbnailCtrl)) {
        const ComPtr<IDispatch> control = pane->Control();
        const long factor = GetProperty(control.Get(), L"ThumbSizeFactor");
        const long wanted = std::clamp(factor + step, smallestThumbnails, largestThumbnails);
        PutProperty(control.Get(), L"ThumbSizeFactor", wanted);
        CallMethod(control.Get(), L"RedrawAllThumbs");
        if (page > 0) CallMethod(control.Get(), L"ScrollPageThumbIntoView", {page});
    }
}

void MainWindow::NextPane() { workspace_->MoveFocus(false); }

void MainWindow::PreviousPane() { workspace_->MoveFocus(true); }

void MainWindow::ToggleEventLog() {
    log_.Show(!log_.Shown());
    OnSize();
}

/// Panes take their language from the host when they are attached.
void MainWindow::ChangeLanguage(LANGID language) {
    host_->SetLanguage(language);
    environment_.ambients->locale = MAKELCID(language, SORT_DEFAULT);
    workspace_->EnvironmentChanged();
    workspace_->AttachPanes();
}

// Page
// -----------------------------------------------------------------------------------------------------------

bool MainWindow::HasPageBefore() const { return host_->CurrentPage() > 1; }

bool MainWindow::HasPageAfter() const { return host_->CurrentPage() < host_->PageCount(); }

void MainWindow::FirstPage() { host_->GoToPage(1); }

void MainWindow::PreviousPage() { host_->GoToPage(host_->CurrentPage() - 1); }

void MainWindow::NextPage() { host_->GoToPage(host_->CurrentPage() + 1); }

void MainWindow::LastPage() { host_->GoToPage(host_->PageCount()); }

}  // namespace qz
