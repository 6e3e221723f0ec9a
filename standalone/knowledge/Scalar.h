#ifndef Scalar_H
#define Scalar_H

/**
 * @file
 * Plain values, as slots and declarations hold them.
 */

#include <string>
#include <variant>

#include "ORXUnicodeString.h"

namespace VYRStandalone
{
/// A stored value: nothing (unset), a real, an integer or the number of an enumeration's text, a boolean, a text.
using Scalar = std::variant<std::monostate, double, int, bool, ORXUnicodeString>;

/// A value as a document writes it: enumerations by their texts, reals as numbers or as number texts.
using DeclaredScalar = std::variant<std::monostate, double, int, bool, std::string>;
} // namespace VYRStandalone

#endif
