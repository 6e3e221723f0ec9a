#ifndef ReferenceGraph_H
#define ReferenceGraph_H

/**
 * @file
 * Which configuration applies which.
 */

#include <string>
#include <vector>

#include "SourceItem.h"

namespace Tool
{
/// A name that configurations go by, or are asked for by.
struct ReferenceNode
{
    std::string name;
    /// Null for a name that no configuration has. Belongs to the source.
    const SourceConfiguration* configuration = nullptr;
};

/// One item that applies a configuration.
struct Reference
{
    /// Into `nodes`.
    std::size_t from = 0;
    std::size_t to = 0;
    SourceItem item;
    /// Whether it leads back to where it comes from, by whatever way.
    bool isInCircle = false;
};

struct ReferenceGraph
{
    /// Files and definitions in their order, then names that no configuration has.
    std::vector<ReferenceNode> nodes;
    /// In the order of the items.
    std::vector<Reference> references;
};

/// Which part of the graph is wanted.
struct GraphExtent
{
    /// What can be reached from there; null for everything.
    const SourceConfiguration* from = nullptr;
    /// Also configurations without any reference.
    bool isAll = false;
};

/// Definitions that are hidden by others are left out: nothing applies them.
ReferenceGraph ReferencesOf(const ConfigurationSource& iSource, const GraphExtent& iExtent);
} // namespace Tool

#endif
