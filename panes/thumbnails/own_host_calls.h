// The pane's own calls to its host.
#pragma once

#include "com/error.h"

#include "generated/vandra_x.h"

namespace qz {

/// Marks a stretch in which the pane itself calls the host.
class OwnHostCalls {
  public:
    explicit OwnHostCalls(int& depth) noexcept : depth_(depth) { ++depth_; }
    ~OwnHostCalls() { --depth_; }
    OwnHostCalls(const OwnHostCalls&) = delete;
    OwnHostCalls& operator=(const OwnHostCalls&) = delete;

  private:
    int& depth_;
};

inline long PageCountOf(IVandraX* host) {
    long count = 0;
    ThrowIfFailed(host->GetPageCount(&count), L"The host does not tell the number of pages");
    return count;
}

}  // namespace qz
