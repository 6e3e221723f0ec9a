#ifndef Oddity_H
#define Oddity_H

#include <string>
#include <vector>

namespace Tool
{
/// What is odd about a condition. Without message nothing is.
struct Oddity
{
    std::string message{};
    /// The whole condition as it was probably meant.
    std::string suggestion{};
    /// A name that nothing has, and those among which the one is that was probably meant.
    std::string unknown{};
    std::vector<std::string> known{};
};
} // namespace Tool

#endif
