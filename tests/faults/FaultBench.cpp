#include "FaultBench.h"

#include "Configurations.h"

namespace
{
constexpr const char* Types = R"({ "catalog": "FaultBench", "uses": ["VYRCfdBase", "ChoiceTest"], "types": [
    { "name": "FaultZone", "base": "VYRCfdValues", "attributes": [
        { "name": "temperature", "kind": "real", "default": 300.0 },
        { "name": "layers", "kind": "integer", "default": 3 },
        { "name": "outputs", "kind": "list", "of": "string" } ] },
    { "name": "FaultPart", "base": "VYRCfdValues", "attributes": [
        { "name": "title", "kind": "string", "default": "cavity" },
        { "name": "ratio", "kind": "real", "default": 0.5 },
        { "name": "count", "kind": "integer", "default": 4 },
        { "name": "flag", "kind": "boolean", "default": true },
        { "name": "scheme", "kind": "enumeration", "values": ["upwind", "central"], "default": "central" },
        { "name": "zone", "kind": "component", "type": "FaultZone" },
        { "name": "peer", "kind": "reference" },
        { "name": "kind", "kind": "component", "type": "ChoiceTestThree" },
        { "name": "titles", "kind": "list", "of": "string", "default": ["lift", "drag"] },
        { "name": "ratios", "kind": "list", "of": "real", "default": [1.5, 2.5] },
        { "name": "counts", "kind": "list", "of": "integer", "default": [10, 20] },
        { "name": "flags", "kind": "list", "of": "boolean", "default": [true, false] },
        { "name": "schemes", "kind": "list", "of": "enumeration", "values": ["upwind", "central"],
          "default": ["central", "upwind"] },
        { "name": "zones", "kind": "list", "of": "component" },
        { "name": "peers", "kind": "list", "of": "reference" } ] } ] })";

std::string Content()
{
    std::string text;
    for (const std::string& configuration : {
             Configuration("values", R"([ { "path": "titles", "value": "lift, drag, heat", "list": true } ])"),
             Configuration("swallowed", R"([ { "path": "titles", "value": "lift", "default": "0.75" } ])"),
             Configuration("default", R"([ { "path": "ratio", "type": "real", "default": "0.75" } ])"),
             Configuration("number", R"([ { "path": "count", "type": "integer", "default": "40" } ])"),
             Configuration("automatic",
                           R"([ { "path": "ratio", "type": "real", "default": "0.75", "defaultAutoKey": "auto" } ])"),
             Configuration("choice", R"([ { "path": "model", "choices": "beta,gamma", "Startups": "TypeBeta,TypeGamma",
                                            "default": "beta", "display": "Model" } ])"),
             Configuration("bareChoice", R"([ { "choices": "one, two", "default": "two" } ])"),
             Configuration("managed", R"([ { "path": "model", "choices": "alpha, beta", "default": "beta",
                                             "display": "Model" } ])"),
             Configuration("holds", R"([ { "path": "zone", "condition": "count==4", "config": "layers" } ])"),
             Configuration("doesNotHold", R"([ { "path": "zone", "condition": "ratio>0.9", "config": "layers" } ])"),
             Configuration("layers", R"([ { "path": "layers", "type": "integer", "default": "7" } ])"),
             Configuration("nested", R"([ { "path": "zone", "config": "layers" } ])"),
             Configuration("nestedChoice", R"([ { "path": "kind", "config": "choice" } ])"),
             Configuration("nestedNowhere", R"([ { "path": "nowhere", "config": "layers" } ])"),
             Configuration("itself", R"([ { "path": "", "config": "nested" },
                                          { "path": "count", "type": "integer", "default": "5" } ])"),
             Configuration("all", R"([ { "path": "count", "type": "integer", "default": "4" },
                                       { "path": "titles", "value": "lift", "list": true },
                                       { "path": "ratio", "type": "real", "default": "0.75", "defaultAutoKey": "auto" },
                                       { "path": "kind", "config": "choice" },
                                       { "path": "zone", "condition": "count==4", "config": "layers" },
                                       { "path": "zone", "config": "zone" } ])"),
             Configuration("zone", R"([ { "path": "outputs", "value": "a, b", "list": true },
                                        { "path": "temperature", "type": "real", "default": "350" } ])"),
             Configuration("none", "[]"),
             Configuration("makeForty", R"([ { "path": "count", "type": "integer", "default": "40" } ])"),
             Configuration("recordAll", R"([ { "path": "Data", "condition": "value==beta", "config": "makeForty" },
                                             { "path": "Data", "condition": "value==alpha", "config": "none" } ])"),
         })
        text += (text.empty() ? "" : ",\n") + configuration;
    return text;
}

/// Lives as long as the process, as what is loaded from it does.
const TemporaryFolder& Installation()
{
    static const TemporaryFolder folder;
    static const bool isWritten = [] {
        WriteInstallation(folder, Content());
        return true;
    }();
    static_cast<void>(isWritten);
    return folder;
}

class LoadedConfigurator : public VYRCfdConfigurator
{
public:
    explicit LoadedConfigurator(std::vector<ORXUnicodeString> iFiles) : VYRCfdConfigurator(iFiles)
    {
        VYRCfdConfigurationMap map;
        EXPECT_EQ(GetConfigurationMap(map), S_OK);
    }
};

void Append(const ORXISpecObject_var& iOwner, const char* iList, const ORXISpecObject_var& iObject)
{
    const ORXISpecAttrAccess_var access = AccessOf(iOwner);
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iList));
    ASSERT_EQ(access->InsertAtPosition(key, iObject, access->GetListSize(key) + 1), S_OK);
}
} // namespace

void FaultBench::SetUp()
{
    TestManager::Register();
    Declare(Types);
    VYRStandalone::SetOfficialVariable("ORXInstallPath", InstallationFolder());
    Configurator();
    VYRCfdConfigurationMap map;
    ASSERT_EQ(VYRCfdConfigurator::GetConfigurator()->GetConfigurationMap(map), S_OK);
}

VYRCfdConfigurator& FaultBench::Configurator()
{
    static LoadedConfigurator configurator(InstallationFiles());
    return configurator;
}

const ORXISpecObject_var& FaultBench::Part()
{
    if (!m_part)
    {
        m_part = m_model.Create("FaultPart", "Part.1");
        for (const char* name : {"Zone.1", "Zone.2"})
            Append(m_part, "zones", m_model.Create("FaultZone", name));
        for (const char* name : {"Peer.1", "Peer.2"})
            Append(m_part, "peers", m_model.Create("FaultZone", name));
        VYRStandalone::SetAlias(m_part, "Main part");
        VYRStandalone::SetIdentifier(m_part, "P-1");
        EXPECT_EQ(WriteObject(m_part, "peer", m_model.Find("Peer.1")), S_OK);
    }
    return m_part;
}

const ORXISpecObject_var& FaultBench::Choice()
{
    if (!m_choice)
    {
        m_choice = m_model.Create("ChoiceTestThree", "Choice.1");
        EXPECT_EQ(ChoiceOf(m_choice)->Update(), S_OK);
    }
    return m_choice;
}

const ORXISpecObject_var& FaultBench::Managed()
{
    if (!m_managed)
    {
        m_managed = m_model.Create("ChoiceTestHookedThree", "Choice.2");
        EXPECT_EQ(ChoiceOf(m_managed)->Update(), S_OK);
    }
    return m_managed;
}

VYRCfdObjectAccess FaultBench::At(const std::string& iPlace)
{
    if (iPlace == "(error)")
        return VYRCfdObjectAccess(ORXUnicodeString("broken link %s%n"));
    if (iPlace == "(nothing)")
        return VYRCfdObjectAccess(ORXUnicodeString());
    if (iPlace == "(object)")
        return Cursor(Part());
    if (iPlace == "(column)")
    {
        m_column = VYRStandalone::MakeTableColumn();
        EXPECT_EQ(Cursor(m_column).SetDouble(1.5, 1), S_OK);
        EXPECT_EQ(Cursor(m_column).SetDouble(2.5, 2), S_OK);
        return Cursor(m_column);
    }
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(AccessOf(Part())->GetAttrKey(iPlace.c_str()));
    // Stays at the attribute of an object as well.
    const VYRCfdObjectAccess at = Cursor(Part()).Get(key.Pointer(), 0);
    return at.GetType().IsEmpty() ? at : Cursor(Part()).Ref(key.Pointer());
}

const std::vector<std::string>& Places()
{
    static const std::vector<std::string> places{"(error)", "(nothing)", "(object)", "(column)", "title", "ratio",
                                                 "count",   "flag",      "scheme",   "zone",     "peer",  "titles",
                                                 "ratios",  "counts",    "flags",    "schemes",  "zones", "peers"};
    return places;
}

std::string InstallationFolder()
{
    return Installation().Path();
}

std::vector<ORXUnicodeString> InstallationFiles()
{
    return {"meshFYEConfig.json", "solverConfig_Flow.json"};
}
