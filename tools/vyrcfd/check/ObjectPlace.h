#ifndef ObjectPlace_H
#define ObjectPlace_H

#include <string>

#include "Wording.h"

namespace Tool
{
/// Where an object stands that a configuration may be for: a type, and from an object of it the names of component
/// attributes, since what a component starts with depends on its owners.
struct ObjectPlace
{
    std::string type;
    /// With "/" between; empty for the object itself.
    std::string path{};

    ObjectPlace Component(const std::string& iName) const { return {type, path.empty() ? iName : path + "/" + iName}; }
    std::string Shown() const { return Quoted(path.empty() ? type : type + "/" + path); }

    friend bool operator==(const ObjectPlace& iLeft, const ObjectPlace& iRight)
    {
        return iLeft.type == iRight.type && iLeft.path == iRight.path;
    }
};
} // namespace Tool

#endif
