/**
 * @file
 * Containers, and the creation of objects in them.
 */

#include "Component.h"
#include "ORXSimBCInitializeServices.h"
#include "SecondHost.h"

namespace SecondHost
{
namespace
{
class Container final : public Component<ORXIContainer>
{
public:
    ORXListValORXBaseUnknown_var* ListMembers(const ORXUnicodeString& iType) override
    {
        auto* const list = new ORXListValORXBaseUnknown_var;
        for (const ORXISpecObject_var& object : members)
            if (iType.IsEmpty() || object->IsSubTypeOf(iType) != ORXFalse)
                list->Append(object);
        return list;
    }

    std::vector<ORXISpecObject_var> members;
};

std::vector<ORXISpecObject_var>& MembersOf(const ORXIContainer_var& iContainer)
{
    return static_cast<Container*>(iContainer.Pointer())->members;
}
} // namespace

ORXIContainer_var MakeContainer()
{
    return ORXIContainer_var::Adopt(new Container);
}

void Close(const ORXIContainer_var& iContainer)
{
    MembersOf(iContainer).clear();
}
} // namespace SecondHost

HRESULT ORXSimBCInitializeServices::CreateBasicComponent(const ORXUnicodeString& iType, const ORXUnicodeString& iName,
                                                         ORXIContainer_var& ioContainer, ORXISpecObject_var& oObject)
{
    oObject = SecondHost::Make(iType, iName);
    if (!oObject || !ioContainer)
        return E_FAIL;
    SecondHost::MembersOf(ioContainer).push_back(oObject);
    return S_OK;
}
