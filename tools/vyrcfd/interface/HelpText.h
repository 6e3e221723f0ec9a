#ifndef HelpText_H
#define HelpText_H

/**
 * @file
 * What --help prints.
 */

#include <cstddef>
#include <string>

#include <CLI/CLI.hpp>

namespace Tool
{
/// Fits the width of the terminal that standard output is, and 80 columns elsewhere.
class HelpFormatter : public CLI::FormatterBase
{
public:
    std::string make_help(const CLI::App* iApp, std::string iName, CLI::AppFormatMode iMode) const override;
};
} // namespace Tool

#endif
