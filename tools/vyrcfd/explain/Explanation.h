#ifndef Explanation_H
#define Explanation_H

/**
 * @file
 * Where the value of an attribute comes from, for a reader and for a machine.
 */

#include <optional>
#include <string>

#include "CatalogSource.h"
#include "ConfigurationSource.h"
#include "Ladder.h"

namespace Tool
{
enum class ModelOrigin
{
    /// As it was read, without custom defaults.
    File,
    /// One that has been worked with.
    Session
};

struct Explanation
{
    /// As the user has named it.
    std::string path;
    /// Path of the object.
    std::string object;
    AttributeSnapshot attribute;
    /// Nothing for an attribute of an object without default management: it has no defaults, and nothing unsets it.
    std::optional<Ladder> ladder;
    std::optional<Unsetting> unsetting;
    ModelOrigin origin = ModelOrigin::File;
};

/**
 * Changes nothing in the model, and takes the reports of the questions away.
 * @param iPlace in front of messages, as the model's file; empty for none
 * @throws Failure for a path that leads to no attribute, and where default management ends fatally
 */
Explanation ExplainAttribute(const VYRStandalone::Model& iModel, const std::string& iPlace, const std::string& iPath,
                             ModelOrigin iOrigin);

/// Where the places that an explanation names are written.
struct ExplanationSources
{
    const ConfigurationSource& configurations;
    const CatalogSource& catalogs;
};

/// Where the attribute is declared; nowhere for one that was added to its object, or that comes with the host.
std::vector<CatalogPlace> DeclarationsOf(const Explanation& iExplanation, const CatalogSource& iCatalogs);

/// The places that give the start-up its value, of which the last counts.
std::vector<CatalogPlace> ValuesOf(const PrototypeRung& iPrototype, const CatalogSource& iCatalogs);

std::string ExplanationText(const Explanation& iExplanation, const ExplanationSources& iSources);
std::string ExplanationJson(const Explanation& iExplanation, const ExplanationSources& iSources);
} // namespace Tool

#endif
