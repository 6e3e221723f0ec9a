#include "WalkTest.h"

void WalkTest::Install(const std::vector<std::string>& iConfigurations)
{
    m_configurations.reset();
    m_configurations.emplace(iConfigurations);
}

long WalkTest::Apply(const ORXBaseUnknown_var& iObject, const char* iName)
{
    return m_configurations->Apply(iObject, iName);
}

long WalkTest::ApplyItems(const std::string& iItems)
{
    Install({Configuration("main", iItems)});
    return Apply(m_solver, "main");
}
