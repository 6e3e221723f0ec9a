#ifndef Suggestions_H
#define Suggestions_H

/**
 * @file
 * What was probably meant by a name that nothing has.
 */

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Finding.h"

namespace Tool
{
/**
 * Seeks the known name that an unknown one is most like. All together make a limited number of comparisons, so that a
 * check of much that is wrong still takes a time in proportion; what comes later goes without a suggestion.
 */
class Suggestions
{
public:
    /// Enters the name that is most like into the finding; where none is, lists the known ones in its message.
    void Complete(Finding& ioFinding, std::string_view iUnknown, const std::vector<std::string>& iKnown);

    /// The same as `OnlySlip` of many names.
    std::string OnlySlipOf(std::string_view iUnknown, const std::vector<std::string>& iKnown);

private:
    std::size_t m_comparisonsLeft = 1'000'000;
};

/// Whether an unknown name differs from a known one by a single slip of the hand, and in more than its digits: a letter
/// too much, too little or wrong, two that are swapped, or capital letters.
bool IsSingleSlip(std::string_view iUnknown, std::string_view iKnown);

/// The known name that an unknown one differs from by a single slip, and that must be the one; empty where none is that
/// near, or several are.
std::string OnlySlip(std::string_view iUnknown, const std::vector<std::string>& iKnown);
} // namespace Tool

#endif
