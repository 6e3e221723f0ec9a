#include "Allocations.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace
{
std::size_t allocations = 0;

void* Allocate(std::size_t iSize) noexcept
{
    ++allocations;
    return std::malloc(iSize != 0 ? iSize : 1);
}
} // namespace

// The forms for arrays and those with a size lead to these.
void* operator new(std::size_t iSize)
{
    if (void* const memory = Allocate(iSize))
        return memory;
    throw std::bad_alloc();
}

void* operator new(std::size_t iSize, const std::nothrow_t&) noexcept
{
    return Allocate(iSize);
}

void operator delete(void* iMemory) noexcept
{
    std::free(iMemory);
}

void operator delete(void* iMemory, std::size_t) noexcept
{
    std::free(iMemory);
}

namespace Bench
{
std::size_t Allocations() noexcept
{
    return allocations;
}

std::size_t LiveBytes() noexcept
{
    const struct mallinfo2 information = mallinfo2();
    return information.uordblks + information.hblkhd;
}
} // namespace Bench
