#include "ItemTrial.h"
#include "ScratchObjects.h"
#include "Wording.h"

namespace Tool
{
std::string Trial::Where() const
{
    return "on " + place.Shown() + (isGuessed ? ", the type that most of the configuration's paths fit" : "");
}

void AddNowhere(const SourceItem& iItem, const Trial& iTrial, const char* iKey, const std::string& iPath,
                const PathEnd& iEnd, TrialFindings& oFindings)
{
    std::string message = Quoted(iPath) + " leads nowhere " + iTrial.Where() + ": " + OneLine(iEnd.reason);
    if (!(iEnd.place == iTrial.place))
        message += " on " + iEnd.place.Shown();
    oFindings.push_back({FindingAt(iItem, iKey, FindingKind::PathNowhere, iTrial.Worst(), std::move(message)),
                         iEnd.name, NamesOn(iEnd.access)});
}
} // namespace Tool
