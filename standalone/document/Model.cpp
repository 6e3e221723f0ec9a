#include "VYRStandaloneModel.h"

#include "CatalogLoader.h"
#include "Container.h"
#include "FeatureObject.h"
#include "FileReplacement.h"
#include "ModelReader.h"
#include "ModelWriter.h"
#include "ObjectWalk.h"
#include "TypeRegistry.h"
#include "WholeFile.h"

namespace VYRStandalone
{
/// The container, and the names of the catalogs that the model's document gives.
class Model::Content
{
public:
    Content() : m_container(ORXIContainer_var::Adopt(VYRStandalone::Container::Make())) {}
    ~Content() { Holder().Close(); }
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;

    VYRStandalone::Container& Holder() const { return static_cast<VYRStandalone::Container&>(*m_container.Pointer()); }
    const ORXIContainer_var& Handle() const noexcept { return m_container; }

    void Read(std::string_view iJson, const std::string& iFile, const std::string& iBeside,
              const std::vector<std::string>& iFolders)
    {
        m_catalogs = ModelReader(iFile, Holder()).Read(iJson, iBeside, iFolders);
    }

    std::string Text(const std::string& iFile) const { return WriteModel(Holder(), m_catalogs, iFile); }

    void Close()
    {
        Holder().Close();
        m_catalogs.clear();
    }

private:
    ORXIContainer_var m_container;
    std::vector<std::string> m_catalogs;
};

namespace
{
/// The first object that meets the test, null for none.
template <class Test> FeatureObject* FirstThat(const std::vector<FeatureObject*>& iObjects, const Test& iTest)
{
    for (FeatureObject* object : iObjects)
        if (iTest(*object))
            return object;
    return nullptr;
}

FeatureObject* FindByMeaning(const std::vector<FeatureObject*>& iObjects, const ORXUnicodeString& iName)
{
    const auto bearsAlias = [&](const FeatureObject& iObject) {
        return iObject.Alias() != nullptr && *iObject.Alias() == iName;
    };
    if (FeatureObject* object = FirstThat(iObjects, bearsAlias))
        return object;
    if (FeatureObject* object =
            FirstThat(iObjects, [&](const FeatureObject& iObject) { return iObject.Name() == iName; }))
        return object;
    const auto isOfType = [&](const FeatureObject& iObject) { return iObject.Type().Name() == iName.View(); };
    if (FeatureObject* object = FirstThat(iObjects, isOfType))
        return object;
    int position = 0;
    const bool isPosition = iName.ConvertToNum(&position, "%d") != 0 && position >= 1 &&
                            static_cast<std::size_t>(position) <= iObjects.size();
    return isPosition ? iObjects[static_cast<std::size_t>(position) - 1] : nullptr;
}
} // namespace

Model::Model() : m_content(std::make_unique<Content>()) {}

Model::~Model() = default;

Model::Model(Model&&) noexcept = default;

Model& Model::operator=(Model&&) noexcept = default;

Model Model::Load(const std::string& iFile, const std::vector<std::string>& iCatalogFolders)
{
    std::string text;
    if (const std::string error = ReadWholeFile(iFile, text); !error.empty())
        throw DocumentError(iFile, "", error);
    Model model;
    model.m_content->Read(text, iFile, FolderOf(iFile), iCatalogFolders);
    return model;
}

Model Model::Parse(std::string_view iJson, const std::string& iLabel, const std::vector<std::string>& iCatalogFolders)
{
    Model model;
    model.m_content->Read(iJson, iLabel, {}, iCatalogFolders);
    return model;
}

std::string Model::Text() const
{
    return m_content->Text("model");
}

void Model::Save(const std::string& iFile) const
{
    const std::string text = m_content->Text(iFile);
    if (const std::string error = ReplaceFile(iFile, text); !error.empty())
        throw DocumentError(iFile, "", error);
}

ORXIContainer_var Model::Container() const
{
    return m_content->Handle();
}

ORXISpecObject_var Model::Create(const ORXUnicodeString& iType, const ORXUnicodeString& iName)
{
    FeatureType* type = TypeRegistry::Instance().Find(iType.View());
    if (type == nullptr)
        throw std::invalid_argument("unknown type: " + std::string(iType.View()));
    return ORXISpecObject_var::Share(m_content->Holder().Create(*type, iName));
}

ORXISpecObject_var Model::Find(const ORXUnicodeString& iName) const
{
    return ORXISpecObject_var::Share(FindByMeaning(m_content->Holder().Objects(), iName));
}

std::vector<ORXISpecObject_var> Model::Objects() const
{
    std::vector<ORXISpecObject_var> objects;
    for (FeatureObject* object : m_content->Holder().Objects())
        objects.push_back(ORXISpecObject_var::Share(object));
    return objects;
}

void Model::DropExtensions()
{
    for (FeatureObject* object : AllObjects(m_content->Holder()))
        object->Extensions().Clear();
}

void Model::Close()
{
    m_content->Close();
}
} // namespace VYRStandalone
