#ifndef Manipulator_H
#define Manipulator_H

#include "ORXICkeManipulator.h"

namespace VYRStandalone
{
class AttributeParm;

/// Texts that a panel offers for a parameter. Counts itself; the object of its attribute holds it.
class Manipulator final : public ORXICkeManipulator
{
public:
    /// @param iParm null for a parameter that stands for no attribute
    explicit Manipulator(const AttributeParm* iParm);
    ~Manipulator() override;

    /// The attribute is no more, and somebody still holds this.
    void Forget() noexcept { m_parm = nullptr; }

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    HRESULT SetAllowedValues(const ORXListValORXUnicodeString& iValues) override;
    HRESULT GetAllowedValues(ORXListValORXUnicodeString& oValues) override;

private:
    /// True when a planted fault meets the call.
    bool Fails(const char* iOperation, HRESULT& oStatus) const;

    const AttributeParm* m_parm;
    ORXListValORXUnicodeString m_values;
};
} // namespace VYRStandalone

#endif
