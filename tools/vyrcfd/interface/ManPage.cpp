#include "ManPage.h"

#include <algorithm>
#include <cctype>

#include "Paragraphs.h"

namespace Tool
{
namespace
{
/// What the program is told by other ways than its command line, and what it tells by them.
struct Surrounding
{
    const char* name;
    const char* meaning;
};

constexpr Surrounding Statuses[] = {
    {"0", "Success, also where nothing had to be done."},
    {"1", "The job failed. Standard error says why, one line a report."},
    {"2", "Wrong use of the command line."},
};

constexpr Surrounding Variables[] = {
    {"ORXInstallPath",
     "Folder of the installation where --installation is not given; several have a colon between them."},
    {"VYRCfd_USE_DxSLOPE_CONVG_CRIT",
     "While it exists, SolverConfigurations_dxSlope.json is read in place of SolverConfigurations.json."},
    {"NO_COLOR", "Set to something, answers on a terminal have no colours."},
    {"VYRCFD_HISTORY", "File in which the shell keeps the lines that were typed; empty for none."},
    {"XDG_STATE_HOME", "Folder below which that file is where VYRCFD_HISTORY does not say; otherwise ~/.local/state."},
    {"VYRCFDTRACES_ALL", "Level up to which the library's operations are traced on standard error; 1 prints all."},
};

constexpr Surrounding Files[] = {
    {"reffiles/VYRCfdApp/*.json", "Configuration files, below the folder of the installation."},
    {"catalogs/NAME.catalog.json",
     "Catalogs of feature types, below the folder of the installation or beside a model."},
    {"~/.local/state/vyrcfd/history", "Lines that were typed in the shell."},
    {"NAME.model.json", "Models. A save replaces the whole file in one step."},
};

/// A text for groff, with nothing in it that would be read as a request.
std::string Escaped(std::string_view iText)
{
    std::string text;
    for (const char one : iText)
    {
        switch (one)
        {
        case '\\':
            text += "\\e";
            break;
        case '-':
            text += "\\-";
            break;
        case '\'':
            text += "\\(aq";
            break;
        case '`':
            text += "\\(ga";
            break;
        case '^':
            text += "\\(ha";
            break;
        case '~':
            text += "\\(ti";
            break;
        default:
            text += one;
        }
    }
    return text.starts_with('.') ? "\\&" + text : text;
}

/// Without the hyphens of running text, which are no dashes of options.
std::string EscapedText(std::string_view iText)
{
    std::string text = Escaped(iText);
    for (std::size_t at = 0; (at = text.find("\\-", at)) != std::string::npos; ++at)
    {
        const bool isInside = at > 0 && std::isalpha(static_cast<unsigned char>(text[at - 1])) != 0;
        if (isInside)
            text.erase(at, 1);
    }
    return text;
}

std::string Heading(const char* iMacro, const std::string& iText)
{
    return std::string(iMacro) + " \"" + Escaped(iText) + "\"\n";
}

std::string Defined(const std::string& iTerm, std::string_view iText)
{
    return ".TP\n\\fB" + Escaped(iTerm) + "\\fR\n" + EscapedText(iText) + "\n";
}

std::string Defined(const OptionDescription& iOption)
{
    std::string names;
    for (const std::string& name : iOption.names)
        names += (names.empty() ? "" : ", ") + ("\\fB" + Escaped(name) + "\\fR");
    const std::string value = iOption.value.empty() ? "" : " \\fI" + Escaped(iOption.value) + "\\fR";
    return ".TP\n" + names + value + "\n" + EscapedText(iOption.description) + "\n";
}

std::string Paragraph(const std::string& iText)
{
    return ".PP\n" + EscapedText(iText) + "\n";
}

std::string Notes(const std::string& iNotes)
{
    constexpr std::size_t width = 71;
    std::string text;
    bool isKept = false;
    for (const TextBlock& block : BlocksOf(iNotes))
    {
        if (block.isKept && !isKept)
            text += ".PP\n.nf\n";
        if (!block.isKept && isKept)
            text += ".fi\n";
        isKept = block.isKept;
        text += isKept ? Escaped(WrappedLine(block.text, width)) : Paragraph(block.text);
    }
    return text + (isKept ? ".fi\n" : "");
}

std::string CommandSection(const CommandDescription& iProgram, const CommandDescription& iCommand)
{
    std::string text = Heading(".SS", iProgram.name + " " + iCommand.name + " " + iCommand.Usage());
    text += EscapedText(iCommand.description) + ".\n";
    for (const ArgumentDescription& argument : iCommand.arguments)
        text += Defined(argument.name, argument.description);
    for (const OptionDescription& option : iCommand.options)
        if (option.group != CommonOptionGroup && !option.IsCalled("--help"))
            text += Defined(option);
    return text + Notes(iCommand.notes);
}

template <std::size_t Count> std::string SurroundingSection(const char* iHeading, const Surrounding (&iAll)[Count])
{
    std::string text = Heading(".SH", iHeading);
    for (const Surrounding& one : iAll)
        text += Defined(one.name, one.meaning);
    return text;
}

std::string CapitalsOf(std::string iText)
{
    std::transform(iText.begin(), iText.end(), iText.begin(),
                   [](unsigned char iOne) { return static_cast<char>(std::toupper(iOne)); });
    return iText;
}

std::string CompletionSection()
{
    return Heading(".SH", "COMPLETION") +
           "Where it is not installed with the program, completion is switched on in bash by\n"
           "\\fBsource <(vyrcfd interface bash)\\fR, in fish by \\fBvyrcfd interface fish | source\\fR, and in zsh by\n"
           "a file \\fB_vyrcfd\\fR with the output of \\fBvyrcfd interface zsh\\fR in a folder of \\fIfpath\\fR.\n";
}
} // namespace

std::string ManPage(const CommandDescription& iProgram, const std::string& iVersion)
{
    std::string text = ".TH " + CapitalsOf(iProgram.name) + " 1 \"\" \"" + iProgram.name + " " + Escaped(iVersion) +
                       "\" \"User Commands\"\n";
    text += ".nh\n.ad l\n"; // names and commands are not to be torn or stretched
    text += Heading(".SH", "NAME") + iProgram.name + " \\- tries configurations of flow simulation out on models\n";
    text += Heading(".SH", "SYNOPSIS") + ".B " + iProgram.name + "\n" + Escaped(iProgram.Usage()) + "\n";
    text += Heading(".SH", "DESCRIPTION") + EscapedText(iProgram.description) + "\n";
    text += Heading(".SH", "OPTIONS");
    for (const OptionDescription& option : iProgram.options)
        text += Defined(option);
    text += Heading(".SH", "COMMANDS");
    for (const CommandDescription& command : iProgram.commands)
        text += CommandSection(iProgram, command);
    text += SurroundingSection("EXIT STATUS", Statuses);
    text += SurroundingSection("ENVIRONMENT", Variables);
    text += SurroundingSection("FILES", Files);
    return text + CompletionSection();
}
} // namespace Tool
