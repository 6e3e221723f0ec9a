#ifndef RandomRun_H
#define RandomRun_H

/**
 * @file
 * Runs of random operations, from the first difference back to a short list of operations that shows it.
 */

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "TwoModels.h"

/// What a run has found, and how much it has done.
struct RunResult
{
    /// Empty when nothing differs.
    std::string difference;
    /// Up to the one that shows the difference.
    std::vector<Operation> operations;
    long long compared = 0;
    /// Operations that had something to work on.
    long long effective = 0;
    /// See TwoModels.
    std::map<std::string, long long> met;
    /// Of the last model.
    std::uint64_t seed = 0;
};

/// How many operations one model lives for. After each thousand everything is compared.
constexpr int OperationsPerModel = 2000;

/// Random operations on one model after the other. Ends at the first difference.
RunResult RunRandom(std::uint64_t iSeed, long long iOperations, const TwinMaker& iMaker = {});

/// The given operations on one model, and a comparison of everything at the end. Nothing may survive the model.
RunResult RunOperations(const std::vector<Operation>& iOperations, const TwinMaker& iMaker = {});

/// Leaves out operations as long as something still differs. The last one stays the one that shows it.
RunResult Shrink(const RunResult& iFailure, const TwinMaker& iMaker = {});

/// A file of one operation a line; "#" at the head of a line begins a comment when a blank follows.
/// @throws std::invalid_argument
std::vector<Operation> ReadOperations(const std::string& iFile);

/// For the output of a failed run: the seed, the difference, and the operations as a file holds them.
std::string Describe(const RunResult& iFailure);

#endif
