// Suspends the host's automatic refresh for a scope.
#pragma once

#include "com/object.h"

#include "generated/vandra_x.h"

namespace qz {

/// Sets the host's automatic-refresh flag for the life of this object and restores it at the end, also when
/// the guarded work throws. Throws E_POINTER without a host, and the host's failure when it does not take the
/// flag.
class qzVandraAutoRefresh {
  public:
    enum class AtEnd { LeaveView, Refresh };

    explicit qzVandraAutoRefresh(IVandraX* host, long flag = 0, AtEnd atEnd = AtEnd::LeaveView);
    ~qzVandraAutoRefresh();
    qzVandraAutoRefresh(const qzVandraAutoRefresh&) = delete;
    qzVandraAutoRefresh& operator=(const qzVandraAutoRefresh&) = delete;

  private:
    ComPtr<IVandraX> host_;
    long saved_ = 0;
    AtEnd atEnd_;
};

}  // namespace qz
