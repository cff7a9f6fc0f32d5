#include "Allocations.h"

#include <cstdlib>
#include <limits>
#include <new>

#include <expat.h>

namespace
{
constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

std::size_t theCount = 0;
std::size_t theFirstToFail = never;
std::size_t theLastToFail = never;
bool wasFaultHit = false;

bool isToFail()
{
    bool const isDue = ++theCount >= theFirstToFail && theCount <= theLastToFail;
    wasFaultHit = wasFaultHit || isDue;
    return isDue;
}

std::size_t theLiveCount = 0;

void* counted(void* memory)
{
    if (memory == nullptr)
    {
        throw std::bad_alloc();
    }
    ++theLiveCount;
    return memory;
}

void release(void* memory)
{
    theLiveCount -= memory != nullptr ? 1 : 0;
    std::free(memory);
}

void countOrFail()
{
    if (isToFail())
    {
        throw std::bad_alloc();
    }
}

std::size_t theParserCount = 0;

bool isParserToFail()
{
    ++theParserCount;
    return isToFail();
}

void* parserMalloc(std::size_t size)
{
    return isParserToFail() ? nullptr : std::malloc(size);
}

void* parserRealloc(void* memory, std::size_t size)
{
    return isParserToFail() ? nullptr : std::realloc(memory, size);
}
} // namespace

std::size_t allocationCount()
{
    return theCount;
}

std::size_t parserAllocationCount()
{
    return theParserCount;
}

std::size_t liveAllocations()
{
    return theLiveCount;
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

// Stands in front of the XML parser's own for everything in the process.
extern "C" __attribute__((visibility("default"))) XML_Parser XML_ParserCreate(XML_Char const* encoding)
{
    static XML_Memory_Handling_Suite const memory{parserMalloc, parserRealloc, std::free};
    return XML_ParserCreate_MM(encoding, &memory, nullptr);
}

// All of them: a sanitizer has its own of each, which must not meet these.
void* operator new(std::size_t size)
{
    countOrFail();
    return counted(std::malloc(size ? size : 1));
}

void* operator new[](std::size_t size)
{
    return operator new(size);
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

void* operator new[](std::size_t size, std::nothrow_t const& tag) noexcept
{
    return operator new(size, tag);
}

void operator delete(void* memory) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    release(memory);
}

void operator delete[](void* memory) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::nothrow_t const&) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::nothrow_t const&) noexcept
{
    release(memory);
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    countOrFail();
    auto const unit = static_cast<std::size_t>(alignment);
    return counted(std::aligned_alloc(unit, (size + unit - 1) / unit * unit));
}

void* operator new[](std::size_t size, std::align_val_t alignment)
{
    return operator new(size, alignment);
}

void operator delete(void* memory, std::align_val_t) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::align_val_t) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept
{
    release(memory);
}
