#include "ObjectRemoval.h"

#include <unordered_set>
#include <vector>

#include "AttributeReader.h"
#include "Failure.h"
#include "ModelSurvey.h"
#include "ORXTypeCode.h"
#include "VYRStandaloneCatalog.h"
#include "Wording.h"

namespace Tool
{
namespace
{
using Objects = std::vector<ORXISpecObject_var>;
using Roots = std::unordered_set<ORXBaseUnknown*>;

/// Kind of the objects that an attribute holds, also as entries.
int ObjectKind(const VYRStandalone::AttributeInfo& iAttribute)
{
    return iAttribute.type == tk_list ? iAttribute.listType : iAttribute.type;
}

/// One attribute of one object, which holds objects of which some are to go.
class Holder
{
public:
    Holder(const ORXISpecObject_var& iObject, const VYRStandalone::AttributeInfo& iAttribute)
        : m_access(iObject), m_attribute(iAttribute),
          m_key(ORXISpecAttrKey_var::Adopt(m_access->GetAttrKey(iAttribute.name.c_str())))
    {
    }

    Objects Held() const
    {
        if (m_attribute.type == tk_list)
            return ReadObjects(m_access, m_attribute.name);
        return {ReadObject(m_access, m_attribute.name)};
    }

    void GiveUp(const Roots& iGoing) const
    {
        const Objects held = Held();
        // From the end, so that positions stay what they are.
        for (std::size_t i = held.size(); i > 0; --i)
            if (!!held[i - 1] && iGoing.count(held[i - 1]->GetImpl(0)) != 0)
                GiveUpEntry(static_cast<int>(i));
    }

private:
    void GiveUpEntry(int iPosition) const
    {
        const long status = m_attribute.type == tk_list ? m_access->RemovePosition(m_key, iPosition)
                                                        : m_access->SetSpecObject(m_key, ORXISpecObject_var());
        if (status < 0)
            throw Failure("the object could not be taken out of " + Quoted(m_attribute.name));
    }

    ORXISpecAttrAccess_var m_access;
    const VYRStandalone::AttributeInfo& m_attribute;
    ORXISpecAttrKey_var m_key;
};

/// Gives each attribute of an object that holds objects of the kind to a function.
template <class Use> void ForHolders(const ORXISpecObject_var& iObject, int iKind, Use iUse)
{
    if (!ORXISpecAttrAccess_var(iObject))
        return;
    for (const VYRStandalone::AttributeInfo& attribute : VYRStandalone::Attributes(iObject))
        if (ObjectKind(attribute) == iKind)
            iUse(Holder(iObject, attribute));
}

/// The objects and everything that they own.
Objects WithParts(Objects iObjects)
{
    // Not recursive: a model may own objects to any depth.
    for (std::size_t next = 0; next < iObjects.size(); ++next)
        ForHolders(ORXISpecObject_var(iObjects[next]), tk_component, [&](const Holder& iHolder) {
            for (const ORXISpecObject_var& part : iHolder.Held())
                if (!!part)
                    iObjects.push_back(part);
        });
    return iObjects;
}

Roots RootsOf(const Objects& iObjects)
{
    Roots roots;
    for (const ORXISpecObject_var& object : iObjects)
        roots.insert(object->GetImpl(0));
    return roots;
}

/// A top-level object goes with a model that it is given to as a component, since models give up only components.
void GiveAway(const ORXISpecObject_var& iObject)
{
    VYRStandalone::Model other;
    const ORXISpecAttrAccess_var spAccess = other.Create("VYRCfdChoice", "bin");
    const ORXISpecAttrKey_var spKey = ORXISpecAttrKey_var::Adopt(spAccess->GetAttrKey("Data"));
    if (spAccess->SetSpecObject(spKey, iObject) < 0)
        throw Failure("the object could not be taken out of the model");
}
} // namespace

void RemoveObject(const VYRStandalone::Model& iModel, const ORXISpecObject_var& iObject)
{
    const Roots going = RootsOf(WithParts({iObject}));
    for (const ORXISpecObject_var& object : WithParts(iModel.Objects()))
        if (going.count(object->GetImpl(0)) == 0)
            ForHolders(object, tk_specobject, [&](const Holder& iHolder) { iHolder.GiveUp(going); });
    const ORXISpecObject_var spOwner = ORXISpecObject_var::Adopt(iObject->GetOwner());
    if (!spOwner)
        GiveAway(iObject);
    else
        ForHolders(spOwner, tk_component, [&](const Holder& iHolder) { iHolder.GiveUp({iObject->GetImpl(0)}); });
}

void CheckMayLeave(const ORXISpecObject_var& iObject, const std::string& iPath)
{
    const ORXISpecObject_var spOwner = ORXISpecObject_var::Adopt(iObject->GetOwner());
    if (!!spOwner && iObject->IsEqual(ModelSurvey::DefaultManagementOf(spOwner).Pointer()) != 0)
        throw Failure(Quoted(iPath) + " is a part that its object needs");
}
} // namespace Tool
