/**
 * @file
 * Scripts of the tool's shell. The input is one; each of its lines is a command, and the session goes on behind one
 * that fails, as on a terminal.
 *
 * The session comes to its end, and leaves a model that can be saved and loaded. What `save` names is replaced by a
 * file of the target's own.
 */

#include <cstdio>
#include <utility>

#include "Failure.h"
#include "FuzzTarget.h"
#include "FuzzTypes.h"
#include "ScratchFolder.h"
#include "Shell.h"
#include "ShellCompletion.h"
#include "ShellWords.h"

namespace
{
constexpr char Configurations[] = R"({"configurations": [
    {"name": "plain", "config": [
        {"path": "real", "type": "real", "default": "0.7"}, {"path": "integer", "default": "12", "defaultAutoKey": "a"},
        {"path": "strings", "value": "a, b", "list": true}, {"path": "part", "config": "nested"},
        {"path": "choice", "choices": "none,part", "Startups": ",FuzzPart", "default": "part", "display": "D"},
        {"config": "nested", "condition": "real>0.5", "path": "SonsList/1"}]},
    {"name": "nested", "config": [{"path": "size", "default": "1e3"}, {"path": "length", "default": "2 mm"}]},
    {"name": "circle", "config": [{"path": "other", "config": "circle"}]},
    {"name": "fails", "config": [{"path": "real", "default": "1"}, {"path": "nowhere", "default": "1"}]},
    {"name": "empty", "config": []}]})";

constexpr const char* FileNames[] = {"SolverConfigurations.json",       "conditionsConfig_Flow.json",
                                     "conditionsConfig_Energy.json",    "conditionsConfig_Turbulence.json",
                                     "conditionsConfig_Species.json",   "conditionsConfig_Phase.json",
                                     "solverConfig_Flow.json",          "solverConfig_Energy.json",
                                     "solverConfig_Turbulence.json",    "solverConfig_MultiSpecies.json",
                                     "measurementsConfig.json",         "solverConfig_Radiation.json",
                                     "conditionsConfig_Radiation.json", "conditionsConfig_ECooling.json",
                                     "solverConfig_MultiPhase.json",    "meshFYEConfig.json"};

/// An installation with a model, and the tool's outputs led nowhere.
class Stage
{
public:
    Stage()
    {
        FuzzTypes::Declare();
        for (const char* file : FileNames)
            m_folder.Write(std::string("reffiles/VYRCfdApp/") + file, "{}");
        m_folder.Write(std::string("reffiles/VYRCfdApp/") + FileNames[0], Configurations);
        std::FILE* const nowhere = std::freopen("/dev/null", "w", stdout);
        Demand(nowhere != nullptr, "the standard output can be led away");
    }

    std::string WriteModel() const { return m_folder.Write("sample.model.json", FuzzTypes::SampleModel()); }
    std::string OtherFile() const { return m_folder.Path("other.model.json"); }
    Tool::Installation Installation() const { return Tool::Installation({m_folder.Path(), {}, false}); }

private:
    ScratchFolder m_folder;
};

/// The tool's messages go nowhere while it runs. The descriptor stays open for what sanitizers have to say.
class Silence
{
public:
    Silence() : m_error(std::exchange(stderr, Nowhere())) {}
    ~Silence() { stderr = m_error; }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    static std::FILE* Nowhere()
    {
        static std::FILE* const nowhere = std::fopen("/dev/null", "w");
        return nowhere;
    }

    std::FILE* m_error;
};

/// The lines of an input, completed before they are run as if somebody asked at the end of each.
class InputLines final : public Tool::LineSource
{
public:
    InputLines(std::string_view iText, Tool::ShellSession& ioSession, std::string iFile)
        : m_text(iText), m_completion(ioSession), m_file(std::move(iFile))
    {
    }

    std::optional<std::string> Next() override
    {
        if (m_text.empty() || m_lines == MostLines)
            return std::nullopt;
        ++m_lines;
        const std::size_t end = std::min(m_text.find('\n'), m_text.size());
        const std::string line(m_text.substr(0, end));
        m_text.remove_prefix(std::min(end + 1, m_text.size()));
        Complete(line);
        return Harmless(line);
    }

    bool IsTerminal() const override { return true; }
    std::string Place() const override { return "input:" + std::to_string(m_lines); }

private:
    // Each command takes the model down before and after itself.
    static constexpr int MostLines = 24;

    void Complete(const std::string& iLine)
    {
        const std::size_t start = iLine.find_last_of(" \t") + 1;
        try
        {
            m_completion.Of(iLine, start, iLine.substr(start));
        }
        catch (const Tool::Failure&)
        {
            // The terminal offers nothing then.
        }
    }

    /// A script may write wherever its user may; one made by chance must not.
    std::string Harmless(const std::string& iLine) const
    {
        try
        {
            const std::vector<std::string> words = Tool::SplitWords(iLine);
            const bool namesFile = words.size() > 1 && words[0] == "save" && !words[1].empty();
            return namesFile ? "save " + Tool::AsWord(m_file) : iLine;
        }
        catch (const Tool::Failure&)
        {
            return iLine;
        }
    }

    std::string_view m_text;
    Tool::ShellCompletion m_completion;
    std::string m_file;
    int m_lines = 0;
};
} // namespace

void RunInput(std::string_view iInput)
{
    static const Stage stage;
    const std::string file = stage.WriteModel();
    Tool::ShellSession session(stage.Installation(), file);
    {
        const Silence silence;
        InputLines lines(iInput, session, stage.OtherFile());
        Tool::RunShell(session, lines);
    }
    FuzzTypes::DemandRoundTrip(session.Model());
}
