#include "Culprit.h"

#include <ostream>
#include <utility>

#include "ActingListener.h"

void PrintTo(const PlaceCase& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

Culprit::Culprit(Place iPlace, const ORXISpecObject_var& iChoice, std::function<void()> iAction)
    : m_action(std::move(iAction))
{
    switch (iPlace)
    {
    case Place::Listener:
        ListenFor(iChoice, "value");
        break;
    case Place::DataListener:
        ListenFor(iChoice, "Data");
        break;
    case Place::Subscriber:
        m_subscription = std::make_unique<VYRStandalone::Subscription>(iChoice, [this](ORXNotification&) { Act(); });
        break;
    default:
        TakeHook(iPlace);
    }
}

Culprit::~Culprit()
{
    TestChoice::Hooks() = {};
}

void Culprit::ListenFor(const ORXISpecObject_var& iChoice, const char* iName)
{
    Listen(iChoice, [this, iName](const ORXUnicodeString& iChanged, const ORXIValue_var&) {
        if (iChanged == iName)
            Act();
    });
}

void Culprit::TakeHook(Place iPlace)
{
    ChoiceHooks& hooks = TestChoice::Hooks();
    if (iPlace == Place::DataHook)
        hooks.data = [this](TestChoice& ioSelf, const ORXUnicodeString& iStartup, bool& oDataChange) {
            Act();
            return ioSelf.BaseUpdateDataForStartup(iStartup, oDataChange);
        };
    else if (iPlace == Place::NameHook)
        hooks.name = [this](TestChoice&, const ORXUnicodeString& iStartup, ORXUnicodeString& oName) {
            Act();
            oName = iStartup;
            return S_OK;
        };
    else if (iPlace == Place::RepairHook)
        hooks.fix = [this](TestChoice&) {
            Act();
            return true;
        };
    else
        hooks.complete = [this](TestChoice&, bool, bool) {
            Act();
            return S_OK;
        };
}

void Culprit::Act()
{
    if (!std::exchange(m_hasActed, true))
        m_action();
}
