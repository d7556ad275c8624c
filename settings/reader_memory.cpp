#include "settings/reader_memory.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>

namespace qz {

namespace {

/// What stands before each block: a pool wants to be told its size when it goes back.
struct alignas(std::max_align_t) Header {
    SIZE_T size;
};

Header* HeaderOf(void* block) noexcept { return static_cast<Header*>(block) - 1; }

}  // namespace

STDMETHODIMP_(void*) ReaderMemory::Alloc(SIZE_T size) {
    if (size > static_cast<SIZE_T>(-1) - sizeof(Header)) return nullptr;
    try {
        return new (pool_.allocate(sizeof(Header) + size)) Header{size} + 1;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

STDMETHODIMP_(void*) ReaderMemory::Realloc(void* block, SIZE_T size) {
    if (!block) return Alloc(size);
    if (size == 0) {
        Free(block);
        return nullptr;
    }
    void* moved = Alloc(size);
    if (!moved) return nullptr;
    std::memcpy(moved, block, std::min(size, GetSize(block)));
    Free(block);
    return moved;
}

STDMETHODIMP_(void) ReaderMemory::Free(void* block) {
    if (block) pool_.deallocate(HeaderOf(block), sizeof(Header) + HeaderOf(block)->size);
}

STDMETHODIMP_(SIZE_T) ReaderMemory::GetSize(void* block) {
    return block ? HeaderOf(block)->size : static_cast<SIZE_T>(-1);
}

}  // namespace qz
