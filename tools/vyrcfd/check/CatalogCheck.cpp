#include "CatalogCheck.h"

#include <unordered_set>

#include "VYRStandaloneCatalog.h"
#include "Wording.h"

namespace Tool
{
namespace
{
class CatalogCheck
{
public:
    CatalogCheck(ScratchObjects& ioObjects, CheckRun& ioRun)
        : m_objects(ioObjects), m_run(ioRun), m_types(VYRStandalone::TypeNames()),
          m_known(m_types.begin(), m_types.end())
    {
    }

    /// What is below a start-up belongs to components, which contain no others of their own type.
    void Check(const SourceFile& iFile, const SourceValue& iStartup, const ObjectPlace& iPlace)
    {
        const SourceMember* startups = iStartup.Find("Startups");
        if (startups != nullptr && startups->value->Is(SourceValue::Kind::Array))
            CheckStartups(iFile, *startups->value, iPlace);
        for (const SourceMember& member : iStartup.members)
            Check(iFile, *member.value, iPlace.Component(member.key));
    }

private:
    void CheckStartups(const SourceFile& iFile, const SourceValue& iStartups, const ObjectPlace& iPlace)
    {
        const VYRCfdObjectAccess choice = m_objects.At(iPlace);
        if (!IsChoice(choice))
            return;
        for (const SourceValue* startup : iStartups.elements)
            if (!startup->text.empty() && m_known.count(startup->text) == 0)
                Add(iFile, *startup, FindingKind::UnknownType,
                    "the startup " + Quoted(startup->text) + " of " + iPlace.Shown() + " is no type of the catalogs",
                    startup->text);
        const std::size_t choices = ChoicesOf(choice).size();
        const std::size_t startups = iStartups.elements.size();
        if (startups != 0 && startups == StartupsOf(choice).size() && startups != choices)
            Add(iFile, iStartups, FindingKind::UnequalLists,
                "there is one startup for each choice, an empty one for a choice without data: " + iPlace.Shown() +
                    " has " + Counted(choices, "choice") + " and " + Counted(startups, "startup"),
                {});
    }

    void Add(const SourceFile& iFile, const SourceValue& iValue, FindingKind iKind, std::string iMessage,
             const std::string& iUnknown)
    {
        Finding finding = FindingIn(iFile.Path(), iValue.position, iKind, Severity::Error, std::move(iMessage));
        finding.key = "Startups";
        m_run.Add(std::move(finding), iUnknown, iUnknown.empty() ? std::vector<std::string>() : m_types);
    }

    ScratchObjects& m_objects;
    CheckRun& m_run;
    std::vector<std::string> m_types;
    std::unordered_set<std::string> m_known;
};
} // namespace

void CheckCatalogStartups(const CatalogSource& iCatalogs, ScratchObjects& ioObjects, CheckRun& ioRun)
{
    CatalogCheck check(ioObjects, ioRun);
    for (const CatalogSource::Declaration& declaration : iCatalogs.Declarations())
        if (const SourceMember* startup = declaration.value->Find("startup"))
            check.Check(*declaration.file, *startup->value, {std::string(declaration.type)});
}
} // namespace Tool
