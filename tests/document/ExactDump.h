#ifndef ExactDump_H
#define ExactDump_H

#include <string>

#include "VYRStandaloneModel.h"

/**
 * Everything that the host's interfaces tell of a model, for comparing two models: objects are numbered in the order in
 * which they stand, so that two of one name are told apart, texts are quoted with every odd byte escaped, and reals are
 * given bit by bit. Owners, containers, start-ups, units, kinds and texts of enumerations are in it. Nothing of the
 * code that writes documents is used for it.
 */
std::string ExactDump(const VYRStandalone::Model& iModel);

#endif
