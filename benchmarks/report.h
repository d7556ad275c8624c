// The table of results.
#pragma once

#include "benchmarks/measure.h"

#include <string>
#include <vector>

namespace qz::bench {

/// Prints each result as it comes, and remembers which exceed their limit.
class Report {
  public:
    Report();

    /// A time against a reference; `limit` is the largest ratio allowed.
    void AddTime(const std::string& name, const Pair& microseconds, double limit);

    /// A size against the largest allowed.
    void AddSize(const std::string& name, std::size_t bytes, std::size_t allowed);

    /// Prints the names of those over their limit.
    void PrintSummary() const;

  private:
    void Add(const std::string& name, const std::string& measured, const std::string& reference, double ratio,
             double limit);

    std::vector<std::string> over_;
};

}  // namespace qz::bench
