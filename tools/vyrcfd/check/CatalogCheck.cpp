#include "CatalogCheck.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "KnownTypes.h"
#include "MeantLists.h"
#include "Wording.h"

namespace Tool
{
namespace
{
class CatalogCheck
{
public:
    CatalogCheck(ScratchObjects& ioObjects, CheckRun& ioRun) : m_objects(ioObjects), m_run(ioRun) {}

    /// What is below a start-up belongs to components, which contain no others of their own type.
    void Check(const SourceFile& iFile, const SourceValue& iStartup, const ObjectPlace& iPlace)
    {
        const bool isOfChoice = iStartup.Has("choices") || iStartup.Has("Startups") || iStartup.Has("value");
        if (isOfChoice && IsChoice(m_objects.At(iPlace)))
            CheckChoice(iFile, iStartup, iPlace);
        if (const SourceMember* const choices = isOfChoice ? iStartup.Find("choices") : nullptr)
            CheckDoubled(iFile, *choices, FindingKind::DoesNothing, Severity::Error, "can be selected only once");
        for (const SourceMember& member : iStartup.members)
            Check(iFile, *member.value, iPlace.Component(member.key));
    }

    /// Tells of the first text that an array has a second time.
    void CheckDoubled(const SourceFile& iFile, const SourceMember& iTexts, FindingKind iKind, Severity iSeverity,
                      const std::string& iConsequence)
    {
        std::map<std::string_view, const SourceValue*> seen;
        for (const SourceValue* text : iTexts.value->elements)
        {
            const auto [first, isFirst] = seen.try_emplace(text->text, text);
            if (isFirst || text->text.empty())
                continue;
            Finding finding = FindingIn(iFile.Path(), text->position, iKind, iSeverity,
                                        Quoted(text->text) + " stands twice, and " + iConsequence);
            finding.key = iTexts.key;
            finding.related.push_back({finding.file, first->second->position.line});
            m_run.Add(std::move(finding));
            return;
        }
    }

private:
    void CheckChoice(const SourceFile& iFile, const SourceValue& iStartup, const ObjectPlace& iPlace)
    {
        const VYRCfdObjectAccess choice = m_objects.At(iPlace);
        const std::vector<std::string> choices = ChoicesOf(choice);
        const std::vector<std::string> startups = StartupsOf(choice);
        const std::string value = FirstChoiceOf(choice);
        const SourceMember* const written = iStartup.Find("choices");
        if (written != nullptr && iStartup.Has("Startups") && AreSwapped(choices, startups, value))
        {
            Add(iFile, *written, FindingKind::SwappedLists, SwappedText);
            return;
        }
        if (const SourceMember* const member = iStartup.Find("Startups"))
            CheckStartups(iFile, *member, choices.size(), startups.size(), iPlace);
        // Choices that stand elsewhere may be changed here, and the value with them.
        const SourceMember* const first = iStartup.Has("value") ? iStartup.Find("value") : written;
        if (first != nullptr && !value.empty() && !choices.empty() &&
            std::find(choices.begin(), choices.end(), value) == choices.end())
            Add(iFile, *first, FindingKind::DefaultNotInChoices,
                "the value " + Quoted(value) + " that " + iPlace.Shown() + " comes with is none of its choices", value,
                choices);
    }

    void CheckStartups(const SourceFile& iFile, const SourceMember& iWritten, std::size_t iChoices,
                       std::size_t iStartups, const ObjectPlace& iPlace)
    {
        for (const SourceValue* startup : iWritten.value->elements)
            if (!startup->text.empty() && !IsKnownType(startup->text))
                Add(iFile, {iWritten.key, {}, startup}, FindingKind::UnknownType,
                    "the startup " + Quoted(startup->text) + " of " + iPlace.Shown() + " is no type of the catalogs",
                    startup->text, KnownTypes());
        const std::size_t startups = iWritten.value->elements.size();
        if (startups != 0 && startups == iStartups && startups != iChoices)
            Add(iFile, iWritten, FindingKind::UnequalLists,
                "there is one startup for each choice, an empty one for a choice without data: " + iPlace.Shown() +
                    " has " + Counted(iChoices, "choice") + " and " + Counted(startups, "startup"));
    }

    void Add(const SourceFile& iFile, const SourceMember& iWritten, FindingKind iKind, std::string iMessage,
             const std::string& iUnknown = {}, const std::vector<std::string>& iKnown = {})
    {
        Finding finding =
            FindingIn(iFile.Path(), iWritten.value->position, iKind, Severity::Error, std::move(iMessage));
        finding.key = iWritten.key;
        m_run.Add(std::move(finding), iUnknown, iKnown);
    }

    ScratchObjects& m_objects;
    CheckRun& m_run;
};
} // namespace

void CheckCatalogStartups(const CatalogSource& iCatalogs, ScratchObjects& ioObjects, CheckRun& ioRun)
{
    CatalogCheck check(ioObjects, ioRun);
    for (const CatalogSource::Declaration& declaration : iCatalogs.Declarations())
    {
        if (const SourceMember* startup = declaration.value->Find("startup"))
            check.Check(*declaration.file, *startup->value, {std::string(declaration.type)});
        if (const SourceMember* configurations = declaration.value->Find("configurations"))
            check.CheckDoubled(*declaration.file, *configurations, FindingKind::DuplicateEntry, Severity::Warning,
                               "is meant for the type once");
    }
}
} // namespace Tool
