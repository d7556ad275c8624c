// The memory of one XML reader.
#pragma once

#include "com/object.h"

#include <objidl.h>

#include <memory_resource>

namespace qz {

/// A reader allocates and frees several short strings for every node, which takes the system's allocator half
/// of the reading time. Here they come from a pool that goes with the reader. For one thread.
class ReaderMemory final : public Object<ReaderMemory, IMalloc> {
  public:
    STDMETHODIMP_(void*) Alloc(SIZE_T size) override;
    STDMETHODIMP_(void*) Realloc(void* block, SIZE_T size) override;
    STDMETHODIMP_(void) Free(void* block) override;
    STDMETHODIMP_(SIZE_T) GetSize(void* block) override;
    STDMETHODIMP_(int) DidAlloc(void*) override { return -1; }  // not known
    STDMETHODIMP_(void) HeapMinimize() override {}

  private:
    std::pmr::unsynchronized_pool_resource pool_;
};

}  // namespace qz
