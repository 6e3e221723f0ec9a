#ifndef BenchOurModels_H
#define BenchOurModels_H

/**
 * @file
 * Our side of large models.
 */

#include <string>

#include "Work.h"

namespace Bench
{
/// A model of so many objects of a type with twenty attributes, as it is saved. The objects are no Values features:
/// they have no default management, and with it no flags and records, which a document of plain values has not either.
std::string ModelText(int iObjects);

/// The model is held until the work is finished.
Work LoadModel(const std::string& iText);
/// One attribute of each object, by its key.
Work WalkModel(const std::string& iText, int iObjects);
Work SaveModel(const std::string& iText);
Work LoadAndSaveModel(const std::string& iText);
} // namespace Bench

#endif
