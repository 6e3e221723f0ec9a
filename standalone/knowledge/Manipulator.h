#ifndef Manipulator_H
#define Manipulator_H

#include "ORXICkeManipulator.h"

namespace VYRStandalone
{
/// Texts that a panel offers for a parameter. Counts itself; its parameter holds it.
class Manipulator final : public ORXICkeManipulator
{
public:
    Manipulator();
    ~Manipulator() override;

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    HRESULT SetAllowedValues(const ORXListValORXUnicodeString& iValues) override;
    HRESULT GetAllowedValues(ORXListValORXUnicodeString& oValues) override;

private:
    ORXListValORXUnicodeString m_values;
};
} // namespace VYRStandalone

#endif
