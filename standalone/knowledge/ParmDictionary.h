#ifndef ParmDictionary_H
#define ParmDictionary_H

#include "ORXIParmDictionary.h"

namespace VYRStandalone
{
/// The base types of all parameters. Immortal.
class ParmDictionary final : public ORXIParmDictionary
{
public:
    static ParmDictionary& Instance();

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
    ORXICkeType_var GetRealType() override;
    ORXICkeType_var GetIntegerType() override;
    ORXICkeType_var GetBooleanType() override;
    ORXICkeType_var GetEnumType() override;

private:
    ParmDictionary();
};
} // namespace VYRStandalone

#endif
