// What the process has allocated, to find what is left behind.
#pragma once

#include <windows.h>

#include <cstddef>

namespace qz {

/// How many blocks of the process's heap are in use.
inline std::size_t HeapBlocksInUse() {
    const HANDLE heap = GetProcessHeap();
    std::size_t blocks = 0;
    HeapLock(heap);
    for (PROCESS_HEAP_ENTRY entry{}; HeapWalk(heap, &entry);) {
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) ++blocks;
    }
    HeapUnlock(heap);
    return blocks;
}

}  // namespace qz
