#ifndef PathWalk_H
#define PathWalk_H

/**
 * @file
 * Following paths on objects that are not there yet.
 */

#include <string>
#include <vector>

#include "ConditionText.h"
#include "ObjectPlace.h"
#include "VYRCfdObjectAccess.h"

namespace Tool
{
/// A name in a path that does not lead on.
struct Misstep
{
    std::string name;
    /// What the cursor says of it.
    std::string reason;
    /// Of the object where it stands.
    ObjectPlace place;
    /// What leads on from there.
    std::vector<std::string> known{};
    /// The one of these that must have been meant, with which the path goes on; empty where that is not known.
    std::string meant{};
};

using Missteps = std::vector<Misstep>;

/// Where a path leads to.
struct PathEnd
{
    enum class Kind
    {
        /// Leads nowhere.
        Nowhere,
        /// Through a reference, a list or a component that a model may hold or not: nothing can be said.
        Open,
        /// An attribute for an object, which holds none as long as a model puts none there.
        Unheld,
        Object,
        Attribute
    };

    Kind kind = Kind::Nowhere;
    /// At the object or the attribute.
    VYRCfdObjectAccess access{};
    /// Of the object, or of the one that has the attribute.
    ObjectPlace place{};
    /// The first attribute on the way that an object need not have; empty where all have all.
    std::string optional{};
    /// On the way, which ends there if nothing is meant by the last.
    Missteps missteps{};
};

/// @param iAccess where the name stands
Misstep MisstepAt(const VYRCfdObjectAccess& iAccess, const ObjectPlace& iPlace, std::string iName, std::string iReason);

/// The path with what was meant.
std::string MeantPath(const std::string& iPath, const Missteps& iMissteps);

/**
 * Walks paths as the cursor does, name by name, and asks it at each. Where a path goes through the data object of a
 * Choice, the choices that have one are selected in turn, so that one path has several ends. A name of a type in a list
 * of objects puts one of that type there.
 */
class PathWalk
{
public:
    PathWalk(const VYRCfdObjectAccess& iStart, ObjectPlace iPlace) : m_start(iStart), m_place(std::move(iPlace)) {}

    /// From now on only such values of a Choice are selected as fulfil a condition on its value.
    void Restrict(const VYRCfdObjectAccess& iChoice, const ConditionText& iParts);

    /// At least one end. An end is good only until the next call.
    std::vector<PathEnd> Follow(const std::string& iPath) const;

private:
    using Names = std::vector<std::string>;

    void Step(const PathEnd& iFrom, const Names& iNames, std::size_t iNext, std::vector<PathEnd>& oEnds) const;
    void StepAside(const PathEnd& iFrom, PathEnd iNowhere, const Names& iNames, std::size_t iNext,
                   std::vector<PathEnd>& oEnds) const;
    void StepToData(const PathEnd& iFrom, const Names& iNames, std::size_t iNext, std::vector<PathEnd>& oEnds) const;
    PathEnd Next(const PathEnd& iFrom, const std::string& iName) const;
    PathEnd StepOnObject(const PathEnd& iFrom, const std::string& iName) const;
    static PathEnd StepInList(const PathEnd& iFrom, const std::string& iName);
    /// The choices whose data objects are worth a look: of those that share a type, the first.
    std::vector<std::string> Candidates(const VYRCfdObjectAccess& iChoice) const;
    bool IsRestricted(const VYRCfdObjectAccess& iChoice) const;

    VYRCfdObjectAccess m_start;
    ObjectPlace m_place;
    ORXBaseUnknown_var m_restricted;
    ConditionText m_parts{};
    std::string m_condition;
    /// Data objects that the present path has been tried on.
    mutable std::size_t m_tried = 0;
};
} // namespace Tool

#endif
