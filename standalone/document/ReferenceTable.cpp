#include "ReferenceTable.h"

#include <algorithm>

#include "Container.h"
#include "FeatureObject.h"
#include "ObjectWalk.h"
#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace VYRStandalone
{
void ReferenceTable::AddId(const DocumentNode& iId, FeatureObject& iObject)
{
    const std::int64_t id = iId.Whole();
    const auto [place, isNew] = m_ids.try_emplace(id, Identified{&iObject, iId.Path()});
    if (!isNew)
        iId.Fail("the id " + std::to_string(id) + " stands at " + place->second.path + " already");
}

void ReferenceTable::AddReference(const DocumentNode& iReference, FeatureObject& iObject, const FeatureKey& iKey,
                                  std::size_t iEntry)
{
    iReference.ExpectKeys({"ref"});
    const DocumentNode target = iReference.Require("ref");
    Reference reference{&iObject, &iKey, iEntry, {}, !target.IsText(), 0, target.Path()};
    if (reference.isById)
        reference.id = target.Whole();
    else
        reference.name = target.NonEmptyText();
    m_references.push_back(std::move(reference));
}

void ReferenceTable::Resolve(const std::string& iFile, const Container& iContainer)
{
    // A list is filled in one go: its references stand behind one another, but for those inside its components.
    for (std::size_t first = 0; first < m_references.size();)
    {
        std::size_t end = first + 1;
        while (end < m_references.size() && m_references[end].object == m_references[first].object &&
               m_references[end].key == m_references[first].key)
            ++end;
        Store(iFile, iContainer, first, end);
        first = end;
    }
}

FeatureObject& ReferenceTable::Target(const std::string& iFile, const Container& iContainer,
                                      const Reference& iReference)
{
    if (!iReference.isById)
        return TargetByName(iFile, iContainer, iReference);
    const auto found = m_ids.find(iReference.id);
    if (found == m_ids.end())
        throw DocumentError(iFile, iReference.path, "no object has the id " + std::to_string(iReference.id));
    return *found->second.object;
}

FeatureObject& ReferenceTable::TargetByName(const std::string& iFile, const Container& iContainer,
                                            const Reference& iReference)
{
    if (m_names.empty())
        FillNames(iContainer);
    const auto found = m_names.find(iReference.name);
    if (found == m_names.end())
        throw DocumentError(iFile, iReference.path,
                            "no object has the identifier or the name " + Quoted(iReference.name));
    if (found->second.size() == 1)
        return *found->second.front();
    std::vector<std::string> paths;
    for (const FeatureObject* object : found->second)
        paths.push_back(object->Path());
    throw DocumentError(iFile, iReference.path,
                        "several objects have the identifier or the name " + Quoted(iReference.name) + ": " +
                            QuotedList(paths) + "; refer by id");
}

void ReferenceTable::FillNames(const Container& iContainer)
{
    for (FeatureObject* object : AllObjects(iContainer))
    {
        const std::string name(object->Name().View());
        m_names[name].push_back(object);
        const ORXUnicodeString* identifier = object->Identifier();
        if (identifier != nullptr && identifier->View() != name)
            m_names[std::string(identifier->View())].push_back(object);
    }
}

void ReferenceTable::Store(const std::string& iFile, const Container& iContainer, std::size_t iFirst, std::size_t iEnd)
{
    FeatureObject& object = *m_references[iFirst].object;
    const FeatureKey& key = *m_references[iFirst].key;
    if (key.Slot() == SlotKind::Object)
    {
        object.StoreObject(key, &Target(iFile, iContainer, m_references[iFirst]));
        return;
    }
    auto entries = std::get<std::vector<FeatureObject*>>(object.Entries(key));
    for (std::size_t index = iFirst; index < iEnd; ++index)
    {
        const Reference& reference = m_references[index];
        FeatureObject& target = Target(iFile, iContainer, reference);
        // A component may stand several times in the list that holds it, and nowhere else.
        if (key.Owns() && (target.Owner() != &object || target.OwnerKey() != &key))
            throw DocumentError(iFile, reference.path,
                                "a component can only be referred to from the list that holds it");
        entries.at(reference.entry) = &target;
    }
    object.StoreObjects(key, entries);
}
} // namespace VYRStandalone
