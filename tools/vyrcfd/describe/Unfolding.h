#ifndef Unfolding_H
#define Unfolding_H

/**
 * @file
 * Walking through a configuration and those that it applies.
 */

#include <string_view>

#include "SourceItem.h"

namespace Tool
{
/// Is told of a configuration and its items, in the order in which the engine comes to them.
class UnfoldingReader
{
public:
    /// Why the configuration that an item applies is not unfolded.
    enum class Fold
    {
        /// It is, next.
        Open,
        /// The item applies none, or one that there is not.
        Nothing,
        /// It was not asked for.
        NotAsked,
        /// It has been told before.
        ToldBefore,
        /// It is one of those that the item itself is applied by.
        Circle,
        /// It lies too deep to be read.
        TooDeep
    };

    virtual ~UnfoldingReader() = default;
    virtual void Begin(const SourceConfiguration& iConfiguration, std::size_t iDepth) = 0;
    virtual void Tell(const SourceItem& iItem, std::size_t iDepth, Fold iFold) = 0;
    virtual void End(const SourceConfiguration& iConfiguration, std::size_t iDepth) = 0;
    /// Behind the item, and the configuration that it has opened.
    virtual void Leave(std::size_t iDepth) = 0;
};

/// @param iIsNested whether the configurations that items apply are told as well, each once, at the first item
void Unfold(const SourceConfiguration& iConfiguration, const ConfigurationSource& iSource, bool iIsNested,
            UnfoldingReader& ioReader);
} // namespace Tool

#endif
