// The tool dialogs, late-bound as a script would use them.
#include "sample/container/main_window.h"

#include "sample/container/automation.h"
#include "sample/container/error_text.h"

#include "generated/qzVandraExt.h"

namespace qz {

void MainWindow::ShowDocumentSettings() { RunTool(qzDocumentSettings); }

void MainWindow::ShowDocxSettings() { RunTool(qzExportToDOCX); }

void MainWindow::ShowNUpSettings() { RunTool(qzNUpSettings); }

void MainWindow::RunTool(long command) {
    ComPtr<IDispatch> dialogs;
    RequireSuccess(
        CoCreateInstance(CLSID_qzPluginUIDialogs, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&dialogs)),
        L"The tool dialogs cannot be created");
    PutProperty(dialogs.Get(), L"PDF", _variant_t(host_->Automation()));
    PutProperty(dialogs.Get(), L"ParentWindowHandle", static_cast<long>(HandleToLong(Handle())));
    CallMethod(dialogs.Get(), L"DoDialog", {command});
}

/// The dialog keeps the step between two calls; here it lives for one.
void MainWindow::ShowGrid() {
    ComPtr<IDispatch> dialog;
    RequireSuccess(
        CoCreateInstance(CLSID_qzGridUnitsDlg, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&dialog)),
        L"The dialog of the grid cannot be created");
    PutProperty(dialog.Get(), L"GridSteps", gridSteps_);
    CallMethod(dialog.Get(), L"DoModal");
    gridSteps_ = GetProperty(dialog.Get(), L"GridSteps");
    Log(L"Grid: " + std::to_wstring(gridSteps_) + L" twips");
}

}  // namespace qz
