#include "LiteralScan.h"

#include <memory>

namespace Bench
{
HRESULT LiteralScan(const ORXISpecAttrAccess_var& iAccess, const ORXISpecAttrKey_var& iKey,
                    const std::vector<VYRCfdObjectAccess>& iWanted)
{
    const std::unique_ptr<ORXListValORXBaseUnknown_var> mirror(iAccess->ListObjects(iKey, 0));
    ORXListValORXBaseUnknown_var& stored = *mirror;
    bool isChanged = false;
    const int count = static_cast<int>(iWanted.size());
    for (int place = 1; place <= count; ++place)
    {
        const ORXBaseUnknown_var wanted = iWanted[static_cast<std::size_t>(place) - 1].Self();
        bool isFound = false;
        for (int position = place; position <= stored.Size(); ++position)
        {
            if (wanted->IsEqual(stored[position]) == 0)
                continue;
            isFound = true;
            if (position == place)
                continue;
            isChanged = true;
            if (iAccess->MoveInPosition(iKey, stored[position], place) < 0)
                return E_FAIL;
            stored.RemovePosition(position);
            stored.InsertAt(place, wanted);
        }
        if (isFound)
            continue;
        isChanged = true;
        if (iAccess->InsertAtPosition(iKey, wanted, place) < 0)
            return E_FAIL;
        stored.InsertAt(place, wanted);
    }
    for (int position = stored.Size(); position > count; --position)
    {
        isChanged = true;
        iAccess->RemovePosition(iKey, position);
    }
    return isChanged ? S_OK : S_FALSE;
}
} // namespace Bench
