#include "KeptTie.h"

#include "Census.h"
#include "FeatureObject.h"
#include "ORXTie.h"

namespace VYRStandalone
{
namespace
{
/// Ties are made for feature objects only, and of these the root is what a record names.
FeatureObject& ObjectOf(const ORXTieRecord& iTie) noexcept
{
    return *static_cast<FeatureObject*>(iTie.extended);
}
} // namespace

void KeptTie::Keep(ORXTieRecord& ioTie) noexcept
{
    ++ioTie.count;
    ++ioTie.kept;
}

void KeptTie::Drop(ORXTieRecord& ioTie)
{
    // The last one that is the object's own goes as anybody's would.
    if (ioTie.kept == 1 && ioTie.count == 1)
    {
        Take(ioTie);
        ioTie.kept = 0;
        ioTie.tie->Release();
        return;
    }
    --ioTie.kept;
    --ioTie.count;
}

void KeptTie::Take(ORXTieRecord& ioTie) noexcept
{
    Census::Allocated();
    Census::Born(Census::Tie);
    ObjectOf(ioTie).AddReference();
}

void KeptTie::GiveBack(ORXTieRecord& ioTie)
{
    Census::Died(Census::Tie);
    Census::Freed();
    ObjectOf(ioTie).DropReference();
}

KeptTie::Use::Use(ORXTieRecord& ioTie) noexcept : m_tie(ioTie)
{
    Keep(m_tie);
}

KeptTie::Use::~Use()
{
    Drop(m_tie);
}
} // namespace VYRStandalone
