#ifndef BenchLiteralScan_H
#define BenchLiteralScan_H

/**
 * @file
 * `SetList` taken literally.
 */

#include <vector>

#include "VYRCfdObjectAccess.h"

namespace Bench
{
/// Makes a list of objects equal to the wanted ones by looking each of them up among all that stand at or behind its
/// place: the plain definition of what `VYRCfdObjectAccess::SetList` asks of the host. Nothing may be null.
HRESULT LiteralScan(const ORXISpecAttrAccess_var& iAccess, const ORXISpecAttrKey_var& iKey,
                    const std::vector<VYRCfdObjectAccess>& iWanted);
} // namespace Bench

#endif
