#include "tests/support/crash_guard.h"

#include <windows.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>

namespace qz {
namespace {

constexpr int crashExitCode = 99;
constexpr int maxFrames = 48;

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
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH] = L"?";
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(address), &module);
    if (module && GetModuleFileNameW(module, path, MAX_PATH))
        address = address - reinterpret_cast<DWORD64>(module) + PreferredBase(path);
    const wchar_t* name = std::wcsrchr(path, L'\\');
    std::fprintf(stderr, "  #%d %ls 0x%llx\n", frame, name ? name + 1 : path, address);
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

bool Unwind(CONTEXT& context) {
    DWORD64 base = 0;
    auto* entry = RtlLookupFunctionEntry(context.Rip, &base, nullptr);
    if (!entry) return UnwindLeaf(context);
    void* handlerData = nullptr;
    DWORD64 establisher = 0;
    RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, entry, &context, &handlerData, &establisher,
                     nullptr);
    return true;
}

[[noreturn]] void EndWithBacktrace(CONTEXT context) {
    for (int frame = 0; frame < maxFrames; ++frame) {
        // A return address is that of the next statement: step back into the call.
        PrintFrame(frame, frame == 0 ? context.Rip : context.Rip - 1);
        if (!Unwind(context) || context.Rip == 0) break;
    }
    std::fprintf(stderr, "(x86_64-w64-mingw32-addr2line -Cfpe <module> <address>... names the lines)\n");
    std::fflush(nullptr);
    TerminateProcess(GetCurrentProcess(), crashExitCode);
    std::abort();
}

LONG WINAPI OnUnhandledException(EXCEPTION_POINTERS* info) {
    std::fprintf(stderr, "unhandled exception 0x%08lx\n", info->ExceptionRecord->ExceptionCode);
    EndWithBacktrace(*info->ContextRecord);
}

void OnAbort(int) {
    std::fprintf(stderr, "aborted\n");
    CONTEXT context;
    RtlCaptureContext(&context);
    EndWithBacktrace(context);
}

}  // namespace

void InstallCrashGuard() {
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    SetUnhandledExceptionFilter(OnUnhandledException);
    std::signal(SIGABRT, OnAbort);
}

}  // namespace qz
