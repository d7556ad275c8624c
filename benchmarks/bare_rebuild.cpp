#include "benchmarks/bare_rebuild.h"

#include "com/error.h"
#include "host/object_path.h"

namespace qz::bench {

void Check(HRESULT result) { ThrowIfFailed(result, L"A call of the benchmark fails"); }

BareRebuild::BareRebuild(IVandraX* host, long pages) : host_(host), document_(documentPath) {
    for (long page = 1; page <= pages; ++page) paths_.emplace_back(PagePath(page));
}

void BareRebuild::Run() const {
    long value = 0;
    VARIANT attribute;
    Check(host_->GetPageCount(&value));
    Check(host_->SetObjectAttribute(document_.Get(), noContents_.Get(), on_));
    for (const Bstr& path : paths_) {
        Check(host_->GetObjectAttribute(path.Get(), width_.Get(), &attribute));
        Check(host_->GetObjectAttribute(path.Get(), length_.Get(), &attribute));
        Check(host_->GetObjectAttribute(path.Get(), landscape_.Get(), &attribute));
    }
    Check(host_->SetObjectAttribute(document_.Get(), noContents_.Get(), off_));
    Check(host_->GetCurrentPage(&value));
}

}  // namespace qz::bench
