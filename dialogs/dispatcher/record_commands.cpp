#include "dialogs/dispatcher/record_commands.h"

#include "com/stream.h"
#include "dialogs/docx/docx_settings_dlg.h"
#include "dialogs/nup/nup_settings_dlg.h"
#include "host/host_language.h"
#include "settings/settings_store.h"

#include <comdef.h>

namespace qz {

namespace {

/// The record's text in a stream of its own, rewound.
ComPtr<IStream> StreamOf(zrSettings& record) {
    ComPtr<IStream> stream = MakeMemoryStream();
    record.Save(stream.Get());
    ThrowIfFailed(stream->Seek({}, STREAM_SEEK_SET, nullptr));
    return stream;
}

void HandBack(zrSettings& record, const ToolCall& call) {
    if (!call.dataOut) return;
    ComPtr<IStream> stream = StreamOf(record);
    if (call.dataOutHolds)
        ThrowIfFailed(VariantClear(call.dataOut));
    else
        VariantInit(call.dataOut);
    call.dataOut->vt = VT_UNKNOWN;
    call.dataOut->punkVal = stream.Detach();
}

/// Lets the user change a record that is kept in the registry.
template <class Record, class Ask>
HRESULT AskAndHandBack(const ToolCall& call, Ask&& ask) {
    const SettingsStore store;
    Record record;
    store.Read(record);
    if (!ask(record)) return S_FALSE;
    const bool kept = store.Write(record).stored;
    if (!kept && !call.dataOut) Throw(E_FAIL, L"The settings could not be kept in the registry");
    if (!kept) OutputDebugStringW(L"The settings could not be kept in the registry\n");
    HandBack(record, call);
    return S_OK;
}

NUpMode ModeOf(const VARIANT* dataIn) {
    _variant_t plain;
    const bool given = dataIn && SUCCEEDED(VariantCopyInd(&plain, const_cast<VARIANT*>(dataIn))) &&
                       plain.vt != VT_EMPTY && plain.vt != VT_NULL && plain.vt != VT_ERROR;
    _variant_t number;
    if (!given || FAILED(VariantChangeType(&number, &plain, 0, VT_I8))) return NUpMode::Everything;
    switch (static_cast<short>(number.llVal)) {  // what a 16-bit reader finds in the VARIANT
        case 0:
            return NUpMode::Printing;
        case 1:
            return NUpMode::NewDocument;
        default:
            return NUpMode::Everything;
    }
}

}  // namespace

HRESULT RunDocxSettings(const ToolCall& call) {
    const Language language = LanguageOf(call.host.Get());
    return AskAndHandBack<zrDocxSettings>(
        call, [&](zrDocxSettings& record) { return AskForDocxSettings(call.parent, language, record); });
}

HRESULT RunNUpSettings(const ToolCall& call) {
    const Language language = LanguageOf(call.host.Get());
    const NUpMode mode = ModeOf(call.dataIn);
    return AskAndHandBack<zrNUpSettings>(
        call, [&](zrNUpSettings& record) { return AskForNUpSettings(call.parent, language, mode, record); });
}

}  // namespace qz
