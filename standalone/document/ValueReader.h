#ifndef ValueReader_H
#define ValueReader_H

/**
 * @file
 * Values of attributes out of a document.
 */

#include "DocumentNode.h"
#include "Scalar.h"
#include "Slots.h"

namespace VYRStandalone
{
class KnowledgeType;

/// A value of the type; null is unset. @throws DocumentError for anything else
Scalar ReadScalar(const DocumentNode& iNode, const KnowledgeType& iType);

/// A list of values of the type. @throws DocumentError
ListEntries ReadEntries(const DocumentNode& iNode, const KnowledgeType& iType);
} // namespace VYRStandalone

#endif
