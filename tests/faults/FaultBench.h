#ifndef FaultBench_H
#define FaultBench_H

/**
 * @file
 * What scenarios run on: a fresh model for each run, with the objects that the scenario asks for.
 */

#include "ChoiceTest.h"
#include "TestManager.h"

class VYRCfdConfigurator;

/**
 * Objects are made when they are asked for first.
 *
 * `Part`, "Part.1", has default management and an attribute of every kind: "title" (string), "ratio" (real), "count"
 * (integer), "flag" (boolean), "scheme" (enumeration), "zone" (component, with default management), "peer" (reference,
 * set), "kind" (component, a Choice of `ChoiceTest`); and the lists "titles", "ratios", "counts", "flags", "schemes",
 * "zones" (components) and "peers" (references), with two entries each.
 *
 * `Choice`, "Choice.1", is a "ChoiceTestThree", `Managed`, "Choice.2", a "ChoiceTestHookedThree" with a manager. Both
 * have been updated.
 */
class FaultBench
{
public:
    FaultBench() = default;
    FaultBench(const FaultBench&) = delete;
    FaultBench& operator=(const FaultBench&) = delete;

    /// Declares the types and sets the installation of the process up; once for each test.
    static void SetUp();

    /// A cursor where a case wants it: "(error)", "(nothing)", "(object)", "(column)", or an attribute of the part.
    VYRCfdObjectAccess At(const std::string& iPlace);

    const ORXISpecObject_var& Part();
    const ORXISpecObject_var& Choice();
    const ORXISpecObject_var& Managed();

    /// Default management of the part, made.
    VYRIMpaDefaultManagementProtected_var Management() { return DefaultManagementOf(Part()); }

    /// A configurator over the configurations of `FaultConfigurations`, loaded. It lives as long as the process.
    static VYRCfdConfigurator& Configurator();

    VYRStandalone::Model m_model;

private:
    ORXISpecObject_var m_part;
    ORXISpecObject_var m_choice;
    ORXISpecObject_var m_managed;
    ORXISpecObject_var m_column;
};

/// The places of `FaultBench::At`.
const std::vector<std::string>& Places();

/// The folder of the process's installation, and the names of its files as the configurator of `Configurator` reads
/// them.
std::string InstallationFolder();
std::vector<ORXUnicodeString> InstallationFiles();

#endif
