#include "tests/support/backtrace.h"

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <cwchar>

namespace qz {
namespace {

constexpr int maxFrames = 48;

HMODULE ModuleAt(DWORD64 address) {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(address), &module);
    return module;
}

bool IsSystems(HMODULE module) {
    wchar_t path[MAX_PATH] = L"", windows[MAX_PATH] = L"";
    const UINT length = GetSystemWindowsDirectoryW(windows, MAX_PATH);
    return module && length && GetModuleFileNameW(module, path, MAX_PATH) &&
           _wcsnicmp(path, windows, length) == 0;
}

// The address that the module's file asks for; the loader overwrites the one in memory.
DWORD64 PreferredBase(const wchar_t* path) {
    HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return 0;
    char headers[1024] = {};
    DWORD size = 0;
    const bool read = ReadFile(file, headers, sizeof headers, &size, nullptr) != 0;
    CloseHandle(file);
    IMAGE_DOS_HEADER dos;
    std::memcpy(&dos, headers, sizeof dos);
    IMAGE_NT_HEADERS64 nt;
    if (!read || dos.e_lfanew < 0 || dos.e_lfanew + sizeof nt > size) return 0;
    std::memcpy(&nt, headers + dos.e_lfanew, sizeof nt);
    return nt.OptionalHeader.ImageBase;
}

// One line: the module and the address as the linker gave it, ready for addr2line.
void PrintFrame(int frame, DWORD64 address) {
    const HMODULE module = ModuleAt(address);
    wchar_t path[MAX_PATH] = L"?";
    if (module && GetModuleFileNameW(module, path, MAX_PATH))
        address = address - reinterpret_cast<DWORD64>(module) + PreferredBase(path);
    const wchar_t* name = std::wcsrchr(path, L'\\');
    PrintError("  #%d %ls 0x%llx\n", frame, name ? name + 1 : path, address);
}

// A function without unwind data leaves its return address on top of the stack. False at the end of the
// stack.
bool UnwindLeaf(CONTEXT& context) {
    DWORD64 caller = 0;
    if (!ReadProcessMemory(GetCurrentProcess(), reinterpret_cast<void*>(context.Rsp), &caller, sizeof caller,
                           nullptr))
        return false;
    context.Rip = caller;
    context.Rsp += sizeof caller;
    return true;
}

// Goes to the caller; whether the function that it leaves has a handler of exceptions. False at the end.
bool Unwind(CONTEXT& context, bool& handles) {
    handles = false;
    DWORD64 base = 0;
    auto* entry = RtlLookupFunctionEntry(context.Rip, &base, nullptr);
    if (!entry) return UnwindLeaf(context);
    void* handlerData = nullptr;
    DWORD64 establisher = 0;
    handles = RtlVirtualUnwind(UNW_FLAG_EHANDLER, base, context.Rip, entry, &context, &handlerData,
                               &establisher, nullptr) != nullptr;
    return true;
}

// Some systems keep their handlers in the list that the thread's block begins, as records on the stack.
bool HasRecord(DWORD64 from, DWORD64 to) {
    const auto* block = reinterpret_cast<const NT_TIB*>(NtCurrentTeb());
    const auto end = reinterpret_cast<DWORD64>(block->StackBase);
    const auto* record = block->ExceptionList;
    for (auto at = reinterpret_cast<DWORD64>(record);
         at >= reinterpret_cast<DWORD64>(block->StackLimit) && at < end;
         record = record->Next, at = reinterpret_cast<DWORD64>(record)) {
        if (at >= from && at < to) return true;
    }
    return false;
}

// Where the system calls a program back. What comes here swallows faults rather than handling them.
bool IsCallback(DWORD64 address) {
    static const FARPROC dispatcher =
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "KiUserCallbackDispatcher");
    DWORD64 base = 0;
    const auto* entry = RtlLookupFunctionEntry(address, &base, nullptr);
    return entry && dispatcher && base + entry->BeginAddress == reinterpret_cast<DWORD64>(dispatcher);
}

}  // namespace

void PrintError(const char* format, ...) {
    char text[MAX_PATH + 200];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    DWORD written = 0;
    if (length > 0)
        WriteFile(GetStdHandle(STD_ERROR_HANDLE), text, static_cast<DWORD>(std::strlen(text)), &written,
                  nullptr);
}

void PrintBacktrace(CONTEXT context) {
    bool handles = false;
    for (int frame = 0; frame < maxFrames; ++frame) {
        // A return address is that of the next statement: step back into the call.
        PrintFrame(frame, frame == 0 ? context.Rip : context.Rip - 1);
        if (!Unwind(context, handles) || context.Rip == 0) break;
    }
    PrintError("(x86_64-w64-mingw32-addr2line -Cfpe <module> <address>... names the lines)\n");
}

bool SystemMayHandle(CONTEXT context) {
    const HMODULE callbacks = GetModuleHandleW(L"ntdll.dll");
    bool handledOutside = false;  // by a module other than the one that calls back
    bool handled = false;
    for (int frame = 0; frame < maxFrames && context.Rip && !IsCallback(context.Rip); ++frame) {
        const HMODULE module = ModuleAt(context.Rip);
        if (!IsSystems(module)) return handled;
        const DWORD64 inner = context.Rsp;
        bool handles = false;
        if (!Unwind(context, handles)) break;
        if (!handles && !HasRecord(inner, context.Rsp)) continue;
        handled = true;
        // The callback's own handler lies in the calls of its module next to it.
        if (module != callbacks || frame == 0) handledOutside = true;
    }
    return handledOutside;
}

}  // namespace qz
