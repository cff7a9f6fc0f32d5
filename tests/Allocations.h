#pragma once

#include <malloc.h>

#include <cstddef>

/// How often memory was asked for, by `new` or by the XML parser, since the process began.
std::size_t allocationCount();
/// How often by the XML parser.
std::size_t parserAllocationCount();
/// How many of those by `new` are still in use.
std::size_t liveAllocations();

/// Bytes in use of the heap, with the allocator's own overhead, which comes and goes with the order of blocks.
inline std::size_t heapUse()
{
    struct mallinfo2 const info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// As long as one lives, the n-th allocation from its construction on fails, alone or with all that follow it; those
/// of the XML parser among them.
class AllocationFault
{
public:
    enum class Reach
    {
        One,
        AllFromThere
    };
    AllocationFault(std::size_t n, Reach reach);
    AllocationFault(AllocationFault const&) = delete;
    AllocationFault& operator=(AllocationFault const&) = delete;
    ~AllocationFault();

    /// Whether the n-th was reached; also after its end.
    static bool wasHit();
};
