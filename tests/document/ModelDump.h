#ifndef ModelDump_H
#define ModelDump_H

#include <string>

#include "VYRStandaloneModel.h"

/**
 * What a model holds, as the host's interfaces tell it: one line an attribute, such as
 *
 *     E [Everything] alias=.. identifier=..
 *     E.real = 1.5
 *     E.string = (unset)
 *     E.part -> E/part
 *
 * Nothing of the code that writes documents is used for it.
 */
std::string Dump(const VYRStandalone::Model& iModel);

/// The lines of one attribute of the only top-level object, without the object's name in front.
std::string DumpOf(const VYRStandalone::Model& iModel, const std::string& iAttribute);

#endif
