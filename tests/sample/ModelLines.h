#ifndef ModelLines_H
#define ModelLines_H

#include <string>
#include <vector>

#include "VYRStandaloneModel.h"

/**
 * What a model holds, one line an attribute, in the order of the model:
 *
 *     Solver.1 = ExternalFlowSolver Solver.1
 *     Solver.1.iterations = 4000 [set]
 *     Solver.1/freestream.angleOfAttack = 0.05340707511102649 rad [set]
 *     Solver.1.mesh -> Mesh.1
 *     Solver.1.monitoredSurfaces = WingUpper, WingLower, WingTip [set]
 *     Solver.1 record: type=integer path=iterations default=2500
 *     Fan.1/operation/Data/pressureRises = column 62, 55, 44, 26, 0
 *     Solver.1/turbulence/model/Data = ShearStressTransport ShearStressTransportInst
 *
 * Flags stand behind the value that they are about: [set], [auto], and [not auto] for a flag that is there and false.
 * Of the records in the container only those appear that an object refers to. Looking changes nothing.
 */
std::vector<std::string> LinesOf(const VYRStandalone::Model& iModel);

/// The difference that something has made to a model, one line an attribute, in the order of the model, without the
/// lines that are the same:
///
///     Solver.1.iterations = 2500 <- 1000
///     + Solver.1 record: type=integer path=iterations default=2500
///     - Solver.1/energy/Data = EnergyEquation EnergyEquationInst
///
/// @param iRoot begins the paths of most lines, and is left out there
std::vector<std::string> DifferencesOf(const std::vector<std::string>& iBefore, const std::vector<std::string>& iAfter,
                                       const std::string& iRoot);

/// Whether a line is about an object or about what is below it.
bool IsBelow(const std::string& iLine, const std::string& iPath);

/// The object at a path of the model.
ORXISpecObject_var ObjectAt(const VYRStandalone::Model& iModel, const std::string& iPath);

/// Paths of the objects of a type and of those that derive from it, wherever they stand in the model.
std::vector<std::string> PathsOf(const VYRStandalone::Model& iModel, const char* iType);

#endif
