#include "tests/support/crash_guard.h"

#include "tests/support/backtrace.h"

#include <windows.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace qz {
namespace {

constexpr UINT crashExitCode = 99;
constexpr ULONG stackForReport = 256 * 1024;

// Exceptions that are faults of the program. All others are somebody's way of telling something, such as
// those of C++ and of a debugger's output.
const char* FaultName(DWORD code) {
    switch (code) {
        case EXCEPTION_ACCESS_VIOLATION:
            return "access violation";
        case EXCEPTION_STACK_OVERFLOW:
            return "stack overflow";
        case EXCEPTION_ILLEGAL_INSTRUCTION:  // traps of checks that the compiler adds too
        case EXCEPTION_PRIV_INSTRUCTION:
            return "illegal instruction";
        case EXCEPTION_INT_DIVIDE_BY_ZERO:
        case EXCEPTION_INT_OVERFLOW:
            return "division by zero or overflow";
        case EXCEPTION_DATATYPE_MISALIGNMENT:
        case EXCEPTION_ARRAY_BOUNDS_EXCEEDED:
        case EXCEPTION_IN_PAGE_ERROR:
            return "bad access";
        case 0xC0000374:
            return "damaged heap";
        default:
            return nullptr;
    }
}

/// One report only: a fault while it is made ends the process at once, and other threads' faults wait for
/// that.
void BeginReport() {
    static std::atomic<DWORD> reporting = 0;
    DWORD nobody = 0;
    if (reporting.compare_exchange_strong(nobody, GetCurrentThreadId())) return;
    if (nobody != GetCurrentThreadId()) Sleep(INFINITE);
    TerminateProcess(GetCurrentProcess(), crashExitCode);
}

[[noreturn]] void EndWithBacktrace(const CONTEXT& context) {
    PrintBacktrace(context);
    std::fflush(nullptr);
    TerminateProcess(GetCurrentProcess(), crashExitCode);
    std::abort();
}

// Before anybody else sees it.
LONG WINAPI OnException(EXCEPTION_POINTERS* info) {
    const EXCEPTION_RECORD& record = *info->ExceptionRecord;
    const char* const fault = FaultName(record.ExceptionCode);
    // Nothing goes on after an overflow of the stack.
    const bool overflow = record.ExceptionCode == EXCEPTION_STACK_OVERFLOW;
    if (!fault || (!overflow && SystemMayHandle(*info->ContextRecord))) return EXCEPTION_CONTINUE_SEARCH;
    BeginReport();
    PrintError("crash: %s (0x%08lx)", fault, record.ExceptionCode);
    if (record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION && record.NumberParameters > 1)
        PrintError(record.ExceptionInformation[0] == 1 ? ", writing 0x%llx" : ", reading 0x%llx",
                   record.ExceptionInformation[1]);
    PrintError("\n");
    EndWithBacktrace(*info->ContextRecord);
}

LONG WINAPI OnUnhandledException(EXCEPTION_POINTERS* info) {
    BeginReport();
    PrintError("unhandled exception 0x%08lx\n", info->ExceptionRecord->ExceptionCode);
    EndWithBacktrace(*info->ContextRecord);
}

void OnAbort(int) {
    BeginReport();
    PrintError("aborted\n");
    CONTEXT context;
    RtlCaptureContext(&context);
    EndWithBacktrace(context);
}

// Wine commits a main thread's stack as a whole and leaves its guard page at the very end, where there is no
// room to call anybody; natively that part is only reserved yet, and the system keeps to the guarantee by
// itself.
void ReserveStack() {
    ULONG reserved = stackForReport;
    SetThreadStackGuarantee(&reserved);
    MEMORY_BASIC_INFORMATION stack{};
    VirtualQuery(&stack, &stack, sizeof stack);
    char* const guard = static_cast<char*>(stack.AllocationBase) + stackForReport;
    MEMORY_BASIC_INFORMATION page{};
    VirtualQuery(guard, &page, sizeof page);
    DWORD before = 0;
    if (page.State == MEM_COMMIT) VirtualProtect(guard, 4096, PAGE_READWRITE | PAGE_GUARD, &before);
}

}  // namespace

void InstallCrashGuard() {
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    ReserveStack();
    AddVectoredExceptionHandler(1, OnException);
    SetUnhandledExceptionFilter(OnUnhandledException);
    std::signal(SIGABRT, OnAbort);
}

void EndStuckProgram(HANDLE thread, const char* what) {
    BeginReport();
    PrintError("stuck: %s\n", what);
    CONTEXT context{};
    context.ContextFlags = CONTEXT_FULL;
    SuspendThread(thread);
    GetThreadContext(thread, &context);
    EndWithBacktrace(context);
}

}  // namespace qz
