#include "RandomRun.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <stdexcept>

#include "Generator.h"
#include "RandomTypes.h"
#include "VYRStandaloneInstruments.h"

namespace
{
/// What is alive beyond a number of components, for a run whose models have gone.
std::string Survivors(int iBefore)
{
    const int count = VYRStandalone::LiveComponents() - iBefore;
    if (count == 0)
        return "";
    std::string text = std::to_string(count) + " components survive their model:";
    for (const std::string& name : VYRStandalone::LiveComponentNames())
        text += " " + name;
    return text;
}

RunResult RunModel(std::uint64_t iSeed, long long iOperations, const TwinMaker& iMaker)
{
    RunResult result;
    result.seed = iSeed;
    const int alive = VYRStandalone::LiveComponents();
    {
        TwoModels models(iMaker);
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
        result.met = models.Met();
    }
    if (result.difference.empty())
        result.difference = Survivors(alive);
    return result;
}
} // namespace

RunResult RunRandom(std::uint64_t iSeed, long long iOperations, const TwinMaker& iMaker)
{
    RunResult all;
    for (long long done = 0; done < iOperations; done += OperationsPerModel, ++iSeed)
    {
        RunResult one = RunModel(iSeed, std::min<long long>(OperationsPerModel, iOperations - done), iMaker);
        all.compared += one.compared;
        all.effective += one.effective;
        for (const auto& [what, count] : one.met)
            all.met[what] += count;
        if (one.difference.empty())
            continue;
        one.compared = all.compared;
        one.effective = all.effective;
        return one;
    }
    return all;
}

RunResult RunOperations(const std::vector<Operation>& iOperations, const TwinMaker& iMaker)
{
    RunResult result;
    const int alive = VYRStandalone::LiveComponents();
    {
        TwoModels models(iMaker);
        Difference difference;
        for (const Operation& operation : iOperations)
        {
            result.operations.push_back(operation);
            difference = models.Do(operation);
            result.effective += models.HasRun() ? 1 : 0;
            if (difference)
                break;
        }
        if (!difference)
            difference = models.CompareAll();
        result.difference = difference.value_or("");
        result.compared = models.Compared();
    }
    if (result.difference.empty())
        result.difference = Survivors(alive);
    return result;
}

namespace
{
/// Without one operation. Objects that were made after one that is not made any more move up.
std::vector<Operation> Without(const std::vector<Operation>& iOperations, std::size_t iIndex)
{
    std::vector<Operation> fewer = iOperations;
    fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(iIndex));
    if (iOperations[iIndex].verb != "create")
        return fewer;
    const auto isCreation = [](const Operation& iOperation) { return iOperation.verb == "create"; };
    const auto end = iOperations.begin() + static_cast<std::ptrdiff_t>(iIndex);
    const int gone = static_cast<int>(RandomObjects().size()) + 1 +
                     static_cast<int>(std::count_if(iOperations.begin(), end, isCreation));
    for (Operation& operation : fewer)
        for (std::string& word : operation.words)
            for (std::size_t mark = word.find('#'); mark != std::string::npos; mark = word.find('#', mark + 1))
            {
                std::size_t length = 0;
                while (mark + 1 + length < word.size() &&
                       std::isdigit(static_cast<unsigned char>(word[mark + 1 + length])))
                    ++length;
                const int number = length == 0 ? 0 : std::stoi(word.substr(mark + 1, length));
                if (number > gone)
                    word.replace(mark + 1, length, std::to_string(number - 1));
            }
    return fewer;
}

/// Leaves out one operation after the other, as long as something still differs.
void LeaveOut(RunResult& ioBest, const TwinMaker& iMaker)
{
    for (std::size_t i = ioBest.operations.size(); i-- > 0;)
    {
        RunResult result = RunOperations(Without(ioBest.operations, i), iMaker);
        if (result.difference.empty())
            continue;
        ioBest.operations = std::move(result.operations);
        ioBest.difference = std::move(result.difference);
        i = std::min(i, ioBest.operations.size());
    }
}
} // namespace

RunResult Shrink(const RunResult& iFailure, const TwinMaker& iMaker)
{
    RunResult best = iFailure;
    for (std::size_t size = std::max<std::size_t>(best.operations.size() / 2, 2); size > 1; size /= 2)
    {
        bool isShorter = true;
        while (isShorter)
        {
            isShorter = false;
            for (std::size_t from = 0; from < best.operations.size();)
            {
                std::vector<Operation> fewer = best.operations;
                const std::size_t end = std::min(from + size, fewer.size());
                fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(from),
                            fewer.begin() + static_cast<std::ptrdiff_t>(end));
                RunResult result = RunOperations(fewer, iMaker);
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
    std::size_t before = 0;
    do
    {
        before = best.operations.size();
        LeaveOut(best, iMaker);
    } while (best.operations.size() < before);
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
