#ifndef AttributeParm_H
#define AttributeParm_H

#include "FeatureKey.h"
#include "ORXICkeParm.h"
#include "SlotBlock.h"
#include "ValueCell.h"

namespace VYRStandalone
{
class FeatureObject;

/// The slot of a value attribute, and its parameter at the same time: handing it out allocates nothing. Counting it
/// counts its object.
class AttributeParm final : public ORXICkeParm
{
public:
    AttributeParm(FeatureObject& iObject, const FeatureKey& iKey, SlotBlock& iBlock);

    /// Ends the slot. Values that are still held live on.
    void Destroy();
    /// The same for a start-up that nobody can have seen, so that nobody holds its value.
    void DestroyUnseen() noexcept;

    /// The block knows it: here it would be one more pointer in each slot.
    FeatureObject& Object() const noexcept { return m_cell.m_block->Owner(); }
    const FeatureKey& Key() const noexcept { return m_key; }
    const Scalar& Value() const noexcept { return m_current->Value(); }

    /// Stores silently. A value that somebody holds stays as it was.
    template <class Stored> void Store(Stored&& iValue) { CellToWrite().Write(std::forward<Stored>(iValue)); }

    /// Stores and tells. The slot may be gone afterwards, if nobody holds the object.
    void Write(Scalar&& iValue);

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
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
    ~AttributeParm() override;

    template <class Text> bool IsStopped(const char* iOperation, const Text& iText);
    ValueCell& CellToWrite()
    {
        if (m_current->Holds() != 0 || m_current->IsImmortal())
            Renew();
        return *m_current;
    }
    /// Takes a cell that nobody holds.
    void Renew();

    const FeatureKey& m_key;
    ValueCell* m_current;
    /// In a union, since it outlives the slot while somebody holds it.
    union
    {
        ValueCell m_cell;
    };
};
} // namespace VYRStandalone

#endif
