#ifndef BenchPeers_H
#define BenchPeers_H

/**
 * @file
 * The libraries that ours is compared with. Each has one source file in peers/, which is compiled where the library is
 * installed and enters its works here; a work of a library that is not there is empty.
 */

#include <functional>
#include <string>

#include "Work.h"

namespace Bench
{
/// Makes a work. What the input is depends on the work: a JSON text, a folder, a number.
using WorkMaker = std::function<Work(const std::string& iInput)>;

/// The work of a library, made afresh; empty where the library is not there.
Work PeerWork(const std::string& iLibrary, const std::string& iWork, const std::string& iInput = {});

/// A static of a library's source file.
struct PeerEntry
{
    PeerEntry(const char* iLibrary, const char* iWork, WorkMaker iMaker);
};
} // namespace Bench

#endif
