#ifndef ModelWriter_H
#define ModelWriter_H

#include <string>
#include <vector>

namespace VYRStandalone
{
class Container;

/**
 * The document of a model: every attribute of every object, so that a catalog that changes later changes nothing in
 * it. The same model gives the same text.
 * @param iCatalogs names of catalogs that stand in the document in any case; those of the objects' types come after
 *        them
 * @param iFile stands for the document in errors
 * @throws DocumentError for what a file cannot hold: a real that is no number, a text that is no UTF-8, a reference
 *         out of the model
 */
std::string WriteModel(const Container& iContainer, const std::vector<std::string>& iCatalogs,
                       const std::string& iFile);
} // namespace VYRStandalone

#endif
