#ifndef ConditionFixture_H
#define ConditionFixture_H

/**
 * @file
 * An object with one attribute of each kind, for conditions to look at.
 */

#include <string>
#include <vector>

#include "ModuleTest.h"
#include "VYRCfdObjectCondition.h"

/**
 * The object's attributes are named by their kinds: "real", "integer", "string", "boolean", "enumeration" (upwind,
 * central), all unset; "component" (an object with the integer "inner"), "reference" (empty); and the lists "reals",
 * "objects" (components) and "columns" (components, for table columns).
 */
class ConditionFixture : public ModuleTest
{
protected:
    void SetUp() override;

    VYRCfdObjectAccess Object() const { return Cursor(m_object); }
    /// Writes an attribute from text, as its kind reads it; null takes the value away.
    void Write(const char* iAttribute, const char* iValue);
    /// Makes a condition on the object and evaluates it.
    bool Holds(const char* iText) const { return VYRCfdObjectCondition(Object(), iText); }

    /// Puts a table column of that display name into the list "columns", in place of what is there.
    /// @return the cursor at the list
    VYRCfdObjectAccess ColumnNamed(const char* iAlias, const std::vector<double>& iRows) const;

    ORXISpecObject_var m_object;
};

#endif
