#ifndef ShellTest_H
#define ShellTest_H

/**
 * @file
 * Fixture of tests of the shell.
 */

#include <ostream>

#include "SmallTest.h"

/// A script all of whose commands succeed.
struct ScriptRun
{
    const char* name;
    const char* model;
    std::string script;
    std::string output;
    /// Notes and warnings.
    std::string errors;
};

inline void PrintTo(const ScriptRun& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

/// A command that fails.
struct FailingScript
{
    const char* name;
    const char* model;
    std::string script;
    std::string errors;
};

inline void PrintTo(const FailingScript& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class ShellTest : public SmallTest
{
protected:
    /// Runs a script on a model.
    ToolRun Script(const std::string& iModel, const std::string& iScript) const
    {
        ToolSettings settings;
        settings.input = iScript;
        return Run({"shell", iModel}, settings);
    }

    /// The script prints what it should, and writes no file.
    void ExpectRun(const ScriptRun& iExpected) const
    {
        const auto before = Files();
        const ToolRun run = Script(iExpected.model, iExpected.script);
        EXPECT_EQ(Outcome(run), Outcome(0, iExpected.errors));
        EXPECT_EQ(run.output, iExpected.output);
        EXPECT_EQ(Files(), before);
    }

    /// The command fails, names its line, answers nothing and leaves nothing that could be undone.
    void ExpectFailure(const FailingScript& iExpected) const
    {
        const auto before = Files();
        ToolSettings settings;
        settings.input = iExpected.script + "\nundo\n";
        const ToolRun run = Run({"shell", iExpected.model, "--keep-going"}, settings);
        EXPECT_EQ(Outcome(run), Outcome(1, "stdin:1: " + iExpected.errors +
                                               "\nstdin:2: nothing to undo\nstdin: 2 commands failed\n"));
        EXPECT_EQ(run.output, "");
        EXPECT_EQ(Files(), before);
    }

    /// Somebody types at a terminal, each text at a prompt.
    ToolRun Session(const std::string& iModel, const std::vector<std::string>& iTyped) const
    {
        ToolSettings settings;
        settings.typed = iTyped;
        // As little as possible of what terminals are told beside texts.
        settings.environment = {{"TERM", "dumb"}, {"NO_COLOR", "1"}, {"VYRCFD_HISTORY", ""}};
        return SessionWith(iModel, settings);
    }

    ToolRun SessionWith(const std::string& iModel, const ToolSettings& iSettings) const
    {
        ToolRun run = Run({"shell", iModel}, iSettings);
        std::erase(run.output, '\r');
        return run;
    }
};

inline constexpr char SmallModel[] = "small.model.json";
inline constexpr char FlowModel[] = "flow.model.json";
inline constexpr const char* Small = SmallModel;
inline constexpr const char* Flow = FlowModel;

#endif
