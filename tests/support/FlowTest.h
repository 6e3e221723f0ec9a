#ifndef FlowTest_H
#define FlowTest_H

/**
 * @file
 * A small flow solver as the object of tests: features with default management, what the module has kept about them,
 * and the roads by which a user writes.
 */

#include <string>
#include <vector>

#include "ModuleTest.h"
#include "VYRIMpaDefaultManagementProtected.h"

using Lines = std::vector<std::string>;

/**
 * Has one solver, "Solver.1", of type "FlowTestSolver", with default management. Its attributes, and what its type
 * declares for them:
 *
 * | name       | kind                          | default  |
 * |------------|-------------------------------|----------|
 * | iterations | integer                       | 500      |
 * | relaxation | real                          | 0.7      |
 * | scheme     | enumeration (upwind, central) | upwind   |
 * | steady     | boolean                       | true     |
 * | title      | string                        | flow     |
 * | seed       | integer                       |          |
 * | monitors   | list of strings               | [mass]   |
 * | zone       | component, "FlowTestZone"     |          |
 * | zones      | list of components            |          |
 * | material   | reference                     |          |
 * | choice     | component, "VYRCfdChoice"     |          |
 *
 * "FlowTestZone" has default management too, and the attributes temperature (real, 300), layers (integer, 3) and
 * outputs (list of strings). "FlowTestSteadySolver" derives from the solver. "FlowTestMaterial" (density) and
 * "FlowTestGroup" (components zone and flags, the latter of type "VYRCfdDefaultManagement") have none, nor has
 * "FlowTestForeign" (component flags), which tests may extend by their own.
 */
class FlowTest : public ModuleTest
{
protected:
    void SetUp() override;

    /// The solver's default management.
    VYRIMpaDefaultManagementProtected_var DefaultManagement() const;

    /// The solver's default-management sub-feature.
    ORXISpecObject_var SubFeature() const;

    ORXISpecObject_var m_solver;
};

/// The object at a path.
ORXISpecObject_var At(const ORXISpecObject_var& iObject, const char* iPath);

/// Default management of an object; null when it has none.
VYRIMpaDefaultManagementProtected_var DefaultManagementOf(const ORXISpecObject_var& iObject);

/// A value as text: "(null)" for a null handle, "(none)" for one without a value.
std::string TextOf(const ORXICkeInst_var& iValue);

/// The value of a scalar attribute as text; "(no parameter)" where there is none.
std::string ValueOf(const ORXISpecObject_var& iObject, const char* iName);

/// The entries of a list of strings.
Lines TextsOf(const ORXISpecObject_var& iObject, const char* iName);

/// What default management answers as the default, as text. Asking may keep a record's default.
std::string DefaultOf(const ORXISpecObject_var& iObject, const char* iName);

/// The flags as they stand: "absent", "false" or "true". Looking changes nothing.
std::string SetFlagOf(const ORXISpecObject_var& iObject, const char* iName);
std::string AutoFlagOf(const ORXISpecObject_var& iObject, const char* iName);

/// The records of an object in their order, each with the attributes that were written, as in
/// "type=integer path=iterations default=40".
Lines RecordsOf(const ORXISpecObject_var& iObject);

/// Number of records in the model, whether or not an object refers to them.
int RecordsIn(const VYRStandalone::Model& iModel);

/// Gives an object a record about a default, behind those that it has.
void AddRecord(VYRStandalone::Model& ioModel, const ORXISpecObject_var& iObject, const char* iPath,
               const char* iDefault);

/// Writes a value as a user does, from text.
void Write(const ORXISpecObject_var& iObject, const char* iName, const char* iValue);

/// Takes a value away as a user does.
void TakeAway(const ORXISpecObject_var& iObject, const char* iName);

/// Writes the object of a component attribute; null clears it.
HRESULT WriteObject(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue);

/// An unset value of the kind of an attribute.
ORXIValue_var UnsetValue(const ORXISpecObject_var& iObject, const char* iName);

/// Plants a fault for one call; see `VYRStandalone::Fault`.
void Plant(const char* iOperation, const char* iSubject = "", const char* iObject = "", HRESULT iStatus = E_FAIL);

#endif
