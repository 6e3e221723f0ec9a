#ifndef VYRCfdListArrangement_H
#define VYRCfdListArrangement_H

/**
 * @file
 * One replacement of a list of objects by another.
 */

#include <memory>
#include <vector>

#include "ORXIComponentIdentity.h"
#include "ORXListValORXBaseUnknown_var.h"
#include "VYRCfdListTail.h"
#include "VYRCfdObjectAccess.h"

/**
 * Makes a list attribute hold the objects of cursors in their order, with as few writes as a scan finds: for each place
 * it looks through the rest of the list for the object, and moves to the place what it meets. That compares each object
 * with each, unless the host tells identities: then the same calls, in the same order, are found without comparing.
 */
class VYRCfdBaseLocal VYRCfdListArrangement
{
public:
    /// All arguments are borrowed. @param iFunction under which failures are reported
    VYRCfdListArrangement(const char* iFunction, const ORXISpecAttrAccess_var& iAttr, const ORXISpecAttrKey_var& iKey,
                          const std::vector<VYRCfdObjectAccess>& iObjects);

    /// @return S_FALSE if the list is as wanted already
    HRESULT Go();

private:
    /// Writes nothing. @return false if the objects have to be compared one by one
    bool Identify();
    std::size_t CountWanted() const noexcept { return m_inPlace + m_wanted.size(); }
    HRESULT PlaceByIdentity();
    HRESULT PlaceByScan();
    HRESULT Scan(const ORXBaseUnknown_var& iWanted, int iPlace);

    HRESULT CheckWanted(bool iIsObject) const;
    HRESULT Move(int j, int i);
    HRESULT Insert(const ORXBaseUnknown_var& iWanted, int i);

    const char* m_function;
    // Named as the reports show them.
    const ORXISpecAttrAccess_var& _spAttr;
    const ORXISpecAttrKey_var& _spKey;
    const std::vector<VYRCfdObjectAccess>& iObjects;
    /// As stored; the scan has it follow the attribute.
    std::unique_ptr<ORXListValORXBaseUnknown_var> pVals;

    /// Of the attribute, as it changes.
    int m_size;
    bool m_isChanged = false;

    std::unique_ptr<VYRCfdListTail> m_tail;
    /// So many wanted objects at the front are stored in the same order.
    std::size_t m_inPlace = 0;
    /// Identities of the wanted objects behind them, up to the first cursor without an object.
    std::vector<const void*> m_wanted;
};

#endif
