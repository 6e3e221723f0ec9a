#ifndef TestCatalog_H
#define TestCatalog_H

/**
 * @file
 * The types that the tests of documents use, and the documents around what a test is about.
 */

#include <string>

namespace TestCatalog
{
/// Declares the catalog "DocumentTest": "Part" (`size`, `label`, `inside`), "SubPart", which derives from it (`extra`),
/// "Everything", with an attribute of each kind, and "Rich", which adds units and optional attributes to that.
void Declare();

/// A model document with these objects.
std::string Model(const std::string& iObjects);

/// A model document with one object of type "Everything", named "E", with these values.
std::string ModelOfValues(const std::string& iValues);
} // namespace TestCatalog

#endif
