#ifndef EntryList_H
#define EntryList_H

/**
 * @file
 * A list attribute whose entries come and go.
 */

#include <string>

#include "ORXISpecAttrAccess.h"
#include "ObjectPath.h"
#include "VYRStandaloneCatalog.h"

namespace Tool
{
/// Positions count from 1.
class EntryList
{
public:
    /// @param iPath of the attribute, for messages @throws Failure for an attribute that is no list
    EntryList(const Target& iTarget, std::string iPath);

    const VYRStandalone::AttributeInfo& Info() const noexcept { return m_info; }
    /// An entry as an attribute of its own.
    VYRStandalone::AttributeInfo EntryInfo() const;
    bool HoldsObjects() const;
    bool HoldsParts() const;
    int Size() const { return m_access->GetListSize(m_key); }

    /// @param iLast the largest that is allowed @throws Failure for what is no position up to that
    int Position(const std::string& iText, int iLast) const;

    /// The object at a position, null for an empty entry.
    ORXISpecObject_var At(int iPosition) const;
    /// How often an object stands in the list.
    int Count(const ORXISpecObject_var& iObject) const;

    // @throws Failure
    void Insert(const ORXISpecObject_var& iObject, int iPosition) const;
    void Insert(const std::string& iText, int iPosition) const;
    void Remove(int iPosition) const;
    /// Writes an entry of a list of numbers, booleans or an enumeration once more, so that its object is told of it.
    void Touch(int iPosition) const;

private:
    std::string m_path;
    ORXISpecAttrAccess_var m_access;
    ORXISpecAttrKey_var m_key;
    VYRStandalone::AttributeInfo m_info;
};

/// The attribute that the target names. @throws Failure for an object
VYRStandalone::AttributeInfo InfoOf(const Target& iTarget);
} // namespace Tool

#endif
