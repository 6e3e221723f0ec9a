#ifndef TestChoice_H
#define TestChoice_H

/**
 * @file
 * A Choice class of the tests, whose hooks show themselves and can be told to answer something else.
 */

#include <functional>

#include "ORXISpecObject.h"
#include "VYRCfdChoiceInstanceAdp.h"
#include "VYRCfdExtension.h"

class TestChoice;

/**
 * What the hooks of all TestChoices do instead of what the base does; an empty function is the base's. A function may
 * call the base by the operations of the Choice that it is given. Reset by `ChoiceTest` around every test.
 */
struct ChoiceHooks
{
    std::function<HRESULT(TestChoice& ioSelf, bool iWasValueChange, bool iDataChange)> complete;
    std::function<bool(TestChoice& ioSelf)> fix;
    std::function<HRESULT(TestChoice& ioSelf, const ORXUnicodeString& iStartup, ORXUnicodeString& oName)> name;
    std::function<HRESULT(TestChoice& ioSelf, const ORXUnicodeString& iStartup, bool& oDataChange)> data;
};

/**
 * Extends "ChoiceTestHooked" and what derives from it. Each hook adds a line to every VYRStandalone::CallRecorder when
 * it is called: "data TypeBeta", "name TypeBeta", "fix", "complete true false" (value change, data change). An empty
 * startup leaves "data" alone on its line.
 */
class TestChoice final : public VYRCfdExtension<TestChoice, VYRCfdChoiceInstanceAdp>
{
public:
    static constexpr const char* ClassName = "TestChoice";
    static constexpr const char* LateType = "ChoiceTestHooked";
    static constexpr const char* Framework = "Test";
    static ORXMetaClass* BaseMeta();

    TestChoice();
    ~TestChoice() override;

    /// Enters the class into the dictionary, for the life of the process. May be called again.
    static void Register();

    /// The instance on an object of the hooked type, made if need be. It lives as long as the object.
    static TestChoice& Of(const ORXISpecObject_var& iObject);

    static ChoiceHooks& Hooks();

    HRESULT BaseCompleteUpdate(bool iWasValueChange, bool iDataChange);
    bool BaseFixInvalidChoice();
    HRESULT BaseGetInstanceName(const VYRCfdObjectAccess& iObjectAccess, const ORXUnicodeString& iStartup,
                                ORXUnicodeString& oName);
    HRESULT BaseUpdateDataForStartup(const ORXUnicodeString& iStartup, bool& oDataChange);

protected:
    HRESULT CompleteUpdate(bool iWasValueChange, bool iDataChange) override;
    HRESULT GetInstanceName(const VYRCfdObjectAccess& iObjectAccess, const ORXUnicodeString& iStartup,
                            ORXUnicodeString& oName) override;
    HRESULT UpdateDataForStartup(const ORXUnicodeString& iStartup, bool& oDataChange) override;
    ORXBoolean FixInvalidChoice() override;
};

#endif
