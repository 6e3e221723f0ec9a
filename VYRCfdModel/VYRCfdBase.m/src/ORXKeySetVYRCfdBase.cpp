#include "ORXKeySetVYRCfdBase.h"

#include <atomic>

#include "ORXSpecAttrKeyServices.h"

namespace
{
constexpr const char* Catalog = "VYRCfdBase";

ORXSpecAttrKeyServices ChoiceData{Catalog, "VYRCfdChoice", "Data", nullptr};
ORXSpecAttrKeyServices ChoiceStartups{Catalog, "VYRCfdChoice", "Startups", nullptr};
ORXSpecAttrKeyServices Choicechoices{Catalog, "VYRCfdChoice", "choices", nullptr};
ORXSpecAttrKeyServices ChoicedataName{Catalog, "VYRCfdChoice", "dataName", nullptr};
ORXSpecAttrKeyServices ChoicedefaultManagement{Catalog, "VYRCfdChoice", "defaultManagement", nullptr};
ORXSpecAttrKeyServices Choicedisplay{Catalog, "VYRCfdChoice", "display", nullptr};
ORXSpecAttrKeyServices Choicevalue{Catalog, "VYRCfdChoice", "value", nullptr};
ORXSpecAttrKeyServices DefaultManagementconfiguration{Catalog, "VYRCfdDefaultManagement", "configuration", nullptr};
ORXSpecAttrKeyServices ValuesdefaultManagement{Catalog, "VYRCfdValues", "defaultManagement", nullptr};

inline ORXISpecAttrKey* Key(ORXSpecAttrKeyServices& ioRecord, ORXISpecAttrAccess* iAccess)
{
    // Another thread may be finding the same key; on this one it is a plain load.
    ORXISpecAttrKey* const key = std::atomic_ref<ORXISpecAttrKey*>(ioRecord.key).load(std::memory_order_relaxed);
    return key != nullptr ? key : ioRecord.Get(iAccess);
}
} // namespace

ORXISpecAttrKey* ORXKeySetVYRCfdBase::GetKeyVYRCfdChoiceData(ORXISpecAttrAccess* iAccess)
{
    return Key(ChoiceData, iAccess);
}

ORXISpecAttrKey* ORXKeySetVYRCfdBase::GetKeyVYRCfdChoiceStartups(ORXISpecAttrAccess* iAccess)
{
    return Key(ChoiceStartups, iAccess);
}

ORXISpecAttrKey* ORXKeySetVYRCfdBase::GetKeyVYRCfdChoicechoices(ORXISpecAttrAccess* iAccess)
{
    return Key(Choicechoices, iAccess);
}

ORXISpecAttrKey* ORXKeySetVYRCfdBase::GetKeyVYRCfdChoicedataName(ORXISpecAttrAccess* iAccess)
{
    return Key(ChoicedataName, iAccess);
}

ORXISpecAttrKey* ORXKeySetVYRCfdBase::GetKeyVYRCfdChoicedefaultManagement(ORXISpecAttrAccess* iAccess)
{
    return Key(ChoicedefaultManagement, iAccess);
}

ORXISpecAttrKey* ORXKeySetVYRCfdBase::GetKeyVYRCfdChoicedisplay(ORXISpecAttrAccess* iAccess)
{
    return Key(Choicedisplay, iAccess);
}

ORXISpecAttrKey* ORXKeySetVYRCfdBase::GetKeyVYRCfdChoicevalue(ORXISpecAttrAccess* iAccess)
{
    return Key(Choicevalue, iAccess);
}

ORXISpecAttrKey* ORXKeySetVYRCfdBase::GetKeyVYRCfdDefaultManagementconfiguration(ORXISpecAttrAccess* iAccess)
{
    return Key(DefaultManagementconfiguration, iAccess);
}

ORXISpecAttrKey* ORXKeySetVYRCfdBase::GetKeyVYRCfdValuesdefaultManagement(ORXISpecAttrAccess* iAccess)
{
    return Key(ValuesdefaultManagement, iAccess);
}
