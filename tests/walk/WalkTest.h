#ifndef WalkTest_H
#define WalkTest_H

/**
 * @file
 * What tests of the walk share.
 */

#include <optional>

#include "Configurations.h"
#include "FlowTest.h"

/// Name under which the walk reports.
inline constexpr const char* Walk = "VYRCfdConfigurator::ApplyConfiguration";

/// Applies configurations that stand in the test to the solver.
class WalkTest : public FlowTest
{
protected:
    /// The configurations of the installation from now on.
    void Install(const std::vector<std::string>& iConfigurations);

    /// Applies one of them.
    long Apply(const ORXBaseUnknown_var& iObject, const char* iName);

    /// Installs one configuration, "main", of these items and applies it to the solver.
    long ApplyItems(const std::string& iItems);

private:
    std::optional<Configurations> m_configurations;
};

#endif
