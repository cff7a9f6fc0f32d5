#pragma once

#include <malloc.h>

#include <cstddef>

/// How often memory was asked for by `new` since the process began.
std::size_t allocationCount();

/// Bytes in use of the heap, with the allocator's own overhead.
inline std::size_t heapUse()
{
    struct mallinfo2 const info = mallinfo2();
    return info.uordblks + info.hblkhd;
}
