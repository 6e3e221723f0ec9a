#ifndef VYRStandaloneServices_H
#define VYRStandaloneServices_H

/**
 * @file
 * Steering of the services: variables of the installation, trace output, and what is wrong with a JSON file.
 */

#include <functional>
#include <string>

#include "VYRStandaloneExport.h"

namespace VYRStandalone
{
/// Sets a variable of the installation. One that was not set here is taken from the environment.
VYRStandaloneExport void SetOfficialVariable(const std::string& iName, const std::string& iValue);
/// As if the variable had never been set here.
VYRStandaloneExport void ResetOfficialVariable(const std::string& iName);

/// Sends what all trace channels print to a sink, as it is printed; an empty function restores the standard output.
VYRStandaloneExport void RedirectTraces(std::function<void(const std::string& iText)> iSink);

/// Reads a file as `JSON::JIStream` does, which only tells that it could not. @throws DocumentError with line and
/// column of what is no JSON, or for a file that cannot be read; a file of any shape is accepted
VYRStandaloneExport void CheckJson(const std::string& iFile);
} // namespace VYRStandalone

#endif
