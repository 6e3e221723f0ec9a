#ifndef FindingText_H
#define FindingText_H

/**
 * @file
 * Findings, as they are printed.
 */

#include <string>
#include <vector>

#include "Finding.h"

namespace Tool
{
/// One line each: `FILE:LINE:COLUMN: SEVERITY: MESSAGE; did you mean "X"? [KIND]`.
std::string FindingsText(const std::vector<Finding>& iFindings);

/// {"findings": [...]}
std::string FindingsJson(const std::vector<Finding>& iFindings);
} // namespace Tool

#endif
