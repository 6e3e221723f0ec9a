#include <algorithm>

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
    const std::vector<std::string> known = NamesOn(iEnd.access);
    // What is there and leads nowhere all the same is not misspelt.
    const bool isThere = std::find(known.begin(), known.end(), iEnd.name) != known.end();
    oFindings.push_back({FindingAt(iItem, iKey, FindingKind::PathNowhere, iTrial.Worst(), std::move(message)),
                         isThere ? std::string() : iEnd.name, known});
}

void AddOptional(const SourceItem& iItem, const Trial& iTrial, const char* iKey, Severity iSeverity,
                 const std::string& iName, const std::string& iConsequence, TrialFindings& oFindings)
{
    oFindings.push_back({FindingAt(iItem, iKey, FindingKind::PathNowhere, iSeverity,
                                   Quoted(iName) + " is an optional attribute " + iTrial.Where() +
                                       ", which an object has only once it was added: " + iConsequence)});
}
} // namespace Tool
