#ifndef VYRECfdValuesDefaultManagement_H
#define VYRECfdValuesDefaultManagement_H

#include "VYRCfdDefaultManagementAdp.h"
#include "VYRCfdExtension.h"

/// Default management of features of type "VYRCfdValues".
class VYRECfdValuesDefaultManagement final
    : public VYRCfdExtension<VYRECfdValuesDefaultManagement, VYRCfdDefaultManagementAdp>
{
public:
    static constexpr const char* ClassName = "VYRECfdValuesDefaultManagement";
    static constexpr const char* LateType = "VYRCfdValues";
    static ORXMetaClass* BaseMeta() { return VYRIMpaDefaultManagementProtected::MetaObject(); }

    /// A feature without the sub-feature leaves a cursor with an error, which every operation then reports.
    VYRECfdValuesDefaultManagement();
    ~VYRECfdValuesDefaultManagement() override;
};

#endif
