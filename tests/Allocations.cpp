#include "Allocations.h"

#include <cstdlib>
#include <limits>
#include <new>
#if defined(__SANITIZE_ADDRESS__)
#include <dlfcn.h>
#endif

namespace
{
constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

std::size_t theCount = 0;
std::size_t theFirstToFail = never;
std::size_t theLastToFail = never;
bool wasFaultHit = false;

void countOrFail()
{
    if (++theCount >= theFirstToFail && theCount <= theLastToFail)
    {
        wasFaultHit = true;
        throw std::bad_alloc();
    }
}
} // namespace

std::size_t allocationCount()
{
    return theCount;
}

AllocationFault::AllocationFault(std::size_t n, Reach reach)
{
    wasFaultHit = false;
    theFirstToFail = theCount + n;
    theLastToFail = reach == Reach::One ? theFirstToFail : never - 1;
}

AllocationFault::~AllocationFault()
{
    theFirstToFail = never;
}

bool AllocationFault::wasHit()
{
    return wasFaultHit;
}

#if defined(__SANITIZE_ADDRESS__)
// The sanitizer's own, so that it still sees what is freed another way than it was made.
using Allocator = void* (*)(std::size_t);

void* operator new(std::size_t size)
{
    static auto const next = reinterpret_cast<Allocator>(dlsym(RTLD_NEXT, "_Znwm"));
    countOrFail();
    return next(size);
}

void* operator new[](std::size_t size)
{
    static auto const next = reinterpret_cast<Allocator>(dlsym(RTLD_NEXT, "_Znam"));
    countOrFail();
    return next(size);
}

void* operator new(std::size_t size, std::nothrow_t const&) noexcept
try
{
    return operator new(size);
}
catch (std::bad_alloc const&)
{
    return nullptr;
}
#else
// Those of arrays, and those that throw nothing, call these.
void* operator new(std::size_t size)
{
    countOrFail();
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
