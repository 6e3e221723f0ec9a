#ifndef FileName_H
#define FileName_H

#include <string_view>

/// The last part of a path, by which planted faults know a file.
inline std::string_view FileName(std::string_view iPath) noexcept
{
    return iPath.substr(iPath.rfind('/') + 1); // npos + 1 is 0: the whole path
}

#endif
