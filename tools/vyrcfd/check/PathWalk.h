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
    /// At the object or the attribute; for a path that leads nowhere, at the object where it ends.
    VYRCfdObjectAccess access{};
    /// Of the object, or of the one that has the attribute.
    ObjectPlace place{};
    /// Of a path that leads nowhere: the name that did not lead on, and what the cursor says of it.
    std::string name{};
    std::string reason{};
    /// The first attribute on the way that an object need not have; empty where all have all.
    std::string optional{};
};

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
    void Restrict(const VYRCfdObjectAccess& iChoice, const ConditionText& iParts, const std::string& iCondition);

    /// At least one end. An end is good only until the next call.
    std::vector<PathEnd> Follow(const std::string& iPath) const;

private:
    using Names = std::vector<std::string>;

    void Step(const PathEnd& iFrom, const Names& iNames, std::size_t iNext, std::vector<PathEnd>& oEnds) const;
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
