#ifndef ListFixture_H
#define ListFixture_H

/**
 * @file
 * An object with one attribute of each kind and one list of each kind, and shorthands for filling and reading them.
 */

#include <string>
#include <vector>

#include "ModuleTest.h"

using Names = std::vector<std::string>;

/**
 * The owner's attributes: "title", "ratio", "count", "flag", "scheme" (an enumeration), "part" (component), "material"
 * (reference); and the lists "titles", "ratios", "counts", "flags", "schemes", "parts" (components), "references".
 */
class ListFixture : public ModuleTest
{
protected:
    void SetUp() override;

    /// Starts anew with an owner of these values, written as in a model file.
    void Load(const std::string& iValues);

    /// The cursor at an attribute of the owner, also at one that holds an object.
    VYRCfdObjectAccess At(const char* iAttribute) const;

    /// The part of that name, made when it is asked for first.
    ORXISpecObject_var Part(const std::string& iName);
    ORXBaseUnknown_var Unknown(const std::string& iName) { return Part(iName); }
    /// Cursors on parts; the empty name gives an error cursor.
    std::vector<VYRCfdObjectAccess> Parts(const Names& iNames);

    /// Makes a list of objects hold the named parts, by the attribute store; the empty name gives an empty entry.
    void Fill(const char* iList, const Names& iNames);
    /// What a list of objects holds, by the attribute store.
    Names Held(const char* iList) const;

    ORXISpecAttrKey_var KeyOf(const char* iAttribute) const;

    ORXISpecObject_var m_owner;
    ORXISpecAttrAccess_var m_access;

private:
    std::vector<ORXISpecObject_var> m_parts;
};

/// A list of handles, with null for null.
ORXListValORXBaseUnknown_var HandleList(const std::vector<ORXBaseUnknown_var>& iHandles);

#endif
