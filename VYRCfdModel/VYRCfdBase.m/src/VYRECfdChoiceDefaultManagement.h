#ifndef VYRECfdChoiceDefaultManagement_H
#define VYRECfdChoiceDefaultManagement_H

#include "VYRCfdDefaultManagementAdp.h"
#include "VYRCfdExtension.h"

/// Default management of features of type "VYRCfdChoice".
class VYRECfdChoiceDefaultManagement final
    : public VYRCfdExtension<VYRECfdChoiceDefaultManagement, VYRCfdDefaultManagementAdp>
{
public:
    static constexpr const char* ClassName = "VYRECfdChoiceDefaultManagement";
    static constexpr const char* LateType = "VYRCfdChoice";
    static ORXMetaClass* BaseMeta() { return VYRIMpaDefaultManagementProtected::MetaObject(); }

    /// A feature without the sub-feature leaves a cursor with an error, which every operation then reports.
    VYRECfdChoiceDefaultManagement();
    ~VYRECfdChoiceDefaultManagement() override;

    using VYRCfdDefaultManagementAdp::SetCustomDefault;
    /// Also brings the Choice up to date, since its default may select its data: for any attribute, and also when the
    /// attribute is set and keeps its value. What the update answers is not part of the answer.
    HRESULT SetCustomDefault(const ORXUnicodeString& iAttrName, ORXUnicodeString& iValue) override;
};

#endif
