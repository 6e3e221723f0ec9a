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
/// Choices whose "Startups" are no types, or not one for each choice.
void CheckCatalogStartups(const CatalogSource& iCatalogs, ScratchObjects& ioObjects, CheckRun& ioRun);
} // namespace Tool

#endif
