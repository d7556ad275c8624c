// The sample container: a window with the reference host and the module's panes beside it.
//
//     container [document.vdoc] [--page n] [--size WxH] [--answer yes|no] [--manifest file] [--ready-file
//     file]
#include "sample/container/activation_context.h"
#include "sample/container/command_line.h"
#include "sample/container/error_text.h"
#include "sample/container/main_window.h"

#include <windows.h>
#include <commctrl.h>
#include <ole2.h>
#include <shellapi.h>
#include <uxtheme.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

using namespace qz;

namespace {

/// OLE and the common controls for the main thread.
class Libraries {
  public:
    Libraries() {
        ThrowIfFailed(OleInitialize(nullptr), L"OLE is not available");
        const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
        InitCommonControlsEx(&controls);
        BufferedPaintInit();
    }
    ~Libraries() {
        BufferedPaintUnInit();
        OleUninitialize();
    }
    Libraries(const Libraries&) = delete;
    Libraries& operator=(const Libraries&) = delete;
};

std::vector<std::wstring> Arguments() {
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&LocalFree)> list(CommandLineToArgvW(GetCommandLineW(), &count),
                                                               LocalFree);
    ThrowLastErrorIf(!list, L"The command line cannot be read");
    return {list.get() + 1, list.get() + count};
}

void WriteErrorLine(std::wstring text) {
    text += L"\r\n";
    std::string bytes(text.size() * 3, '\0');  // at most three for one UTF-16 unit
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.c_str(), static_cast<int>(text.size()),
                                           bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), bytes.data(), static_cast<DWORD>(length), &written, nullptr);
}

void CreateReadyFile(const std::wstring& path) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    ThrowLastErrorIf(file == INVALID_HANDLE_VALUE, L"The ready file cannot be created");
    CloseHandle(file);
}

/// Runs until the window is closed. When the message queue is empty for the first time all is painted.
int RunMessages(MainWindow& window, const std::wstring& readyFile) {
    bool ready = readyFile.empty();
    MSG message{};
    for (;;) {
        if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) return static_cast<int>(message.wParam);
            if (window.Translate(message)) continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
            continue;
        }
        window.OnIdle();
        if (!std::exchange(ready, true)) CreateReadyFile(readyFile);
        WaitMessage();
    }
}

/// A document that cannot be opened does not end a program that has a user; returns what to tell him then.
std::wstring OpenFirstDocument(MainWindow& window, const CommandLine& options) {
    if (options.document.empty()) return {};
    try {
        window.OpenDocument(options.document, options.page);
        return {};
    } catch (const ComError& error) {
        if (!options.readyFile.empty()) throw;
        return error.text;
    }
}

int Run(const CommandLine& options, int showCommand) {
    const Libraries libraries;
    std::optional<ActivationContext> manifest;
    if (!options.manifest.empty()) manifest.emplace(options.manifest);
    MainWindow window(options.size, options.answer);
    // The panes hear of the document as of any later one, and scroll to its page.
    window.AttachPanes();
    const std::wstring failure = OpenFirstDocument(window, options);
    window.Show(showCommand);
    if (!failure.empty()) window.ShowError(failure);
    return RunMessages(window, options.readyFile);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int showCommand) {
    bool driven = false;  // by another program, which reads errors from the error output
    std::wstring error;
    try {
        const std::vector<std::wstring> arguments = Arguments();
        driven = std::ranges::find(arguments, L"--ready-file") != arguments.end();
        if (const auto options = ParseCommandLine(arguments, error)) return Run(*options, showCommand);
    } catch (...) {
        error = CurrentExceptionText();
    }
    if (driven)
        WriteErrorLine(error);
    else
        MessageBoxW(nullptr, error.c_str(), L"Sample Container", MB_OK | MB_ICONERROR);
    return 1;
}
