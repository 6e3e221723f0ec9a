#ifndef ModelSurvey_H
#define ModelSurvey_H

/**
 * @file
 * Where the objects of a model stand.
 */

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "ORXISpecAttrAccess.h"
#include "ORXISpecObject.h"
#include "VYRStandaloneModel.h"

namespace Tool
{
/// One object and its place.
struct Place
{
    ORXISpecObject_var object;
    std::string path;
    /// End of the path behind the owner.
    std::string label;
    int depth = 0;
};

/// Paths of all objects of a model, and which of them are records of others.
class ModelSurvey
{
public:
    explicit ModelSurvey(const VYRStandalone::Model& iModel);

    /// All objects but the records, owners in front of what they own.
    std::vector<Place> Places() const;

    /// An object and what it owns, or only what it owns through one attribute. @param iPath its path if it has none
    std::vector<Place> PlacesBelow(const ORXISpecObject_var& iObject, const std::string& iPath,
                                   const std::string& iAttribute) const;

    std::string PathOf(const ORXISpecObject_var& iObject) const;

    /// Default management of an object, null if it has none; nothing but its flags and records is of interest.
    static ORXISpecAttrAccess_var DefaultManagementOf(const ORXISpecObject_var& iObject);
    static bool IsRecordType(const ORXISpecObject_var& iObject);
    static constexpr char DefaultManagement[] = "defaultManagement";
    static constexpr char RecordList[] = "configuration";

private:
    static std::vector<Place> Descend(Place iRoot, const std::string& iAttribute);
    static std::vector<Place> Children(const Place& iOwner, const std::string& iAttribute);
    void EnterRecords(const Place& iOwner);

    std::vector<Place> m_places;
    /// By the root of the component, which is one for all its faces.
    std::unordered_map<ORXBaseUnknown*, std::string> m_paths;
    std::unordered_set<ORXBaseUnknown*> m_records;
};
} // namespace Tool

#endif
