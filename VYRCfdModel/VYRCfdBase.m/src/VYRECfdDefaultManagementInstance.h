#ifndef VYRECfdDefaultManagementInstance_H
#define VYRECfdDefaultManagementInstance_H

#include "ORXIParmPublisher.h"
#include "ORXSimFeatureInstanceAdp.h"
#include "VYRCfdExtension.h"

/// The knowledge side of default-management sub-features: a write of an auto flag reaches the feature that it is about.
class VYRECfdDefaultManagementInstance final
    : public VYRCfdExtension<VYRECfdDefaultManagementInstance, ORXSimFeatureInstanceAdp>
{
public:
    static constexpr const char* ClassName = "VYRECfdDefaultManagementInstance";
    static constexpr const char* LateType = "VYRCfdDefaultManagement";
    static ORXMetaClass* BaseMeta() { return ORXIParmPublisher::MetaObject(); }

    VYRECfdDefaultManagementInstance();
    ~VYRECfdDefaultManagementInstance() override;

    /// @return E_FAIL for an auto flag without a Values feature among the owners; the base is not told then
    HRESULT AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue) override;
};

#endif
