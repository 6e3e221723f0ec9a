#ifndef Container_H
#define Container_H

#include <unordered_set>
#include <vector>

#include "ORXIContainer.h"

namespace VYRStandalone
{
class FeatureObject;
class FeatureType;

/// Holds the top-level objects of one model strongly, in order. Its objects know it weakly.
class Container final : public ORXIContainer
{
public:
    /// New reference.
    static Container* Make();

    /// The container behind an interface pointer; null for null and for a container that is not the host's.
    static Container* Of(ORXIContainer* iContainer) noexcept;

    /// Makes a top-level object at the end, silently, with what its type's start-up holds. Borrowed.
    FeatureObject* Create(FeatureType& iType, const ORXUnicodeString& iName);

    /// Takes an object without owner and container in, at the end. The container holds it.
    void Append(FeatureObject& ioObject);
    /// Takes a top-level object out; it has no container afterwards, and dies unless somebody holds it.
    void Remove(FeatureObject& ioObject);

    /// Borrowed, valid until the container changes.
    const std::vector<FeatureObject*>& Objects() const noexcept { return m_objects; }

    /// @name Objects that have left the model and live on. They are kept in mind, so that those that hold each other
    /// die with the model.
    /// @{
    void AddStray(FeatureObject& ioObject) noexcept;
    void RemoveStray(FeatureObject& ioObject) noexcept;
    /// @}

    /// Lets all objects go. What they hold of each other, by references and by listening, is cleared first, so that
    /// objects that hold each other die.
    void Close() noexcept;

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    ORXListValORXBaseUnknown_var* ListMembers(const ORXUnicodeString& iType) override;

private:
    Container();
    ~Container() override;

    std::vector<FeatureObject*> m_objects;
    std::unordered_set<FeatureObject*> m_strays;
};
} // namespace VYRStandalone

#endif
