/**
 * @file
 * Choices, their managers, and configurations.
 */

#include "Operation.h"
#include "RealAccess.h"
#include "VYRCfdConfigurator.h"
#include "VYRICfdChoice.h"
#include "VYRICfdChoiceMgr.h"
#include "VYRICfdConfigurable.h"

namespace
{
using Twin::Configurator;

std::vector<ORXUnicodeString> Texts(const std::vector<std::string>& iTexts)
{
    std::vector<ORXUnicodeString> texts;
    for (const std::string& text : iTexts)
        texts.emplace_back(text.c_str());
    return texts;
}

std::set<ORXUnicodeString> SetOf(const std::vector<std::string>& iTexts)
{
    std::set<ORXUnicodeString> texts;
    for (const std::string& text : iTexts)
        texts.insert(text.c_str());
    return texts;
}

/// An operation of an interface, which objects offer or do not.
template <class Interface>
OperationKind Of(const char* iVerb, const char* iSignature, int iWeight,
                 bool (Configurator::*iOffers)(const Twin::Object&) const,
                 std::function<HRESULT(Configurator&, Twin::Object&, const TwinArguments&)> iOnTwin,
                 std::function<HRESULT(Interface&, const RealArguments&)> iOnReal)
{
    return {iVerb, iSignature, iWeight,
            [iOffers, iOnTwin](Configurator& ioTwin, const TwinArguments& iArguments) -> std::string {
                return (ioTwin.*iOffers)(*iArguments.Self())
                           ? StatusText(iOnTwin(ioTwin, *iArguments.Self(), iArguments))
                           : "not offered";
            },
            [iOnReal](const RealArguments& iArguments) -> std::string {
                const ORXHandle<Interface> offered = iArguments.Self();
                return !offered ? "not offered" : StatusText(iOnReal(*offered.Pointer(), iArguments));
            }};
}

std::vector<OperationKind> ManagerOperations()
{
    constexpr auto managed = &Configurator::IsManaged;
    return {
        Of<VYRICfdChoiceMgr>(
            "manage", "mzwt", 25, managed,
            [](auto& t, auto& o, auto& w) { return t.ConfigureManaged(o, w.list, w.texts[0], w.texts[1]); },
            [](auto& m, auto& w) {
                return m.ConfigureChoiceMgr(Texts(w.list), w.texts[0].c_str(), w.texts[1].c_str());
            }),
        Of<VYRICfdChoiceMgr>(
            "reset", "mb", 20, managed, [](auto& t, auto& o, auto& w) { return t.Reset(o, w.integers[0] != 0); },
            [](auto& m, auto& w) { return m.Reset(static_cast<unsigned char>(w.integers[0])); }),
        Of<VYRICfdChoiceMgr>(
            "prohibit", "mz", 30, managed,
            [](auto& t, auto& o, auto& w) {
                return t.Prohibit(o, {w.list.begin(), w.list.end()});
            },
            [](auto& m, auto& w) { return m.ProhibitChoices(SetOf(w.list)); }),
        Of<VYRICfdChoiceMgr>(
            "prohibitone", "mw", 10, managed, [](auto& t, auto& o, auto& w) { return t.Prohibit(o, {w.texts[0]}); },
            [](auto& m, auto& w) { return m.ProhibitChoice(w.texts[0].c_str()); }),
        Of<VYRICfdChoiceMgr>(
            "addchoices", "mz", 20, managed,
            [](auto& t, auto& o, auto& w) {
                return t.AddChoices(o, {w.list.begin(), w.list.end()});
            },
            [](auto& m, auto& w) {
                std::set<ORXUnicodeString> added = SetOf(w.list);
                return m.AddChoices(added);
            }),
    };
}
} // namespace

std::vector<OperationKind> ChoiceOperations()
{
    constexpr auto choice = &Configurator::IsChoice;
    std::vector<OperationKind> kinds = ManagerOperations();
    const std::vector<OperationKind> others = {
        Of<VYRICfdChoice>(
            "configure", "czuwt", 35, choice,
            [](auto& t, auto& o, auto& w) {
                return t.Configure(o, w.list, SplitWords(w.texts[0]), w.texts[1], w.texts[2]);
            },
            [](auto& c, auto& w) {
                return c.Configure(Texts(w.list), Texts(SplitWords(w.texts[0])), w.texts[1].c_str(),
                                   w.texts[2].c_str());
            }),
        Of<VYRICfdChoice>(
            "configureplain", "czwt", 10, choice,
            [](auto& t, auto& o, auto& w) { return t.Configure(o, w.list, {}, w.texts[0], w.texts[1]); },
            [](auto& c, auto& w) { return c.Configure(Texts(w.list), w.texts[0].c_str(), w.texts[1].c_str()); }),
        Of<VYRICfdChoice>(
            "choose", "cw", 80, choice, [](auto& t, auto& o, auto& w) { return t.SetChoice(o, w.texts[0]); },
            [](auto& c, auto& w) { return c.SetChoice(w.texts[0].c_str()); }),
        Of<VYRICfdChoice>(
            "update", "c", 30, choice, [](auto& t, auto& o, auto&) { return t.UpdateChoice(o, ""); },
            [](auto& c, auto&) { return c.Update(); }),
        Of<VYRICfdConfigurable>(
            "open", "c", 12, choice, [](auto& t, auto& o, auto&) { return t.StartConfiguration(o); },
            [](auto& c, auto&) { return c.StartConfiguration(); }),
        Of<VYRICfdConfigurable>(
            "close", "c", 20, choice, [](auto& t, auto& o, auto&) { return t.CompleteConfiguration(o); },
            [](auto& c, auto&) { return c.CompleteConfiguration(); }),
        {"apply", "dk", 70,
         [](Configurator& t, const TwinArguments& w) { return StatusText(t.Apply(w.Self(), w.texts[0])); },
         [](const RealArguments& w) {
             return StatusText(static_cast<HRESULT>(
                 VYRCfdConfigurator::GetConfigurator()->ApplyConfiguration(w.Self(), w.texts[0].c_str())));
         }},
    };
    kinds.insert(kinds.end(), others.begin(), others.end());
    return kinds;
}
