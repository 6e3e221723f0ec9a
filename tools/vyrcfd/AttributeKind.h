#ifndef AttributeKind_H
#define AttributeKind_H

namespace Tool
{
/// The word of catalogs for a type code, such as "real" or "list".
const char* NameOfKind(int iType);
} // namespace Tool

#endif
