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

/// Counts the call if the fault meets it; true when this is one of those that fail.
bool Meets(PlantedFault& ioPlanted, const char* iOperation, std::string_view iSubject, const FeatureObject* iObject)
{
    const Fault& fault = ioPlanted.fault;
    if (!Agrees(fault.operation, iOperation) || !Agrees(fault.subject, iSubject))
        return false;
    if (!fault.object.empty() && (iObject == nullptr || iObject->Path() != fault.object))
        return false;
    ++ioPlanted.met;
    return ioPlanted.met >= fault.call && (fault.times == 0 || ioPlanted.met < fault.call + fault.times);
}
} // namespace

constinit thread_local bool Instruments::s_faults = false;
constinit thread_local void* Instruments::s_recorder = nullptr;

bool Instruments::Fails(const char* iOperation, std::string_view iSubject, const FeatureObject* iObject,
                        HRESULT& oStatus)
{
    if (!s_faults)
        return false;
    Faults& faults = PerThread<Faults>::Get();
    bool fails = false;
    // All count the call; the first that fails it gives the status.
    for (PlantedFault& planted : faults.planted)
        if (Meets(planted, iOperation, iSubject, iObject) && !fails)
        {
            fails = true;
            oStatus = planted.fault.status;
        }
    if (fails)
        ++faults.hits;
    return fails;
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
