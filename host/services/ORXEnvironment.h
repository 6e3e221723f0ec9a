#ifndef ORXEnvironment_H
#define ORXEnvironment_H

/**
 * @file
 * Environment, variables of the installation and the look-up of files. Link-time seam.
 */

#include "ORXExport.h"

/// Separator of folders in paths that are handed to the host.
inline constexpr char ORXFolderSeparator[] = "/";

/// Value of an environment variable, null when it is unset. The environment is asked each time. Borrowed, valid until
/// the environment changes.
ORXHostExport const char* ORXGetEnv(const char* iName);

/// Value of a named variable of the installation, null when there is none. Borrowed, valid until it is set anew.
ORXHostExport const char* ORXGetOfficialVariable(const char* iName);

/**
 * Looks for a regular file.
 * @param iRelativePath path below the folders of the list
 * @param iPathList folders, parted by the platform's path separator; the first that has the file wins
 * @return full path, null when no folder has it; borrowed, valid until the next call on this thread
 */
ORXHostExport const char* ORXFindPath(const char* iRelativePath, const char* iPathList);

#endif
