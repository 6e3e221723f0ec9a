#ifndef VYRCfdConfigurator_H
#define VYRCfdConfigurator_H

/**
 * @file
 * The configuration engine.
 */

#include <memory>
#include <unordered_map>
#include <vector>

#include "JIStream.h"
#include "ORXBaseUnknown.h"
#include "ORXUnicodeString.h"
#include "VYRCfdBaseExport.h"

namespace VYRCfd
{
template <class T> struct hash;
template <class T> struct equal_to;

/// For the map of configurations: equal texts have one number.
template <> struct hash<ORXUnicodeString>
{
    /// `ComputeHashKey` of the text.
    std::size_t operator()(const ORXUnicodeString& iText) const noexcept { return iText.ComputeHashKey(); }
};

/// Exact and case-sensitive.
template <> struct equal_to<ORXUnicodeString>
{
    /// Whether both texts are the same.
    bool operator()(const ORXUnicodeString& iLeft, const ORXUnicodeString& iRight) const noexcept
    {
        return iLeft.Compare(iRight) == 2;
    }
};
} // namespace VYRCfd

/// Name of a configuration to its items, in the order of the file.
using VYRCfdConfigurationMap = std::unordered_map<ORXUnicodeString, std::vector<JSON::JIStream>,
                                                  VYRCfd::hash<ORXUnicodeString>, VYRCfd::equal_to<ORXUnicodeString>>;

/**
 * Holds the named configurations of the installation and applies them to model objects.
 *
 * The files are read once, on the first operation that needs them. One bad file fails the load; the next operation
 * tries again. Creation and load are not locked: the first calls must not overlap.
 */
class VYRCfdBaseExport VYRCfdConfigurator
{
public:
    /// The one instance, never null; borrowed, valid until the library is unloaded. Reads no file.
    static VYRCfdConfigurator* GetConfigurator();

    ~VYRCfdConfigurator();
    VYRCfdConfigurator(const VYRCfdConfigurator&) = delete;
    VYRCfdConfigurator& operator=(const VYRCfdConfigurator&) = delete;

    /// Copies the map, which costs time linear in the configurations of all files.
    /// @return a negative status when the files cannot be loaded, reported
    HRESULT GetConfigurationMap(VYRCfdConfigurationMap& oConfigurations);

    /**
     * Applies a configuration to an object that has default management: its items in file order, each doing one thing,
     * and at the end the records of the defaults and of the conditional items on the object. A failing item ends the
     * walk, and what was done stays; what a nested configuration reports does not. Configurations that lead back to
     * themselves are stopped at a nesting of 512, and those that multiply after 100,000 applications, with one error
     * each; from then on the outermost application applies no further nested configuration.
     *
     * The object stays the caller's. Linear in the items, of which each walks its path and does its writes with all that
     * listens to them; the first application reads the files.
     * @return S_OK, S_FALSE for a configuration without items, or a negative status, which is reported: for files that
     * cannot be loaded, a name that no file has, an object without default management or outside every container, and
     * an item that failed
     */
    long ApplyConfiguration(const ORXBaseUnknown_var& ispObject, const ORXUnicodeString& iConfigName);

protected:
    /// Takes the given file names, in their order, in place of the installation's.
    explicit VYRCfdConfigurator(std::vector<ORXUnicodeString>& files);

private:
    VYRCfdConfigurator();

    HRESULT GetConfigurationObject(const ORXUnicodeString& iConfigName, std::vector<JSON::JIStream>& configObjectJSON);
    HRESULT LoadConfigs();
    void Keep(const JSON::JIStream& iFile);

    static std::unique_ptr<VYRCfdConfigurator> spConfigurator;

    VYRCfdConfigurationMap _configurations;
    std::vector<ORXUnicodeString> _configFiles;
    bool _configsLoaded = false;
};

#endif
