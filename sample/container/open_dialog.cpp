#include "sample/container/open_dialog.h"

#include "com/object.h"
#include "sample/container/error_text.h"

#include <shobjidl.h>

#include <memory>

namespace qz {

namespace {

struct TaskMemoryDeleter {
    void operator()(void* memory) const noexcept { CoTaskMemFree(memory); }
};

std::wstring PathOf(IShellItem* item) {
    wchar_t* text = nullptr;
    RequireSuccess(item->GetDisplayName(SIGDN_FILESYSPATH, &text), L"The chosen file has no path");
    const std::unique_ptr<wchar_t, TaskMemoryDeleter> owner(text);
    return text;
}

}  // namespace

std::optional<std::wstring> AskForFile(HWND owner, const FileFilter& filter) {
    constexpr wchar_t what[] = L"The dialog cannot be shown";
    ComPtr<IFileOpenDialog> dialog;
    RequireSuccess(
        CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&dialog)), what);
    const COMDLG_FILTERSPEC types[] = {{filter.name, filter.pattern}, {L"All files", L"*.*"}};
    RequireSuccess(dialog->SetFileTypes(2, types), what);
    const HRESULT answer = dialog->Show(owner);
    if (answer == HRESULT_FROM_WIN32(ERROR_CANCELLED)) return {};
    RequireSuccess(answer, what);
    ComPtr<IShellItem> item;
    RequireSuccess(dialog->GetResult(&item), L"The dialog gives no file");
    return PathOf(item.Get());
}

}  // namespace qz
