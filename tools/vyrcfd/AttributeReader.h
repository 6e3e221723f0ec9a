#ifndef AttributeReader_H
#define AttributeReader_H

/**
 * @file
 * Reading attributes out of a model.
 */

#include <functional>
#include <string>
#include <vector>

#include "ORXISpecAttrAccess.h"
#include "ORXIValue.h"
#include "VYRStandaloneCatalog.h"
#include "Value.h"

namespace Tool
{
/// Gives the path of an object that an attribute refers to.
using PathOfObject = std::function<std::string(const ORXISpecObject_var&)>;

/// A value of a scalar attribute, also one that default management gives. Null and what is not valuated are unset.
Value ValueOf(const ORXICkeInst_var& iValue, int iType);

/// The value of any attribute.
Value ReadAttribute(const ORXISpecAttrAccess_var& iAccess, const VYRStandalone::AttributeInfo& iAttribute,
                    const PathOfObject& iPathOf);

/// The object of an attribute that holds one; null where it is empty, and for what is no object.
ORXISpecObject_var ReadObject(const ORXISpecAttrAccess_var& iAccess, const std::string& iAttribute);

/// The entries of a list of objects, null for an empty one.
std::vector<ORXISpecObject_var> ReadObjects(const ORXISpecAttrAccess_var& iAccess, const std::string& iAttribute);

/// Whether the attribute may hold values as scalars do, and so may have a default.
bool IsScalar(int iType);
} // namespace Tool

#endif
