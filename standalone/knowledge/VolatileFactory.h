#ifndef VolatileFactory_H
#define VolatileFactory_H

#include "ORXICkeParmFactory.h"

namespace VYRStandalone
{
/// The factory of free-standing parameters. Immortal.
class VolatileFactory final : public ORXICkeParmFactory
{
public:
    static VolatileFactory& Instance();

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
    ORXICkeParm_var CreateParm(const ORXICkeType_var& iType, const ORXUnicodeString& iName) override;

private:
    VolatileFactory();
};
} // namespace VYRStandalone

#endif
