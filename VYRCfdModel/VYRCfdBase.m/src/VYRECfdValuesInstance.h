#ifndef VYRECfdValuesInstance_H
#define VYRECfdValuesInstance_H

#include "ORXIParmPublisher.h"
#include "ORXSimFeatureInstanceAdp.h"
#include "VYRCfdExtension.h"

/// The knowledge side of features of type "VYRCfdValues": keeps the set flags of all their attributes.
class VYRECfdValuesInstance final : public VYRCfdExtension<VYRECfdValuesInstance, ORXSimFeatureInstanceAdp>
{
public:
    static constexpr const char* ClassName = "VYRECfdValuesInstance";
    static constexpr const char* LateType = "VYRCfdValues";
    static ORXMetaClass* BaseMeta() { return ORXIParmPublisher::MetaObject(); }

    VYRECfdValuesInstance();
    ~VYRECfdValuesInstance() override;

    /// A value marks the attribute as set; a value that was taken away puts it back on its default. What comes of that
    /// is not part of the answer.
    HRESULT AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue) override;
};

#endif
