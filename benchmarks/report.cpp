#include "benchmarks/report.h"

#include <cstdio>

namespace qz::bench {

namespace {

std::string Microseconds(double value) {
    char text[32];
    std::snprintf(text, sizeof text, value < 10 ? "%.3f us" : "%.1f us", value);
    return text;
}

std::string Bytes(std::size_t value) { return std::to_string(value) + " B"; }

}  // namespace

Report::Report() {
    std::printf("%-58s | %13s | %13s | %6s | %6s |\n", "name", "measured", "reference", "ratio", "limit");
}

void Report::AddTime(const std::string& name, const Pair& microseconds, double limit) {
    Add(name, Microseconds(microseconds.measured), Microseconds(microseconds.reference),
        microseconds.measured / microseconds.reference, limit);
}

void Report::AddSize(const std::string& name, std::size_t bytes, std::size_t allowed) {
    Add(name, Bytes(bytes), Bytes(allowed), static_cast<double>(bytes) / static_cast<double>(allowed), 1.0);
}

void Report::Add(const std::string& name, const std::string& measured, const std::string& reference,
                 double ratio, double limit) {
    const bool over = ratio > limit;
    if (over) over_.push_back(name);
    std::printf("%-58s | %13s | %13s | %6.2f | %6.2f | %s\n", name.c_str(), measured.c_str(),
                reference.c_str(), ratio, limit, over ? "OVER" : "ok");
    std::fflush(stdout);
}

void Report::PrintSummary() const {
    if (over_.empty()) std::printf("All within their limits.\n");
    for (const std::string& name : over_) std::printf("Over its limit: %s\n", name.c_str());
}

}  // namespace qz::bench
