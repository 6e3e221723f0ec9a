#ifndef VYRCfdConfigurationWalk_H
#define VYRCfdConfigurationWalk_H

/**
 * @file
 * The walk over the items of one configuration.
 */

#include <vector>

#include "JIStream.h"
#include "ORXIContainer.h"
#include "VYRCfdObjectAccess.h"
#include "VYRIMpaDefaultManagementProtected.h"

class VYRCfdConfigurator;

/**
 * Applies the items of one configuration to one object. Each item does one thing, decided by which of its keys are
 * there. Everything is reported under the name of the operation that walks.
 */
class VYRCfdConfigurationWalk
{
public:
    /// @param iFunction name to report under, borrowed for the life of the walk
    VYRCfdConfigurationWalk(VYRCfdConfigurator& ioConfigurator, const char* iFunction,
                            const ORXBaseUnknown_var& ispObject,
                            const VYRIMpaDefaultManagementProtected_var& ispDefMgmt, const ORXIContainer_var& ispCont);

    /// Applies one item. A negative status ends the walk; what was done before stays.
    HRESULT Apply(const JSON::JIStream& iItem);

    /// Writes the records that the items left into the object's default management, in place of those that it held.
    HRESULT Close();

private:
    /// The keys of an item, made once for the walk.
    struct Keys
    {
        const ORXUnicodeString path{"path"};
        const ORXUnicodeString type{"type"};
        const ORXUnicodeString defaultValue{"default"};
        const ORXUnicodeString defaultAutoKey{"defaultAutoKey"};
        const ORXUnicodeString display{"display"};
        const ORXUnicodeString value{"value"};
        const ORXUnicodeString list{"list"};
        const ORXUnicodeString config{"config"};
        const ORXUnicodeString condition{"condition"};
        const ORXUnicodeString choices{"choices"};
        const ORXUnicodeString startups{"Startups"};
    };

    /// What is read of an item.
    struct Item
    {
        ORXUnicodeString path;
        ORXUnicodeString type;
        ORXUnicodeString defaultValue;
        ORXUnicodeString defaultAutoValue;
        ORXUnicodeString display;
        ORXUnicodeString value;
        bool list;
        ORXUnicodeString config;
    };

    Item Read(const JSON::JIStream& iItem) const;
    HRESULT ApplyValues(const ORXUnicodeString& path, const ORXUnicodeString& value);
    HRESULT ApplyChoice(const JSON::JIStream& iItem, const Item& item);
    HRESULT RecordChoice(const ORXUnicodeString& path, const ORXUnicodeString& defaultValue);
    HRESULT ApplyDefault(Item& ioItem, bool iIsAutomatic);
    HRESULT ApplyConditional(const ORXUnicodeString& path, const ORXUnicodeString& condition,
                             const ORXUnicodeString& config);
    void ApplyNested(const ORXUnicodeString& path, const ORXUnicodeString& config);
    HRESULT CreateRecord(ORXISpecObject_var& spConfigItem);

    VYRCfdConfigurator& m_configurator;
    const char* m_function;
    const Keys m_keys;
    // Named as the reports show them.
    VYRIMpaDefaultManagementProtected_var spDefMgmt;
    ORXIContainer_var spCont;
    VYRCfdObjectAccess specAccess;
    std::vector<VYRCfdObjectAccess> configItemsList;
};

#endif
