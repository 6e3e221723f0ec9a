/**
 * @file
 * Loaded before the host, this stands in for one that has no shortcuts.
 */

#include "ORXSpecAttrShortcuts.h"

ORXSpecAttrShortcuts* ORXGetSpecAttrShortcuts() noexcept
{
    return nullptr;
}
