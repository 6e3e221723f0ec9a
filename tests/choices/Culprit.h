#ifndef Culprit_H
#define Culprit_H

/**
 * @file
 * Who does something to a Choice from inside a change of it, and where.
 */

#include <functional>
#include <iosfwd>
#include <memory>

#include "ChoiceLeakTest.h"

/// How the culprit is told.
enum class Place
{
    /// A listener of the Choice's instance, which is told last.
    Listener,
    /// A listener of the Choice's instance, when it is told of the data object.
    DataListener,
    /// A subscriber to its notifications.
    Subscriber,
    DataHook,
    NameHook,
    RepairHook,
    CompleteHook,
};

struct PlaceCase
{
    const char* name;
    Place place;
};

void PrintTo(const PlaceCase& iCase, std::ostream* ioStream);

/// Every place there is.
inline constexpr PlaceCase Places[] = {
    {"Listener", Place::Listener},         {"DataListener", Place::DataListener}, {"Subscriber", Place::Subscriber},
    {"DataHook", Place::DataHook},         {"NameHook", Place::NameHook},         {"RepairHook", Place::RepairHook},
    {"CompleteHook", Place::CompleteHook},
};

/// Does something at a place, the first time that the place is reached. It outlives what is done to its Choice.
class Culprit
{
public:
    Culprit(Place iPlace, const ORXISpecObject_var& iChoice, std::function<void()> iAction);
    ~Culprit();
    Culprit(const Culprit&) = delete;
    Culprit& operator=(const Culprit&) = delete;

    bool HasActed() const { return m_hasActed; }

private:
    void ListenFor(const ORXISpecObject_var& iChoice, const char* iName);
    void TakeHook(Place iPlace);
    void Act();

    std::function<void()> m_action;
    bool m_hasActed = false;
    std::unique_ptr<VYRStandalone::Subscription> m_subscription;
};

#endif
