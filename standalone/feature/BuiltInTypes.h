#ifndef BuiltInTypes_H
#define BuiltInTypes_H

#include "TypeDeclaration.h"

namespace VYRStandalone
{
/// Name of the type of table columns.
inline constexpr const char* columnTypeName = "ORXSimBCDataTableColumn";

/// The catalog that comes with the host, "VYRCfdBase": what configurations, Choices and default management stand on.
CatalogDeclaration BuiltInCatalog();
} // namespace VYRStandalone

#endif
