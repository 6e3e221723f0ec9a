#ifndef ObjectValue_H
#define ObjectValue_H

#include "ORXIValue.h"

namespace VYRStandalone
{
/// What a notification carries for attributes that have no value of a knowledge type: it only says whether there is
/// something. Immortal; it reads as nothing.
class ObjectValue final : public ORXIValue
{
public:
    /// Of an object attribute that is empty or not.
    static ObjectValue* OfObject(bool iIsValuated);
    /// Of a list: an empty list is a value, too.
    static ObjectValue* OfList() { return OfObject(true); }

    static bool Is(const ORXICkeInst& iValue) noexcept;

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
    int IsValuated() override;
    int AsInteger() override;
    double AsReal() override;
    ORXUnicodeString AsString() override;
    ORXCke::Boolean AsBoolean() override;
    bool IsTrue() override;

private:
    explicit ObjectValue(bool iIsValuated) : m_isValuated(iIsValuated) {}

    bool m_isValuated;
};
} // namespace VYRStandalone

#endif
