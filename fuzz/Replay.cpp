/**
 * @file
 * The main function of a target that is built without the engine: runs every file of the corpus once. What the target
 * finds ends the process, behind the name of the file.
 *
 *     fuzz_TARGET FILE|FOLDER...
 */

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>
#include <vector>

#include "FuzzTarget.h"

namespace
{
namespace fs = std::filesystem;

std::string currentFile;

/// Says which input it was; then the process goes the way of the signal.
extern "C" void TellFile(int iSignal)
{
    constexpr char Head[] = "replay: stopped by ";
    // Only what a signal may do.
    ssize_t ignored = write(STDERR_FILENO, Head, sizeof Head - 1);
    ignored = write(STDERR_FILENO, currentFile.data(), currentFile.size());
    ignored = write(STDERR_FILENO, "\n", 1);
    static_cast<void>(ignored);
    std::signal(iSignal, SIG_DFL);
    std::raise(iSignal);
}

std::vector<fs::path> Files(const std::vector<std::string>& iArguments)
{
    std::vector<fs::path> files;
    for (const std::string& argument : iArguments)
    {
        if (!fs::is_directory(argument))
            files.emplace_back(argument);
        else
            for (const auto& entry : fs::directory_iterator(argument))
                if (entry.is_regular_file())
                    files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// @return whether the file could be read
bool Run(const fs::path& iFile)
{
    std::ifstream file(iFile, std::ios::binary);
    if (!file)
    {
        std::fprintf(stderr, "replay: cannot read %s\n", iFile.c_str());
        return false;
    }
    const std::string input{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    currentFile = iFile.string();
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    return true;
}
} // namespace

int main(int argc, char** argv)
{
    for (const int number : {SIGABRT, SIGSEGV, SIGFPE, SIGILL, SIGBUS})
        std::signal(number, TellFile);
    const std::vector<fs::path> files = Files({argv + 1, argv + argc});
    const auto run = std::count_if(files.begin(), files.end(), Run);
    std::fprintf(stderr, "replay: %td of %zu inputs\n", run, files.size());
    // An empty corpus has shown nothing.
    return run > 0 && static_cast<std::size_t>(run) == files.size() ? EXIT_SUCCESS : EXIT_FAILURE;
}
