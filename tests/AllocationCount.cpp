#include "AllocationCount.h"

#include <cstdlib>
#include <new>

namespace
{
std::size_t theCount = 0;
}

std::size_t allocationCount()
{
    return theCount;
}

#if !defined(__SANITIZE_ADDRESS__)
void* operator new(std::size_t size)
{
    ++theCount;
    if (void* const memory = std::malloc(size ? size : 1))
    {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
#endif
