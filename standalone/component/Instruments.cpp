#include "Instruments.h"

#include <vector>

#include "FeatureKey.h"
#include "FeatureObject.h"
#include "InstrumentState.h"
#include "InterfaceNames.h"
#include "PerThread.h"
#include "VYRStandaloneInstruments.h"

namespace VYRStandalone
{
namespace
{
struct PlantedFault
{
    Fault fault;
    /// Calls that it has met.
    int met = 0;
};

struct Faults
{
    std::vector<PlantedFault> planted;
    int hits = 0;
};

bool Agrees(const std::string& iWanted, std::string_view iGiven)
{
    return iWanted.empty() || iWanted == iGiven;
}

/// What a host call is.
struct Call
{
    const char* operation;
    std::string_view subject;
    const FeatureObject* object;
    /// Its answer is a value, which may be unset.
    bool readsValue;
};

/// Counts the call if the fault meets it; true when this is one of those that fail.
bool Meets(PlantedFault& ioPlanted, const Call& iCall)
{
    const Fault& fault = ioPlanted.fault;
    if (fault.isUnset && !iCall.readsValue)
        return false;
    if (!Agrees(fault.operation, iCall.operation) || !Agrees(fault.subject, iCall.subject))
        return false;
    if (!fault.object.empty() && (iCall.object == nullptr || iCall.object->Path() != fault.object))
        return false;
    ++ioPlanted.met;
    return ioPlanted.met >= fault.call && (fault.times == 0 || ioPlanted.met < fault.call + fault.times);
}

/// The fault that the call fails by; null for none.
const Fault* Meet(const Call& iCall)
{
    Faults& faults = PerThread<Faults>::Get();
    const Fault* first = nullptr;
    // All count the call; the first that fails it says how.
    for (PlantedFault& planted : faults.planted)
        if (Meets(planted, iCall) && first == nullptr)
            first = &planted.fault;
    if (first != nullptr)
        ++faults.hits;
    return first;
}
} // namespace

constinit thread_local bool Instruments::s_faults = false;
constinit thread_local void* Instruments::s_recorder = nullptr;

bool Instruments::Fails(const char* iOperation, std::string_view iSubject, const FeatureObject* iObject,
                        HRESULT& oStatus)
{
    if (!s_faults)
        return false;
    const Fault* const fault = Meet({iOperation, iSubject, iObject, false});
    if (fault != nullptr)
        oStatus = fault->status;
    return fault != nullptr;
}

Instruments::Answer Instruments::AnswerOf(const char* iOperation, std::string_view iSubject,
                                          const FeatureObject* iObject)
{
    const Fault* const fault = s_faults ? Meet({iOperation, iSubject, iObject, true}) : nullptr;
    if (fault == nullptr)
        return Answer::Value;
    return fault->isUnset ? Answer::Unset : Answer::Null;
}

bool Instruments::Fails(const char* iOperation, ORXISpecAttrKey* iKey, const FeatureObject* iObject, HRESULT& oStatus)
{
    return s_faults && Fails(iOperation, std::string_view(NameOf(iKey)), iObject, oStatus);
}

bool Instruments::FailsCast(const IID& iInterface, void** oInterface, HRESULT& oStatus)
{
    if (!Fails("QueryInterface", std::string_view(InterfaceNames::Of(iInterface)), nullptr, oStatus))
        return false;
    *oInterface = nullptr;
    return true;
}

std::string Instruments::NameOf(ORXISpecAttrKey* iKey)
{
    return iKey != nullptr ? std::string(iKey->GetName().View()) : std::string();
}

void PlantFault(const Fault& iFault)
{
    PerThread<Faults>::Get().planted.push_back({iFault});
    InstrumentState::SetFaults(true);
}

void ClearFaults()
{
    PerThread<Faults>::Get() = {};
    InstrumentState::SetFaults(false);
}

int FaultsHit()
{
    return PerThread<Faults>::Get().hits;
}
} // namespace VYRStandalone
