#include "RandomRun.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "Generator.h"
#include "TwoModels.h"

namespace
{
RunResult RunModel(std::uint64_t iSeed, long long iOperations)
{
    RunResult result;
    result.seed = iSeed;
    TwoModels models;
    Generator generator(iSeed);
    Difference difference;
    for (long long i = 1; i <= iOperations && !difference; ++i)
    {
        result.operations.push_back(generator.Next(models));
        difference = models.Do(result.operations.back());
        result.effective += models.HasRun() ? 1 : 0;
        if (!difference && (i % 1000 == 0 || i == iOperations))
            difference = models.CompareAll();
    }
    result.difference = difference.value_or("");
    result.compared = models.Compared();
    return result;
}
} // namespace

RunResult RunRandom(std::uint64_t iSeed, long long iOperations)
{
    RunResult all;
    for (long long done = 0; done < iOperations; done += OperationsPerModel, ++iSeed)
    {
        RunResult one = RunModel(iSeed, std::min<long long>(OperationsPerModel, iOperations - done));
        all.compared += one.compared;
        all.effective += one.effective;
        if (one.difference.empty())
            continue;
        one.compared = all.compared;
        one.effective = all.effective;
        return one;
    }
    return all;
}

RunResult RunOperations(const std::vector<Operation>& iOperations)
{
    RunResult result;
    TwoModels models;
    for (const Operation& operation : iOperations)
    {
        result.operations.push_back(operation);
        const Difference difference = models.Do(operation);
        result.effective += models.HasRun() ? 1 : 0;
        result.compared = models.Compared();
        if (!difference)
            continue;
        result.difference = *difference;
        return result;
    }
    result.difference = models.CompareAll().value_or("");
    result.compared = models.Compared();
    return result;
}

RunResult Shrink(const RunResult& iFailure)
{
    RunResult best = iFailure;
    for (std::size_t size = std::max<std::size_t>(best.operations.size() / 2, 1); size > 0; size /= 2)
    {
        bool isShorter = true;
        while (isShorter)
        {
            isShorter = false;
            for (std::size_t from = 0; from < best.operations.size(); )
            {
                std::vector<Operation> fewer = best.operations;
                const std::size_t end = std::min(from + size, fewer.size());
                fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(from),
                            fewer.begin() + static_cast<std::ptrdiff_t>(end));
                RunResult result = RunOperations(fewer);
                if (result.difference.empty())
                    from += size;
                else
                {
                    isShorter = true;
                    best.operations = std::move(result.operations);
                    best.difference = std::move(result.difference);
                }
            }
        }
    }
    return best;
}

std::vector<Operation> ReadOperations(const std::string& iFile)
{
    std::ifstream file(iFile);
    if (!file)
        throw std::invalid_argument("cannot be read: " + iFile);
    std::vector<Operation> operations;
    for (std::string line; std::getline(file, line);)
        if (!line.empty() && !line.starts_with("# "))
            operations.push_back(Operation::Parse(line));
    return operations;
}

std::string Describe(const RunResult& iFailure)
{
    std::string text = "# seed " + std::to_string(iFailure.seed) + "\n# " + iFailure.difference + "\n";
    std::replace(text.begin() + 2, text.end() - 1, '\n', ' ');
    for (const Operation& operation : iFailure.operations)
        text += operation.Text() + "\n";
    return text;
}
