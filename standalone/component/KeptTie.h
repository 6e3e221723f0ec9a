#ifndef KeptTie_H
#define KeptTie_H

struct ORXTieRecord;

namespace VYRStandalone
{
/**
 * A shared tie that its object keeps, so that not every notification makes and drops one.
 *
 * The object has references of its own on the tie. As long as there are no others, the tie holds nothing on the object,
 * which would otherwise live for ever, and the census does not count it.
 */
class KeptTie
{
public:
    /// The object keeps the tie, which somebody else holds as well.
    static void Keep(ORXTieRecord& ioTie) noexcept;
    /// The object keeps the tie no longer. If nobody else holds it, it is gone afterwards.
    static void Drop(ORXTieRecord& ioTie);

    /// Somebody else holds a tie that only the object held.
    static void Take(ORXTieRecord& ioTie) noexcept;
    /// Nobody else holds the tie any more. The object, and the tie with it, may be gone afterwards.
    static void GiveBack(ORXTieRecord& ioTie);

    /// The length of a notification, in which the tie stays whatever becomes of the table. The object is held by the
    /// one who notifies.
    class Use
    {
    public:
        explicit Use(ORXTieRecord& ioTie) noexcept;
        ~Use();
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

    private:
        ORXTieRecord& m_tie;
    };
};
} // namespace VYRStandalone

#endif
