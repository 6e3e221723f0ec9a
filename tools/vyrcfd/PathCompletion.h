#ifndef PathCompletion_H
#define PathCompletion_H

/**
 * @file
 * What a path that is being typed could become.
 */

#include <string>
#include <vector>

#include "VYRStandaloneModel.h"

namespace Tool
{
struct PathCandidate
{
    /// The whole path, not only its rest.
    std::string text;
    /// A "/" may follow.
    bool leadsOn = false;
};

/// Objects of the model, or behind a "/" what the object or the list in front of it holds, whether or not it begins
/// like what stands behind. Changes nothing. @throws Failure when what stands in front leads nowhere
std::vector<PathCandidate> PathCandidates(const VYRStandalone::Model& iModel, const std::string& iPath);
} // namespace Tool

#endif
