#include "ManagerTest.h"

Record UnequalLists()
{
    return Assertion("choices.size() == startups.size()", "VYRCfdChoiceInstanceAdp::Update");
}

void ManagerTest::SetUp()
{
    ChoiceTest::SetUp();
    TestManager::Register();
    Take(Declared());
}

void ManagerTest::Take(const ChoiceDeclaration& iDeclaration)
{
    m_choice = MakeUpdated(iDeclaration);
    m_manager = ManagerOf(m_choice);
    ASSERT_FALSE(!m_manager);
}

HRESULT ManagerTest::Configure(const Lines& iChoices, const char* iDefault, const char* iDisplay)
{
    return m_manager->ConfigureChoiceMgr(Texts(iChoices), iDefault, iDisplay);
}

HRESULT ManagerTest::ProhibitAll(const std::set<ORXUnicodeString>& iChoices)
{
    return m_manager->ProhibitChoices(iChoices);
}

HRESULT ManagerTest::AddAll(std::set<ORXUnicodeString> iChoices)
{
    return m_manager->AddChoices(iChoices);
}

std::string ManagerTest::StartupPath() const
{
    return VYRStandalone::PathOf(ORXISpecObject_var::Adopt(m_choice->GetStartup()));
}

const ChoiceDeclaration& Declared()
{
    static const ChoiceDeclaration declared = {
        {"alpha", "beta", "gamma"}, {"TypeAlpha", "TypeBeta", "TypeGamma"}, "alpha", "Three", ""};
    return declared;
}

void MakeCastFail(const char* iInterface, const std::string& iObject)
{
    VYRStandalone::Fault fault;
    fault.operation = "QueryInterface";
    fault.subject = iInterface;
    fault.object = iObject;
    fault.times = 0;
    VYRStandalone::PlantFault(fault);
}

Lines WritesAndSteps(const Lines& iLines)
{
    return Only(iLines, {"write", "data", "name", "create", "take", "fix", "allow", "complete", "dispatch", "manage",
                         "prohibit"});
}
