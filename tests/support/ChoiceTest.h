#ifndef ChoiceTest_H
#define ChoiceTest_H

/**
 * @file
 * Choices as the objects of tests: making them, reading what they hold, and the lines of what happens to them.
 */

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "FlowTest.h"
#include "TestChoice.h"
#include "VYRICfdChoice.h"
#include "VYRICfdConfigurable.h"
#include "VYRStandaloneInstruments.h"
#include "VYRStandaloneServices.h"

/// What a type declares for its Choices, on its start-up. The declared value is the default.
struct ChoiceDeclaration
{
    Lines choices;
    Lines startups;
    std::optional<std::string> value;
    std::string display;
    std::string dataName;
};

/**
 * Declares these types:
 *
 * | name                  | base               | what it has                                                     |
 * |-----------------------|--------------------|-----------------------------------------------------------------|
 * | TypeAlpha             | VYRCfdValues       | size (real, 1.5), count (integer, 2), label (string, a)         |
 * | TypeBeta              | VYRCfdValues       | size (real, 2.5), count (integer, 3), label (string, b)         |
 * | TypeGamma             | VYRCfdValues       | count (integer, 4)                                              |
 * | ChoiceTestChoice      | VYRCfdChoice       | nothing: no value, no lists. The module's own extension         |
 * | ChoiceTestHooked      | VYRCfdChoice       | nothing. Extended by TestChoice                                 |
 * | ChoiceTestThree       | ChoiceTestChoice   | choices alpha, beta, gamma, the three types, alpha, "Three"     |
 * | ChoiceTestHookedThree | ChoiceTestHooked   | the same                                                        |
 * | ChoiceTestOwner       | VYRCfdValues       | model (component, ChoiceTestHooked; declared here as above, but |
 * |                       |                    | beta, "Model"), kind (component, VYRCfdChoice; choices one, two |
 * |                       |                    | without startups, one), steps (integer, 10)                     |
 */
class ChoiceTest : public ModuleTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// A Choice of a type of its own, which declares so much. It is extended by TestChoice and has not been updated: no
    /// data object, no manipulator, no flags.
    ORXISpecObject_var Make(const ChoiceDeclaration& iDeclaration, const char* iName = "Choice.1");

    /// The same, extended by the module's own class.
    ORXISpecObject_var MakeOwn(const ChoiceDeclaration& iDeclaration, const char* iName = "Choice.1");

    /// `Make`, and one update.
    ORXISpecObject_var MakeUpdated(const ChoiceDeclaration& iDeclaration, const char* iName = "Choice.1");

    /// Gives a Choice a record of a conditional configuration, behind those that it has. Null leaves the attribute
    /// without a value.
    void AddConfigRecord(const ORXISpecObject_var& iChoice, const char* iPath, const char* iCondition,
                         const char* iConfig);
};

/// Choices alpha, beta and gamma with the three types, of which alpha is declared as the value.
const ChoiceDeclaration& ThreeChoices();

std::vector<ORXUnicodeString> Texts(const Lines& iTexts);

VYRICfdChoice_var ChoiceOf(const ORXISpecObject_var& iObject);
VYRICfdConfigurable_var ConfigurableOf(const ORXISpecObject_var& iObject);

/// The texts that the manipulator of `value` offers; "(no manipulator)" alone where there is none.
Lines AllowedOf(const ORXISpecObject_var& iChoice);

/// The object under `Data`; null where there is none.
ORXISpecObject_var DataOf(const ORXISpecObject_var& iChoice);

/// The type of the object under `Data`; empty where there is none.
std::string DataTypeOf(const ORXISpecObject_var& iChoice);

/// Replaces a list of strings, as any writer does.
void WriteTexts(const ORXISpecObject_var& iObject, const char* iName, const Lines& iTexts);

/// Makes a text the custom default of `value` in silence: no attribute is touched, no update runs.
void KeepDefault(const ORXISpecObject_var& iChoice, const char* iDefault);

/// Whether default management holds a custom default of `value`.
bool HasCustomDefault(const ORXISpecObject_var& iChoice);

/// Of recorded lines those that begin with one of the words.
Lines Only(const Lines& iLines, std::initializer_list<std::string_view> iWords);

/// As reports name it.
inline constexpr const char* Update = "VYRCfdChoiceInstanceAdp::Update";

/// The lines of what happens while it lives.
class ChoiceRecorder
{
public:
    /// The hooks, creations, allowed values, objects set under `Data` or taken from it, and callbacks, since the
    /// beginning or the last take: "data", "name", "create", "take", "fix", "allow", "complete" and "dispatch".
    Lines TakeSteps();

    /// Everything.
    Lines Take() { return m_calls.Take(); }

private:
    VYRStandalone::CallRecorder m_calls;
};

/// Counts the notifications of an object, while it lives.
class NotificationCounter
{
public:
    explicit NotificationCounter(const ORXBaseUnknown_var& iObject)
        : m_subscription(iObject, [this](ORXNotification&) { ++m_count; })
    {
    }
    NotificationCounter(const NotificationCounter&) = delete;
    NotificationCounter& operator=(const NotificationCounter&) = delete;

    int Count() const { return m_count; }

private:
    int m_count = 0;
    VYRStandalone::Subscription m_subscription;
};

#endif
