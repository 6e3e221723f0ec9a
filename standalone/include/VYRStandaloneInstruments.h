#ifndef VYRStandaloneInstruments_H
#define VYRStandaloneInstruments_H

/**
 * @file
 * Instruments for tests: planted faults, a record of host calls, and the census of components. All are per thread but
 * the census. With none in use, an operation pays the test of one flag.
 */

#include <string>
#include <vector>

#include "ORXBaseUnknown.h"
#include "VYRStandaloneExport.h"

namespace VYRStandalone
{
/**
 * A planted fault. It meets the calls for which all that is given agrees; of these, the one numbered `call` fails, and
 * the `times - 1` behind it.
 *
 * An operation that answers a status fails with `status` and does nothing; one that answers a pointer, a handle or a
 * key gives null; `HasAttribute` gives false. `CreateBasicComponent` with a status that is no failure gives that
 * status and no object. A write through an attribute object counts as one of its object.
 */
struct Fault
{
    /// Name of the operation, such as "SetBoolean", "ListObjects", "GetParm" (`ORXCke_GetParm`), "GetValue",
    /// "GetParmDictionary", "CreateParm", "QueryInterface"; those of an adapter bear the names of its operations, those
    /// of free functions their own without the prefix, as "GetEnv" and "FindPath". Empty meets any.
    std::string operation;
    /// Attribute name of attribute operations; feature type of creations; interface name of "QueryInterface";
    /// type name or file name elsewhere. Empty meets any.
    std::string subject;
    /// Path of the object (`PathOf`); empty meets any.
    std::string object;
    /// Number of the first call that fails, counted from 1.
    int call = 1;
    /// 0: all from then on.
    int times = 1;
    /// What an operation that answers a status answers.
    HRESULT status = E_FAIL;
    /// Meets only reads that answer a value, "GetValue" of parameters: they answer one that is not valuated, as for an
    /// attribute without a value, and no null.
    bool isUnset = false;
};

/// Plants a fault beside those that are there, for this thread.
VYRStandaloneExport void PlantFault(const Fault& iFault);
/// Takes all faults of this thread away.
VYRStandaloneExport void ClearFaults();
/// How many calls have failed by planted faults since the last `ClearFaults`.
VYRStandaloneExport int FaultsHit();

/**
 * Records the host calls that may change a model, and the notifications, of this thread, while it lives. One line
 * each, in the order in which the calls begin:
 *
 *     write Solver.1.relaxation = 0.7          a scalar, by any road; "(none)" takes the value away
 *     write Solver.1.monitors[2] = lift        an entry of a list
 *     write Solver.1.monitors = [lift, drag]   a whole list of strings
 *     insert Solver.1.zones[2] = Zone.1        objects by their names; "(null)" for null
 *     move Solver.1.zones[1] = Zone.1
 *     remove Solver.1.zones[3]
 *     clear Solver.1.zones
 *     take Solver.1.zones = Zone.1             RemoveObject
 *     add Solver.1/defaultManagement.relaxation_isset
 *     create VYRCfdConfigItem ConfigItem
 *     allow Solver.1/turbulence.value = [laminar, kOmega]      the values that a manipulator offers
 *     dispatch Solver.1/turbulence             callbacks of an object begin
 *     advise Solver.1.relaxation = 0.7         the notification begins
 *     done Solver.1.relaxation                 the notification ends
 *
 * A call is recorded also when it then fails. Recorders nest: each has its own lines.
 */
class VYRStandaloneExport CallRecorder
{
public:
    CallRecorder();
    ~CallRecorder();
    CallRecorder(const CallRecorder&) = delete;
    CallRecorder& operator=(const CallRecorder&) = delete;

    /// The lines since the beginning or the last call of this, and none left.
    std::vector<std::string> Take();

private:
    std::vector<std::string> m_lines;
    CallRecorder* m_outer;
    friend class CallRecorderAccess;
};

/// Adds a line of the caller's own to every recorder of this thread.
VYRStandaloneExport void RecordLine(const std::string& iLine);

/// Components that are alive and that can die: objects, ties, extension instances, values and parameters that are held
/// beyond their attribute, free-standing parameters, keys of added attributes, and whatever else counts itself. Types,
/// prototypes, keys and what belongs to them are not in it.
VYRStandaloneExport int LiveComponents();

/// What is alive, one text a class with its number, such as "FeatureObject 2"; empty when nothing is.
VYRStandaloneExport std::vector<std::string> LiveComponentNames();

/// References on a component: on an object also those that its facets and parameters hold; values count for themselves,
/// and outlive their object. 0 for null.
VYRStandaloneExport unsigned int ReferenceCount(ORXBaseUnknown* iComponent);
} // namespace VYRStandalone

#endif
