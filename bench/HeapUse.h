#pragma once

#include <malloc.h>

#include <cstddef>

/// Bytes in use of the heap, with the allocator's own overhead.
inline std::size_t heapUse()
{
    struct mallinfo2 const info = mallinfo2();
    return info.uordblks + info.hblkhd;
}
