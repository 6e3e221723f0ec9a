#ifndef ReportBench_H
#define ReportBench_H

/**
 * @file
 * What the reports are provoked on.
 */

#include "ChoiceTest.h"
#include "Configurations.h"

/**
 * Has one object, "Part.1", with default management and an attribute of every kind: "title" (string), "ratio" (real),
 * "count" (integer), "flag" (boolean), "scheme" (enumeration), "zone" (component, empty), "peer" (reference, empty);
 * and the lists "titles", "ratios", "counts", "flags", "schemes", "zones" (components) and "peers" (references), each
 * with two entries. The types of `ChoiceTest` are declared, and its hooked ones have managers.
 */
class ReportBench : public ChoiceTest
{
public:
    using ChoiceTest::Make;
    using ModuleTest::Create;
    using ModuleTest::m_model;

    /// A cursor where a case wants it: "(error)", "(nothing)", "(object)", "(column)", or an attribute's name.
    VYRCfdObjectAccess At(const std::string& iPlace);

    /// The same choices and startups under a name that the cases share; not updated yet.
    ORXISpecObject_var Choice(const ChoiceDeclaration& iDeclaration = ThreeChoices());

    /// Applies one configuration, named "test", to an object.
    HRESULT Apply(const ORXBaseUnknown_var& iObject, const std::string& iItems);

    ORXISpecObject_var m_part;

protected:
    void SetUp() override;
    void TearDown() override;

    /// Lets everything go that the bench holds. Nothing of the host's is alive afterwards, unless somebody has leaked
    /// it.
    void LetGo();

private:
    ORXISpecObject_var m_column;
};

/// Where the start-up of an object stands, as planted faults name it.
std::string StartupPathOf(const ORXISpecObject_var& iObject);

/// Plants a fault for the given call alone.
void FailCall(const char* iOperation, const char* iSubject, const std::string& iObject = "", HRESULT iStatus = E_FAIL,
              int iCall = 1);

#endif
