/**
 * @file
 * What happens when the library is loaded, in its order. This program stands in for the host, and for the C library
 * where something is registered for the end of the process, looks at each call and hands it on.
 */

#include <array>
#include <string>
#include <vector>

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "ORXFillDictionary.h"
#include "ORXTrace.h"
#include "VYRCfdConfigurator.h"

namespace
{
using Lines = std::vector<std::string>;

enum class Kind
{
    AtExit,
    Channel,
    Module,
};

struct Event
{
    Kind kind;
    /// What is cleaned up, or made.
    const void* object;
    /// Something inside the library that calls.
    const void* caller;
};

// Not made by code, since libraries call before this program's own statics are made.
constinit std::array<Event, 4096> events{};
constinit std::size_t eventCount = 0;

void Note(Kind iKind, const void* iObject, const void* iCaller)
{
    if (eventCount < events.size())
        events[eventCount++] = {iKind, iObject, iCaller};
}

template <class Function> Function* TheNext(const char* iSymbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, iSymbol));
}

/// Where the library lies that an address is of; null for none.
const void* LibraryOf(const void* iAddress)
{
    Dl_info info{};
    return dladdr(iAddress, &info) != 0 ? info.dli_fbase : nullptr;
}
} // namespace

/// A library registers the end of each of its statics under its own handle.
extern "C" int __cxa_atexit(void (*iFunction)(void*), void* iObject, void* iLibrary)
{
    Note(Kind::AtExit, iObject, iLibrary);
    return TheNext<int(void (*)(void*), void*, void*)>("__cxa_atexit")(iFunction, iObject, iLibrary);
}

ORXTrace::ORXTrace(const char* iName, const char* iDescription, ORXTraMode iMode, const char* iFile, int iLevel)
    : m_name(nullptr), m_description(nullptr), m_file(nullptr), m_active(nullptr), m_level(0)
{
    Note(Kind::Channel, this, __builtin_return_address(0));
    TheNext<void(ORXTrace*, const char*, const char*, ORXTraMode, const char*, int)>(
        "_ZN8ORXTraceC1EPKcS1_10ORXTraModeS1_i")(this, iName, iDescription, iMode, iFile, iLevel);
}

ORXOMModule::ORXOMModule(const ORXOMModuleInfo& iInfo) : m_info(iInfo)
{
    Note(Kind::Module, this, __builtin_return_address(0));
    TheNext<void(ORXOMModule*, const ORXOMModuleInfo&)>("_ZN11ORXOMModuleC1ERK15ORXOMModuleInfo")(this, iInfo);
}

namespace
{
/// Everything that the library of an address has caused while it was loaded.
std::vector<Event> EventsOf(const void* iAddress)
{
    const void* const library = LibraryOf(iAddress);
    std::vector<Event> found;
    for (std::size_t i = 0; i < eventCount; ++i)
        if (LibraryOf(events[i].caller) == library)
            found.push_back(events[i]);
    return found;
}

/// The configurations' singleton, which is no business of callers.
const void* Configurations()
{
    return dlsym(RTLD_DEFAULT, "_ZN18VYRCfdConfigurator14spConfiguratorE");
}

std::string Line(const Event& iEvent, const void* iModule)
{
    switch (iEvent.kind)
    {
    case Kind::AtExit:
        if (iEvent.object == Configurations())
            return "at exit: configurations";
        return iEvent.object == iModule ? "at exit: module object" : "at exit: something";
    case Kind::Channel:
        return std::string("channel ") + static_cast<const ORXTrace*>(iEvent.object)->Name();
    case Kind::Module:
        return "module object";
    }
    return "";
}

/// Clean-ups are registered first, channels are there before the dictionary's object, and what is made last ends first.
TEST(LoadOrderTest, ConfigurationsThenChannelsThenTheModuleObject)
{
    ASSERT_NE(Configurations(), nullptr);
    ASSERT_LT(eventCount, events.size());
    const std::vector<Event> loaded = EventsOf(reinterpret_cast<const void*>(&VYRCfdConfigurator::GetConfigurator));
    const void* module = nullptr;
    for (const Event& event : loaded)
        if (event.kind == Kind::Module)
            module = event.object;
    Lines lines;
    for (const Event& event : loaded)
        lines.push_back(Line(event, module));
    EXPECT_EQ(lines, (Lines{"at exit: configurations", "channel CFD_DEBUG", "channel CFD_FEATURES", "channel CFD_SIM",
                            "channel CFD_VALIDITY", "channel CFD_JS", "channel CFD_DECORATE", "channel CFD_JSON",
                            "channel CFD_UI", "channel CFD_TEST", "module object", "at exit: module object"}));
}
} // namespace
