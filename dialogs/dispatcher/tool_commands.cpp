#include "dialogs/dispatcher/tool_commands.h"

#include "dialogs/dispatcher/record_commands.h"
#include "dialogs/document/doc_settings_dlg.h"

#include "generated/qzVandraExt.h"

#include <algorithm>
#include <string>

namespace qz {

namespace {

HRESULT RunDocumentSettings(const ToolCall& call) {
    if (!call.host) Throw(E_POINTER, L"The document settings need a host");
    RunDocSettings(call.host.Get(), call.parent);
    return S_OK;
}

constexpr ToolCommand commands[] = {
    {qzAutoBookmarks, L"automatic bookmarks", nullptr},
    {qzAutoHyperlinks, L"automatic hyperlinks", nullptr},
    {qzDigitalSignature, L"digital signature", nullptr},
    {qzAddPageNumbers, L"page numbers", nullptr},
    {qzApplicationPreferences, L"application preferences", nullptr},
    {qzDocumentSplit, L"split document", nullptr},
    {qzDocumentSettings, L"document settings", RunDocumentSettings},
    {qzInsertPdf, L"insert PDF", nullptr},
    {qzExportToDOCX, L"DOCX export settings", RunDocxSettings},
    {qzAddWatermarks, L"watermarks", nullptr},
    {qzNUpSettings, L"N-up settings", RunNUpSettings},
    {qzPrintPreview, L"print preview", nullptr},
};

}  // namespace

const ToolCommand& RequireCommand(long number) {
    const auto found =
        std::ranges::find_if(commands, [&](const ToolCommand& each) { return each.number == number; });
    if (found == std::end(commands)) {
        Throw(E_NOTIMPL, L"There is no dialog with the number " + std::to_wstring(number));
    }
    if (!found->run) {
        Throw(E_NOTIMPL, L"The dialog \"" + std::wstring(found->name) + L"\" (" + std::to_wstring(number) +
                             L") does not exist yet");
    }
    return *found;
}

}  // namespace qz
