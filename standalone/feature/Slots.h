#ifndef Slots_H
#define Slots_H

/**
 * @file
 * What the slots of attributes hold that are no values; those of values are `AttributeParm`.
 */

#include <variant>
#include <vector>

#include "ORXListValORXBaseUnknown_var.h"
#include "ORXUnicodeString.h"

namespace VYRStandalone
{
class FeatureObject;

/// Entries of a list: reals; integers, booleans or numbers of enumeration texts; texts; objects, null for an empty
/// entry. The alternative is fixed by the attribute's entry type.
using ListEntries =
    std::variant<std::vector<double>, std::vector<int>, std::vector<ORXUnicodeString>, std::vector<FeatureObject*>>;

/// The object is held by a reference, also when it is only referred to.
struct ObjectSlot
{
    FeatureObject* object = nullptr;
};

/// Objects among the entries are held by one reference an entry.
struct ListSlot
{
    ListEntries entries;
    /// Lists for which these references hold the objects.
    ORXListValORXBaseUnknown_var::Borrowers borrowers = nullptr;

    /// Before one of the references goes.
    void SettleBorrowers() const noexcept { ORXListValORXBaseUnknown_var::Settle(borrowers); }
};
} // namespace VYRStandalone

#endif
