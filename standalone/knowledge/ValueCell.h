#ifndef ValueCell_H
#define ValueCell_H

#include "Instruments.h"
#include "KnowledgeType.h"
#include "ORXIValue.h"

namespace VYRStandalone
{
class SlotBlock;

/**
 * A value that an attribute or a volatile parameter holds and hands out.
 *
 * The holder counts one reference. As long as nobody else holds the cell, the holder may write into it; otherwise it
 * takes another cell and leaves this one as it is. A cell that its holder has left dies with its last reference. Cells
 * of start-ups are immortal and shared between threads: they count nothing and are never written into again.
 */
class ValueCell final : public ORXIValue
{
public:
    /// A cell inside a slot has its memory from the block; null for a cell of its own.
    ValueCell(const KnowledgeType& iType, SlotBlock* iBlock, bool iIsImmortal);
    /// A cell of its own, without a value. The caller is its holder.
    static ValueCell* Make(const KnowledgeType& iType, bool iIsImmortal);

    /// The cell behind an interface pointer; null for null and for a value that is not the host's.
    static const ValueCell* Of(const ORXICkeInst* iValue) noexcept;

    const KnowledgeType& Type() const noexcept { return *m_type; }
    const Scalar& Value() const noexcept { return m_value; }
    void Write(const Scalar& iValue) { m_value = iValue; }
    void Write(Scalar&& iValue) noexcept { m_value = std::move(iValue); }
    /// Of a real. Under a name of its own, since integers and booleans would become numbers in silence.
    void WriteReal(double iNumber) noexcept { m_value = iNumber; }
    bool IsImmortal() const noexcept { return m_isImmortal; }
    /// Of others than the holder.
    unsigned int Holds() const noexcept { return m_isLeft ? m_count : m_count - 1; }

    /// The cell, null, or a value of its type that is not valuated, which belongs to who holds it.
    ORXIValue_var Answer(Instruments::Answer iAnswer);

    /// The holder gives the cell up for good. It dies now or with its last reference.
    void Leave();

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
    ~ValueCell() override;

    void Bury();

    const KnowledgeType* m_type;
    SlotBlock* m_block;
    unsigned int m_count = 1;
    bool m_isImmortal;
    /// The holder has gone.
    bool m_isLeft = false;
    Scalar m_value;

    friend class AttributeParm;
};
} // namespace VYRStandalone

#endif
