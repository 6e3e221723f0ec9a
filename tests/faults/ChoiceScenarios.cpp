#include "Scenario.h"

#include "VYRCfdConfigurator.h"

namespace
{
using Call = std::string (*)(const ORXISpecObject_var& ispChoice);

Scenario On(const char* iName, Call iCall, const std::function<void(const ORXISpecObject_var&)>& iBefore = {},
            Scenario::Kind iKind = Scenario::Kind::Writes)
{
    Scenario scenario;
    scenario.name = iName;
    scenario.kind = iKind;
    scenario.prepare = [=](FaultBench& ioBench) -> Action {
        const ORXISpecObject_var choice = ioBench.Choice();
        if (iBefore)
            iBefore(choice);
        // Held, so that the calls themselves are what fails.
        return [=, held = ChoiceOf(choice)] { return iCall(choice); };
    };
    return scenario;
}

/// The Choice itself, whose interface is asked for while calls fail.
std::string With(const ORXISpecObject_var& ispChoice, const std::function<HRESULT(VYRICfdChoice&)>& iCall)
{
    const VYRICfdChoice_var choice = ispChoice;
    return !choice ? "no Choice" : AnswerOf(iCall(*choice.Pointer()));
}

std::string Update(const ORXISpecObject_var& ispChoice)
{
    return With(ispChoice, [](VYRICfdChoice& ioChoice) { return ioChoice.Update(); });
}

std::string Select(const ORXISpecObject_var& ispChoice)
{
    return With(ispChoice, [](VYRICfdChoice& ioChoice) { return ioChoice.SetChoice("beta"); });
}

std::string SelectAgain(const ORXISpecObject_var& ispChoice)
{
    return With(ispChoice, [](VYRICfdChoice& ioChoice) { return ioChoice.SetChoice("alpha"); });
}

std::string SelectNothing(const ORXISpecObject_var& ispChoice)
{
    return With(ispChoice, [](VYRICfdChoice& ioChoice) { return ioChoice.SetChoice("omega"); });
}

std::string Selected(const ORXISpecObject_var& ispChoice)
{
    return With(ispChoice, [](VYRICfdChoice& ioChoice) {
        ORXUnicodeString choice;
        return ioChoice.GetChoice(choice);
    });
}

std::string Listed(const ORXISpecObject_var& ispChoice)
{
    return With(ispChoice, [](VYRICfdChoice& ioChoice) {
        std::vector<ORXUnicodeString> choices;
        return ioChoice.GetListOfChoices(choices);
    });
}

std::string ListedTranslated(const ORXISpecObject_var& ispChoice)
{
    return With(ispChoice, [](VYRICfdChoice& ioChoice) {
        std::vector<ORXUnicodeString> choices;
        return ioChoice.GetListOfChoicesNLS(choices);
    });
}

std::string Display(const ORXISpecObject_var& ispChoice)
{
    return With(ispChoice, [](VYRICfdChoice& ioChoice) {
        ORXUnicodeString display;
        return ioChoice.GetDefaultDisplay(display);
    });
}

std::string Configure(const ORXISpecObject_var& ispChoice)
{
    return With(ispChoice, [](VYRICfdChoice& ioChoice) {
        return ioChoice.Configure(Texts({"gamma", "beta"}), Texts({"TypeGamma", "TypeBeta"}), "beta", "Model");
    });
}

std::string ConfigureWithoutStartups(const ORXISpecObject_var& ispChoice)
{
    return With(ispChoice, [](VYRICfdChoice& ioChoice) {
        return ioChoice.Configure(Texts({"gamma", "beta", "alpha"}), "beta", "");
    });
}

std::string Bracket(const ORXISpecObject_var& ispChoice)
{
    const VYRICfdConfigurable_var configurable = ispChoice;
    if (!configurable)
        return "not configurable";
    configurable->StartConfiguration();
    Cursor(ispChoice).Get("value").SetString("gamma");
    return AnswerOf(configurable->CompleteConfiguration());
}

std::string SetDefault(const ORXISpecObject_var& ispChoice)
{
    const VYRIMpaDefaultManagementProtected_var management = ispChoice;
    ORXUnicodeString text = "gamma";
    return !management ? "no management" : AnswerOf(management->SetCustomDefault("value", text));
}

std::string Unset(const ORXISpecObject_var& ispChoice)
{
    const VYRIMpaDefaultManagementProtected_var management = ispChoice;
    return !management ? "no management" : AnswerOf(management->Unset("value"));
}

std::string WriteChoices(const ORXISpecObject_var& ispChoice)
{
    return AnswerOf(
        Cursor(ispChoice).Get("choices").SetStrings(std::vector<ORXUnicodeString>{"alpha", "gamma", "beta"}));
}

std::string WriteStartups(const ORXISpecObject_var& ispChoice)
{
    return AnswerOf(Cursor(ispChoice).Get("Startups").SetStrings(std::vector<ORXUnicodeString>{}));
}

void SelectBeta(const ORXISpecObject_var& ispChoice)
{
    EXPECT_EQ(ChoiceOf(ispChoice)->SetChoice("beta"), S_OK);
}

/// A value that the new choices do not have.
void OfferOthers(const ORXISpecObject_var& ispChoice)
{
    const VYRICfdConfigurable_var configurable = ispChoice;
    EXPECT_EQ(configurable->StartConfiguration(), S_OK);
    SelectBeta(ispChoice);
    WriteTexts(ispChoice, "choices", {"alpha", "gamma"});
    WriteTexts(ispChoice, "Startups", {"TypeAlpha", "TypeGamma"});
    // The bracket is closed by whoever updates.
}

/// The data object gets what was recorded for it.
void Record(const ORXISpecObject_var& ispChoice)
{
    EXPECT_EQ(VYRCfdConfigurator::GetConfigurator()->ApplyConfiguration(ispChoice, "recordAll"), S_OK);
}

Scenario First()
{
    Scenario scenario;
    scenario.name = "a first update";
    scenario.prepare = [](FaultBench& ioBench) -> Action {
        return [choice = ioBench.m_model.Create("ChoiceTestThree", "Choice.1")] { return Update(choice); };
    };
    return scenario;
}

void AddUpdates(ScenarioGroup& ioGroup)
{
    std::vector<Scenario>& scenarios = ioGroup.scenarios;
    scenarios.push_back(First());
    scenarios.push_back(On("an update with nothing to do", &Update));
    scenarios.push_back(On("an update that replays records", &Select, &Record));
    scenarios.push_back(On("SetChoice, replacing data", &Select));
    scenarios.push_back(On("SetChoice, the same again", &SelectAgain));
    scenarios.push_back(On("SetChoice, no choice", &SelectNothing));
    scenarios.push_back(On("a value repaired", &Bracket, &OfferOthers));
    scenarios.push_back(On("choices written", &WriteChoices));
    scenarios.push_back(On("startups taken away", &WriteStartups));
    scenarios.push_back(On("StartConfiguration to CompleteConfiguration", &Bracket));
}

void AddOperations(ScenarioGroup& ioGroup)
{
    constexpr Scenario::Kind reads = Scenario::Kind::Reads;
    std::vector<Scenario>& scenarios = ioGroup.scenarios;
    scenarios.push_back(On("GetChoice", &Selected, {}, reads));
    scenarios.push_back(On("GetListOfChoices", &Listed, {}, reads));
    scenarios.push_back(On("GetListOfChoicesNLS", &ListedTranslated, {}, reads));
    scenarios.back().isSilent = true;
    scenarios.push_back(On("GetDefaultDisplay", &Display, {}, reads));
    scenarios.push_back(On("Configure", &Configure));
    scenarios.push_back(On("Configure without startups", &ConfigureWithoutStartups));
    scenarios.push_back(On("SetCustomDefault", &SetDefault));
    scenarios.push_back(On("SetCustomDefault, on a value", &SetDefault, &SelectBeta));
    scenarios.push_back(On("Unset", &Unset, &SelectBeta));
}
} // namespace

void AddChoiceScenarios(std::vector<ScenarioGroup>& ioGroups)
{
    ioGroups.push_back({"choices_updates", {}});
    AddUpdates(ioGroups.back());
    ioGroups.push_back({"choices_operations", {}});
    AddOperations(ioGroups.back());
}
