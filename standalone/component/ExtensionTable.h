#ifndef ExtensionTable_H
#define ExtensionTable_H

#include <vector>

#include "ORXFillDictionary.h"
#include "ORXMetaClass.h"

struct ORXTieRecord;

namespace VYRStandalone
{
/**
 * What extends one object: the instances of extension classes, which it owns, and the interfaces that can be handed
 * out again: direct ones, and shared ties, which are known weakly.
 */
class ExtensionTable
{
public:
    /**
     * The instance of a class; it is made through the constructor when there is none, and linked to the root before
     * its constructor runs. Null while that constructor runs.
     */
    ORXBaseUnknown* FindOrMake(ORXBaseUnknown& iRoot, ORXMetaClass& iClass, ORXInstanceConstructor iConstructor);

    /// The instance of a class that is complete; null when there is none.
    ORXBaseUnknown* Find(const ORXMetaClass& iClass) const noexcept;

    /// True while the instance of the class is under construction.
    bool IsUnderConstruction(const ORXMetaClass& iClass) const noexcept;

    /// An interface that can be handed out again; null when there is none. No reference is added.
    ORXBaseUnknown* FindLink(const IID& iInterface) const noexcept
    {
        for (const Link& link : m_links)
            if (link.interfaceId == iInterface)
                return link.facet;
        return nullptr;
    }
    /// A tie is known with its record, a direct interface without.
    void AddLink(const IID& iInterface, ORXBaseUnknown& iFacet, ORXTieRecord* iTie = nullptr);
    void RemoveLinksTo(const ORXBaseUnknown& iFacet) noexcept;

    /// Keeps the shared tie of an interface, which somebody holds, until the table is cleared. Others are left alone.
    void KeepTie(const IID& iInterface) noexcept;
    /// One that is kept; null for none.
    ORXTieRecord* FindKeptTie(const IID& iInterface) const noexcept;

    /// Deletes the instances, the youngest first. None is made meanwhile.
    void Clear();
    bool IsClearing() const noexcept { return m_isClearing; }

    /// Lets go of what instances that listen to others hold, as far as the host knows it.
    void DropListeners();

private:
    struct Instance
    {
        const ORXMetaClass* extensionClass;
        /// Null while it is under construction.
        ORXBaseUnknown* instance;
    };
    struct Link
    {
        IID interfaceId;
        ORXBaseUnknown* facet;
        /// Null for a direct interface.
        ORXTieRecord* tie;
    };

    void Forget(const ORXMetaClass& iClass) noexcept;
    void DropKeptTies();

    bool m_isClearing = false;
    std::vector<Instance> m_instances;
    std::vector<Link> m_links;
};
} // namespace VYRStandalone

#endif
