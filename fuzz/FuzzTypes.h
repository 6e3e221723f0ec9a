#ifndef FuzzTypes_H
#define FuzzTypes_H

/**
 * @file
 * The feature types on which targets work, with an attribute of every kind.
 */

#include <string>

#include "VYRStandaloneModel.h"

namespace FuzzTypes
{
/// The catalog "Fuzz". May be called again.
void Declare();

/// A model of these types: objects of one name, aliases that are numbers, references in a circle, empty entries,
/// Choices that have been updated, and a table column.
std::string SampleModel();

/// Objects of a model, every one that stands in it, owners before what they own.
std::vector<ORXISpecObject_var> AllObjects(const VYRStandalone::Model& iModel);

/// Demands that the model, saved and loaded, is the same.
void DemandRoundTrip(const VYRStandalone::Model& iModel);
} // namespace FuzzTypes

#endif
