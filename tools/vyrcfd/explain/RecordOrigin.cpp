#include "RecordOrigin.h"

namespace Tool
{
RecordTexts RecordTextsOf(const SourceItem& iItem)
{
    const std::string path(iItem.Text("path"));
    const std::string byDefault(iItem.Text("default"));
    switch (iItem.role)
    {
    case ItemRole::Choice:
        // The path of a Choice item only shapes its record, which is about the value of the Choice.
        return {!byDefault.empty(), path.empty() ? "value" : path + "/value", byDefault, {}, {}};
    case ItemRole::AutomaticDefault:
    case ItemRole::CustomDefault:
        return {true, path, byDefault, {}, {}};
    case ItemRole::Conditional:
        return {true, path, {}, std::string(iItem.Text("condition")), std::string(iItem.Text("config"))};
    case ItemRole::Values:
    case ItemRole::ValueWithoutList:
    case ItemRole::Nothing:
    case ItemRole::Nested:
        break;
    }
    return {};
}

std::vector<SourceItem> ItemsThatLeave(const RecordSnapshot& iRecord, const ConfigurationSource& iSource)
{
    std::vector<SourceItem> found;
    for (const SourceConfiguration& configuration : iSource.Configurations())
    {
        // What another definition hides is never applied.
        if (configuration.hiddenBy != nullptr)
            continue;
        for (const SourceItem& item : ItemsOf(configuration))
        {
            const RecordTexts texts = RecordTextsOf(item);
            if (texts.isLeft && texts.path == iRecord.Text("path") && texts.byDefault == iRecord.Text("default") &&
                texts.condition == iRecord.Text("condition") && texts.config == iRecord.Text("config"))
                found.push_back(item);
        }
    }
    return found;
}
} // namespace Tool
