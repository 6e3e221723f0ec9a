#ifndef RandomTypes_H
#define RandomTypes_H

/**
 * @file
 * What the random operations run on: types, the manager of some of them, and a fixed set of configurations, which has
 * every kind of item. The twin reads the table of configurations; of the types it has its own declaration.
 */

#include <string>
#include <utility>
#include <vector>

struct RandomItem
{
    std::vector<std::pair<std::string, std::string>> keys;
    bool isList = false;

    bool Has(const std::string& iKey) const;
    std::string Text(const std::string& iKey) const;
};

struct RandomConfiguration
{
    std::string name;
    std::vector<RandomItem> items;
};

/// No configuration leads back to itself.
const std::vector<RandomConfiguration>& RandomConfigurations();

/// Declares the types, registers the manager of "RandomManaged", and makes the installation of the configurations the
/// one that this process loads. May be called again.
void SetUpRandomTypes();

/// The model that every run starts with: types of its top-level objects.
const std::vector<std::string>& RandomObjects();

#endif
