#ifndef VYRECfdChoiceInstance_H
#define VYRECfdChoiceInstance_H

#include "ORXIParmPublisher.h"
#include "VYRCfdChoiceInstanceAdp.h"
#include "VYRCfdExtension.h"

/// The knowledge side of features of type "VYRCfdChoice".
class VYRECfdChoiceInstance final : public VYRCfdExtension<VYRECfdChoiceInstance, VYRCfdChoiceInstanceAdp>
{
public:
    static constexpr const char* ClassName = "VYRECfdChoiceInstance";
    static constexpr const char* LateType = "VYRCfdChoice";
    static ORXMetaClass* BaseMeta() { return ORXIParmPublisher::MetaObject(); }

    VYRECfdChoiceInstance();
    ~VYRECfdChoiceInstance() override;
};

#endif
