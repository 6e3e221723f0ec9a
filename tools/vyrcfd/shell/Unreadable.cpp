#include "Unreadable.h"

#include "ORXTypeCode.h"
#include "Snapshot.h"
#include "Wording.h"

namespace Tool
{
std::string WhyUnreadable(const VYRStandalone::AttributeInfo& iAttribute, const std::string& iText)
{
    if (iAttribute.type == tk_boolean)
        return Quoted(iText) + " is neither true nor false";
    if (iAttribute.type != tk_enum)
        return Quoted(iText) + " is no " + AttributeSnapshot{iAttribute, {}, {}, {}}.KindText();
    std::string texts;
    for (const std::string& text : iAttribute.values)
        texts += (texts.empty() ? "" : ", ") + Quoted(text);
    return Quoted(iText) + " is none of " + texts + DidYouMean(iText, iAttribute.values);
}
} // namespace Tool
