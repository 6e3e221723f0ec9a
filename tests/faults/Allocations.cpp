#include "Allocations.h"

#include <cstdlib>
#include <new>

namespace
{
thread_local constinit long outstanding = 0;
/// Allocations until the first that fails; 0 for none.
thread_local constinit int untilFailure = 0;
thread_local constinit bool failsFromThenOn = false;
thread_local constinit int failures = 0;

bool Fails() noexcept
{
    if (untilFailure == 0 || --untilFailure > 0)
        return false;
    untilFailure = failsFromThenOn ? 1 : 0;
    ++failures;
    return true;
}

void* Allocate(std::size_t iSize, std::size_t iAlignment) noexcept
{
    if (Fails())
        return nullptr;
    // A size of an aligned block is a multiple of its alignment.
    void* const memory = iAlignment == 0
                             ? std::malloc(iSize == 0 ? 1 : iSize)
                             : std::aligned_alloc(iAlignment, (iSize + iAlignment - 1) / iAlignment * iAlignment);
    if (memory != nullptr)
        ++outstanding;
    return memory;
}

void* AllocateOrThrow(std::size_t iSize, std::size_t iAlignment)
{
    void* const memory = Allocate(iSize, iAlignment);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

void Free(void* iMemory) noexcept
{
    if (iMemory == nullptr)
        return;
    --outstanding;
    std::free(iMemory);
}
} // namespace

void Allocations::FailFrom(int iFirst, bool iAll) noexcept
{
    failures = 0;
    failsFromThenOn = iAll;
    untilFailure = iFirst;
}

int Allocations::StopFailing() noexcept
{
    untilFailure = 0;
    return failures;
}

long Allocations::Outstanding() noexcept
{
    return outstanding;
}

// The forms for arrays come down to these.
void* operator new(std::size_t iSize)
{
    return AllocateOrThrow(iSize, 0);
}

void* operator new(std::size_t iSize, std::align_val_t iAlignment)
{
    return AllocateOrThrow(iSize, static_cast<std::size_t>(iAlignment));
}

void* operator new(std::size_t iSize, const std::nothrow_t&) noexcept
{
    return Allocate(iSize, 0);
}

void* operator new(std::size_t iSize, std::align_val_t iAlignment, const std::nothrow_t&) noexcept
{
    return Allocate(iSize, static_cast<std::size_t>(iAlignment));
}

void operator delete(void* iMemory) noexcept
{
    Free(iMemory);
}

void operator delete(void* iMemory, std::size_t) noexcept
{
    Free(iMemory);
}

void operator delete(void* iMemory, std::align_val_t) noexcept
{
    Free(iMemory);
}

void operator delete(void* iMemory, std::size_t, std::align_val_t) noexcept
{
    Free(iMemory);
}
