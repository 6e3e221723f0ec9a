#ifndef DocumentEntry_H
#define DocumentEntry_H

/**
 * @file
 * Entries of lists in the text of a model.
 */

#include <optional>
#include <string>

#include "ObjectPath.h"
#include "VYRStandaloneCatalog.h"

namespace Tool
{
/**
 * The text of a model with one more entry in a list of numbers, booleans or texts of an enumeration. The host's
 * interfaces lengthen lists of texts and of objects only.
 * @param iEntry the attribute with the kind of its entries
 * @param iPosition from 1, at most one behind the last
 * @return nothing for a text that is no value of that kind; whether a unit fits is found out by who reads the result
 */
std::optional<std::string> WithEntry(const VYRStandalone::Model& iModel, const Target& iList,
                                     const VYRStandalone::AttributeInfo& iEntry, const std::string& iText,
                                     int iPosition);
} // namespace Tool

#endif
