#include "host/auto_refresh.h"

namespace qz {

qzVandraAutoRefresh::qzVandraAutoRefresh(IVandraX* host, long flag, AtEnd atEnd)
    : host_(host), atEnd_(atEnd) {
    if (!host) Throw(E_POINTER, L"There is no host");
    ThrowIfFailed(host->GetAutoRefresh(&saved_), L"The host does not tell its automatic refresh");
    ThrowIfFailed(host->SetAutoRefresh(flag), L"The host does not set its automatic refresh");
}

qzVandraAutoRefresh::~qzVandraAutoRefresh() {
    // A host left without automatic refresh looks frozen to the user: one failure is not taken as final.
    if (FAILED(host_->SetAutoRefresh(saved_))) host_->SetAutoRefresh(saved_);
    if (atEnd_ == AtEnd::Refresh) host_->Refresh();
}

}  // namespace qz
