#include "Command.h"

namespace Tool
{
void AddCommonOptions(CLI::App& ioApp, CommonOptions& ioOptions)
{
    const char* const group = CommonOptionGroup;
    ioApp
        .add_option("--installation", ioOptions.installation,
                    "Folder of the installation; otherwise that of the variable ORXInstallPath, else the sample")
        ->type_name("DIR")
        ->group(group);
    // What stands before the command and what stands behind it adds up.
    ioApp
        .add_option_function<std::vector<std::string>>(
            "--catalog",
            [&ioOptions](const std::vector<std::string>& iFiles) {
                ioOptions.catalogs.insert(ioOptions.catalogs.end(), iFiles.begin(), iFiles.end());
            },
            "Catalog of feature types to read beforehand; may stand several times")
        ->type_name("FILE")
        ->type_size(1)
        ->allow_extra_args(false)
        ->group(group);
    ioApp.add_flag("--json", ioOptions.json, "Answer in JSON")->group(group);
}

std::string ObjectionToOutput(const std::string& iFile)
{
    if (iFile.empty())
        return "names no file";
    if (iFile == "-")
        return "- is no file: standard output has the answer of the command; a file of that name is ./-";
    return {};
}
} // namespace Tool
