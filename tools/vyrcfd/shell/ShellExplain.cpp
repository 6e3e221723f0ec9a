#include "Explanation.h"
#include "ShellCommands.h"

namespace Tool
{
void ShellExplain(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const Explanation explanation = ExplainAttribute(ioSession.Model(), {}, iArguments[0], ModelOrigin::Session);
    const ConfigurationSource configurations(ioSession.UsedInstallation());
    const CatalogSource catalogs(ioSession.UsedInstallation(), ioSession.File());
    const ExplanationSources sources{configurations, catalogs};
    ioSession.Say({ExplanationText(explanation, sources), ExplanationJson(explanation, sources)});
}
} // namespace Tool
