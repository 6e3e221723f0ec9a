#ifndef SamplePlaces_H
#define SamplePlaces_H

/**
 * @file
 * Where the configurations of the sample belong: found by walking from the types that the catalogs mean them for, along
 * the items that apply further ones.
 */

#include <map>
#include <set>
#include <string>
#include <vector>

#include "VYRCfdConfigurator.h"
#include "VYRStandaloneModel.h"

/// A choice that is made on the way, so that the data object is there.
struct Selection
{
    /// Path of the Choice below the root.
    std::string choice;
    std::string value;
};

/// An object of a type, alone in its model or inside another one.
struct Place
{
    /// Type of the one top-level object.
    std::string rootType;
    /// From the root down, "" for the root itself.
    std::string path;
    std::vector<Selection> selections;

    /// Type and number, as sample models name their objects.
    std::string RootName() const { return rootType + ".1"; }
    /// As paths of a model are written.
    std::string FullPath() const { return path.empty() ? RootName() : RootName() + "/" + path; }
    std::string Below(const std::string& iPath) const { return path.empty() ? iPath : path + "/" + iPath; }
};

/// A fresh model that holds nothing but the root, with the selections made.
class PlacedObject
{
public:
    explicit PlacedObject(Place iPlace);

    const Place& Where() const { return m_place; }
    const VYRStandalone::Model& Model() const { return m_model; }
    ORXISpecObject_var Root() const { return m_model.Find(m_place.RootName().c_str()); }
    ORXISpecObject_var Target() const { return TargetIn(m_model); }
    /// The same object of another model, such as one that has been closed and opened.
    ORXISpecObject_var TargetIn(const VYRStandalone::Model& iModel) const;

private:
    Place m_place;
    VYRStandalone::Model m_model;
};

/// Selects and expects success, and no reports.
void Select(const ORXISpecObject_var& iChoice, const std::string& iValue);

/// A configuration, and the type of an object that it is applied to.
struct ConfiguredPlace
{
    std::string configuration;
    std::string targetType;
    Place place;
};

/// Types of the sample's catalogs, in their order, each with the configurations that are meant for it.
std::vector<std::pair<std::string, std::vector<std::string>>> SampleTypes(const std::string& iCatalog);
const char* const SampleCatalogs[] = {"FlowCommon", "ExternalFlow", "InternalFlow"};

/// One place for each configuration and each type that it comes to. The catalogs have to be declared.
std::vector<ConfiguredPlace> ConfiguredPlaces(const VYRCfdConfigurationMap& iConfigurations);

/// One Choice of each type of Choices that none of the configurations comes to.
std::vector<Place> UnconfiguredChoices(const std::vector<ConfiguredPlace>& iPlaces);

#endif
