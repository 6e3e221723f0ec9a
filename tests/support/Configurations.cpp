#include "Configurations.h"

#include "VYRStandaloneServices.h"

std::string Configuration(const std::string& iName, const std::string& iItems)
{
    return R"({ "name": ")" + iName + R"(", "config": )" + iItems + " }";
}

Configurations::Configurations(const std::vector<std::string>& iConfigurations) : m_configurator({"test.json"})
{
    std::string text;
    for (const std::string& configuration : iConfigurations)
        text += (text.empty() ? "" : ",\n") + configuration;
    m_folder.Write("reffiles/VYRCfdApp/test.json", R"({ "configurations": [)" + text + "] }");
    VYRStandalone::SetOfficialVariable("ORXInstallPath", m_folder.Path());
}

Configurations::~Configurations()
{
    VYRStandalone::ResetOfficialVariable("ORXInstallPath");
}

long Configurations::Apply(const ORXBaseUnknown_var& iObject, const ORXUnicodeString& iName)
{
    return m_configurator.ApplyConfiguration(iObject, iName);
}
