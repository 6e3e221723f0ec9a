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
 *     Solver.1.mesh -> Mesh.1
 *     Solver.1.monitoredSurfaces = WingUpper, WingLower, WingTip [set]
 *     Solver.1 record: type=integer path=iterations default=2500
 *     Solver.1/turbulence/model/Data = ShearStressTransport ShearStressTransportInst
 *
 * Flags stand behind the value that they are about: [set], [auto], and [not auto] for a flag that is there and false.
 * Of the records in the container only those appear that an object refers to. Looking changes nothing.
 */
std::vector<std::string> LinesOf(const VYRStandalone::Model& iModel);

/// Paths of the objects of a type and of those that derive from it, wherever they stand in the model.
std::vector<std::string> PathsOf(const VYRStandalone::Model& iModel, const char* iType);

#endif
