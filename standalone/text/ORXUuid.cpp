#include "ORXUuid.h"

#include <cstring>
#include <random>
#include <sys/random.h>

namespace
{
/// For a kernel that has no call for random bytes.
void FillFromDevice(unsigned char* oBytes, std::size_t iCount)
{
    std::random_device device;
    for (std::size_t i = 0; i < iCount; ++i)
        oBytes[i] = static_cast<unsigned char>(device());
}
} // namespace

ORXUuid::ORXUuid() : m_bytes{}
{
    // So few bytes are given at once or not at all.
    if (getrandom(m_bytes, sizeof(m_bytes), 0) != static_cast<ssize_t>(sizeof(m_bytes)))
        FillFromDevice(m_bytes, sizeof(m_bytes));
}

void ORXUuid::get(unsigned char* oBytes) const noexcept
{
    std::memcpy(oBytes, m_bytes, sizeof(m_bytes));
}
