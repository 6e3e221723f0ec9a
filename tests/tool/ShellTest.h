#ifndef ShellTest_H
#define ShellTest_H

/**
 * @file
 * Fixture of tests of the shell.
 */

#include "SmallTest.h"

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

    /// Somebody types at a terminal, each text at a prompt.
    ToolRun Session(const std::string& iModel, const std::vector<std::string>& iTyped) const
    {
        ToolSettings settings;
        settings.typed = iTyped;
        // As little as possible of what terminals are told beside texts.
        settings.environment = {{"TERM", "dumb"}, {"NO_COLOR", "1"}};
        ToolRun run = Run({"shell", iModel}, settings);
        std::erase(run.output, '\r');
        return run;
    }
};

#endif
