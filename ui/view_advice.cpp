#include "ui/view_advice.h"

namespace qz {

void ViewAdvice::Set(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept {
    const ComPtr<IAdviseSink> before = std::move(sink_);  // released when the new one is in place
    aspects_ = aspects;
    flags_ = flags;
    sink_ = sink;
    if (sink && (flags & ADVF_PRIMEFIRST)) Notify();
}

void ViewAdvice::Get(DWORD* aspects, DWORD* flags, IAdviseSink** sink) const noexcept {
    if (aspects) *aspects = aspects_;
    if (flags) *flags = flags_;
    if (sink) ComPtr<IAdviseSink>(sink_).CopyTo(sink);
}

void ViewAdvice::Notify() noexcept {
    const ComPtr<IAdviseSink> sink = sink_;
    if (!sink || !(aspects_ & DVASPECT_CONTENT)) return;
    if (flags_ & ADVF_ONLYONCE) sink_.Reset();
    sink->OnViewChange(DVASPECT_CONTENT, -1);
}

}  // namespace qz
