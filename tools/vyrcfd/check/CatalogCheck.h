#ifndef CatalogCheck_H
#define CatalogCheck_H

/**
 * @file
 * What is wrong in the start-ups of catalogs.
 */

#include "CatalogSource.h"
#include "CheckRun.h"
#include "ScratchObjects.h"

namespace Tool
{
/// Choices whose "Startups" are no types, or not one for each choice, and that come with a value that is none.
void CheckCatalogStartups(const CatalogSource& iCatalogs, ScratchObjects& ioObjects, CheckRun& ioRun);
} // namespace Tool

#endif
