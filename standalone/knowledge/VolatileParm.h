#ifndef VolatileParm_H
#define VolatileParm_H

#include "ORXICkeParm.h"
#include "ValueCell.h"

namespace VYRStandalone
{
/// A free-standing parameter: it counts itself and tells nobody.
class VolatileParm final : public ORXICkeParm
{
public:
    VolatileParm(const KnowledgeType& iType, const ORXUnicodeString& iName);
    ~VolatileParm() override;

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    ORXICkeType_var GetType() override;
    ORXIValue_var GetValue() override;
    void Valuate(const ORXCke::Boolean& iValue) override;
    void Valuate(const ORXUnicodeString& iText) override;
    void Valuate(double iValue) override;
    void Valuate(int iValue) override;
    void ValuateFromValue(const ORXIValue_var& iValue) override;
    void ValuateFromString(const ORXUnicodeString& iText) override;
    ORXICkeManipulator_var CreateManipulator() override;
    ORXICkeManipulator_var GetManipulator() override;

private:
    bool Fails(const char* iOperation) const;
    void Store(Scalar&& iValue);

    const KnowledgeType& m_type;
    ORXUnicodeString m_name;
    ValueCell* m_current;
    ORXICkeManipulator_var m_manipulator;
};
} // namespace VYRStandalone

#endif
