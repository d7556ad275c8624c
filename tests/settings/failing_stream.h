// A stream that fails on demand.
#pragma once

#include "com/object.h"

#include <objidl.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace qz {

/// Gives `text`, takes what is written, at most `step` bytes a call; the call with number `failing` fails.
class FailingStream final : public Object<FailingStream, IStream> {
  public:
    FailingStream(HRESULT failure, int failing, std::string text = {}, std::size_t step = 100)
        : failure_(failure), failing_(failing), text_(std::move(text)), step_(step) {}

    STDMETHODIMP Read(void* buffer, ULONG size, ULONG* read) override {
        *read = 0;
        if (calls_++ == failing_) return failure_;
        const std::size_t part = std::min({std::size_t{size}, step_, text_.size() - place_});
        std::memcpy(buffer, text_.data() + place_, part);
        place_ += part;
        *read = static_cast<ULONG>(part);
        return S_OK;
    }
    STDMETHODIMP Write(const void* bytes, ULONG size, ULONG* written) override {
        *written = 0;
        if (calls_++ == failing_) return failure_;
        const std::size_t part = std::min(std::size_t{size}, step_);
        text_.append(static_cast<const char*>(bytes), part);
        *written = static_cast<ULONG>(part);
        return S_OK;
    }
    STDMETHODIMP Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*) override { return E_NOTIMPL; }
    STDMETHODIMP SetSize(ULARGE_INTEGER) override { return E_NOTIMPL; }
    STDMETHODIMP CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP Commit(DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Revert() override { return E_NOTIMPL; }
    STDMETHODIMP LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Clone(IStream**) override { return E_NOTIMPL; }

    const std::string& Text() const noexcept { return text_; }
    int Calls() const noexcept { return calls_; }

  private:
    HRESULT failure_;
    int failing_;
    std::string text_;
    std::size_t step_;
    std::size_t place_ = 0;
    int calls_ = 0;
};

}  // namespace qz
