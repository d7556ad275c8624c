// Measures how the module's times and sizes compare to what they could be at best. Limits exceeded are told,
// and are no failure: times vary from machine to machine. The exit code is 1 when something cannot run.
#include "benchmarks/subjects.h"
#include "com/error.h"
#include "tests/support/crash_guard.h"

#include <ole2.h>

#include <cstdio>

namespace {

using namespace qz;
using namespace qz::bench;

void RunAll() {
    Report report;
    MeasureRebuild(report);
    MeasureSelecting(report);
    MeasureDeletion(report);
    MeasureGrowth(report);
    MeasurePictures(report);
    MeasureCopying(report);
    MeasureLayers(report);
    MeasureOutline(report);
    MeasureInspector(report);
    MeasureDocumentSettings(report);
    MeasureFormatting(report);
    MeasureXml(report);
    report.PrintSummary();
}

/// A user-interface thread's apartment with OLE.
class OleThread {
  public:
    OleThread() { ThrowIfFailed(OleInitialize(nullptr), L"OLE cannot be started"); }
    ~OleThread() { OleUninitialize(); }
    OleThread(const OleThread&) = delete;
    OleThread& operator=(const OleThread&) = delete;
};

}  // namespace

int main() {
    InstallCrashGuard();
    try {
        const OleThread ole;
        RunAll();
        return 0;
    } catch (const ComError& error) {
        std::fprintf(stderr, "benchmarks: %ls\n", error.text.c_str());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "benchmarks: %s\n", error.what());
    }
    return 1;
}
