/**
 * @file
 * Commands on objects: ls, records, test, apply.
 */

#include "Configuring.h"
#include "Failure.h"
#include "Output.h"
#include "QuietDefaults.h"
#include "ShellCommands.h"
#include "ShowText.h"
#include "VYRCfdObjectCondition.h"
#include "Wording.h"

namespace Tool
{
void ShellList(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const VYRStandalone::Model& model = ioSession.Model();
    if (iArguments.empty())
    {
        const Snapshot snapshot = TakeSnapshot(model);
        Print(snapshot.empty() ? "No objects.\n" : ListText(snapshot, 0));
        return;
    }
    const std::string& path = iArguments[0];
    const Target target = FollowPath(model, {}, path);
    const Snapshot snapshot = TakeSnapshot(model, target.object, path, target.attribute);
    QuietDefaults defaults(model);
    Print(ShowText({snapshot.front()}, defaults.Ask()) + ListText(snapshot, 1));
}

void ShellRecords(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const ORXISpecObject_var spObject = ioSession.Object(iArguments[0]);
    const std::string text = RecordsText(TakeSnapshot(ioSession.Model(), spObject, iArguments[0]).front(), {});
    Print(text.empty() ? "No records.\n" : text);
}

void ShellTest(ShellSession& ioSession, const ShellArguments& iArguments)
{
    // Without a path the condition itself begins with the object.
    std::string path = iArguments.front();
    std::string condition = iArguments.back();
    if (iArguments.size() == 1)
    {
        const std::size_t slash = path.find('/');
        condition = slash != std::string::npos ? path.substr(slash + 1) : std::string();
        path.resize(std::min(path.size(), slash));
    }
    const VYRCfdObjectAccess access(ORXBaseUnknown_var(ioSession.Object(path)));
    const VYRCfdObjectCondition evaluated(access, ORXUnicodeString(condition.data(), condition.size()));
    if (evaluated.HasError())
        throw Failure(OneLine(evaluated.GetError().View()));
    Print(evaluated ? "true\n" : "false\n");
}

void ShellApply(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const ORXISpecObject_var spObject = ioSession.Object(iArguments[0]);
    const Configuring configuring{{}, iArguments[0], iArguments[1], ioSession.Configurations()};
    bool isDone = true;
    ioSession.Change([&] { isDone = Configure(spObject, configuring); });
    if (!isDone)
        PrintError("note: " + Quoted(iArguments[1]) + " has no items");
}
} // namespace Tool
