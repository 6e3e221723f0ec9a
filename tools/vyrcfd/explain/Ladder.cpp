#include "Ladder.h"

#include <algorithm>

#include "AttributeReader.h"
#include "Failure.h"
#include "ModelSurvey.h"
#include "ObjectPath.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// A model to ask questions that leave something behind.
class Copy
{
public:
    Copy(const VYRStandalone::Model& iModel, const std::string& iPath)
        : m_model(VYRStandalone::Model::Parse(iModel.Text(), "copy of the model")),
          m_target(FollowToAttribute(m_model, {}, iPath)), m_path(iPath)
    {
    }

    ~Copy()
    {
        // The questions were the tool's, and what was reported is nothing that the user has done.
        VYRStandalone::TakeReports();
    }

    Copy(const Copy&) = delete;
    Copy& operator=(const Copy&) = delete;

    const VYRStandalone::Model& Model() const { return m_model; }
    const ORXISpecObject_var& Object() const { return m_target.object; }
    const std::string& Attribute() const { return m_target.attribute; }
    ORXUnicodeString Name() const { return ORXUnicodeString(m_target.attribute.data(), m_target.attribute.size()); }
    VYRIMpaDefaultManagementProtected_var Management() const { return m_target.object; }

    ObjectSnapshot Read() const { return TakeSnapshot(m_model, m_target.object, m_path).front(); }

    const AttributeSnapshot& In(const ObjectSnapshot& iObject) const
    {
        return *std::find_if(iObject.attributes.begin(), iObject.attributes.end(),
                             [&](const AttributeSnapshot& iOne) { return iOne.info.name == m_target.attribute; });
    }

    /// Runs a question that may end the application.
    template <class Ask> void Run(Ask iAsk) const
    {
        try
        {
            iAsk();
        }
        catch (const std::logic_error& fatal)
        {
            throw Failure(Quoted(m_path) +
                          " cannot be explained: default management ends fatally there: " + OneLine(fatal.what()));
        }
    }

private:
    VYRStandalone::Model m_model;
    Target m_target;
    std::string m_path;
};

/// Lets each record stand alone in the list, and asks whether it gives a default.
std::vector<RecordRung> RungsOf(const Copy& iCopy)
{
    const ObjectSnapshot object = iCopy.Read();
    const ORXISpecAttrAccess_var spAccess = ModelSurvey::DefaultManagementOf(object.object);
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = iCopy.Management();
    const ORXISpecAttrKey_var spKey = ORXISpecAttrKey_var::Adopt(spAccess->GetAttrKey(ModelSurvey::RecordList));
    std::vector<RecordRung> rungs;
    for (std::size_t i = 0; i < object.records.size(); ++i)
    {
        const RecordSnapshot& record = object.records[i];
        if (!record.object)
            continue;
        spAccess->RemoveAll(spKey);
        spAccess->InsertAtPosition(spKey, record.object, 1);
        spDefMgmt->RemoveCustomDefault(iCopy.Name());
        const AttributeDefault byDefault = DefaultOf(object.object, iCopy.In(object));
        if (byDefault.origin == DefaultOrigin::Record)
            rungs.push_back({i + 1, record, byDefault.value});
    }
    return rungs;
}

std::vector<PrototypeRung::Level> LevelsOf(ORXISpecObject_var iStartup, const std::string& iAttribute)
{
    std::vector<PrototypeRung::Level> levels;
    std::vector<std::string> names{iAttribute};
    std::string path = VYRStandalone::PathOf(iStartup);
    while (!!iStartup)
    {
        levels.push_back({std::string(iStartup->GetType().View()), names});
        names.insert(names.begin(), path.substr(path.rfind('/') + 1));
        path.erase(path.find_last_of('/') == std::string::npos ? 0 : path.rfind('/'));
        iStartup = ORXISpecObject_var::Adopt(iStartup->GetOwner());
    }
    return levels;
}

std::optional<PrototypeRung> PrototypeOf(const Copy& iCopy)
{
    const ORXISpecObject_var spStartup = ORXISpecObject_var::Adopt(iCopy.Object()->GetStartup());
    if (!spStartup)
        return std::nullopt;
    for (const VYRStandalone::AttributeInfo& info : VYRStandalone::Attributes(spStartup))
        if (info.name == iCopy.Attribute())
            return PrototypeRung{
                VYRStandalone::PathOf(spStartup),
                ReadAttribute(ORXISpecAttrAccess_var(spStartup), info,
                              [](const ORXISpecObject_var& iOne) { return VYRStandalone::PathOf(iOne); }),
                LevelsOf(spStartup, iCopy.Attribute())};
    return std::nullopt;
}
} // namespace

bool IsManaged(const ORXISpecObject_var& iObject)
{
    return !!VYRIMpaDefaultManagementProtected_var(iObject) && !!ModelSurvey::DefaultManagementOf(iObject);
}

Ladder LadderOf(const VYRStandalone::Model& iModel, const std::string& iPath,
                const std::optional<Value>& iCustomDefault)
{
    Ladder ladder;
    const Copy asked(iModel, iPath);
    const Copy tried(iModel, iPath);
    asked.Run([&] {
        const ObjectSnapshot object = asked.Read();
        ladder.byDefault = DefaultOf(object.object, asked.In(object));
        ORXICkeInst_var spDefault;
        ladder.isFound = asked.Management()->GetDefault(asked.Name(), spDefault) >= 0;
        ladder.records = RungsOf(tried);
        ladder.prototype = PrototypeOf(asked);
    });
    if (iCustomDefault)
    {
        ladder.customDefault = iCustomDefault;
        ladder.byDefault = {*iCustomDefault, DefaultOrigin::CustomDefault};
        ladder.isFound = true;
    }
    return ladder;
}

Unsetting TryUnset(const VYRStandalone::Model& iModel, const std::string& iPath,
                   const std::optional<Value>& iCustomDefault)
{
    Unsetting unsetting;
    const Copy copy(iModel, iPath);
    copy.Run([&] {
        unsetting.before = TakeSnapshot(copy.Model());
        if (iCustomDefault)
        {
            const bool isText = iCustomDefault->GetKind() == Value::Kind::String;
            const std::string value = isText ? iCustomDefault->Text() : iCustomDefault->Shown();
            ORXUnicodeString text(value.data(), value.size());
            copy.Management()->SetCustomDefault(copy.Name(), text);
        }
        copy.Management()->Unset(copy.Name());
        unsetting.after = TakeSnapshot(copy.Model());
    });
    unsetting.attribute = copy.In(copy.Read());
    unsetting.difference = Compare(unsetting.before, unsetting.after);
    return unsetting;
}
} // namespace Tool
