#include "ListFixture.h"

namespace
{
constexpr char Catalog[] = R"({
    "catalog": "ListFixture",
    "types": [
        { "name": "ListFixturePart" },
        { "name": "ListFixtureOwner",
          "attributes": [
              { "name": "title", "kind": "string" },
              { "name": "ratio", "kind": "real" },
              { "name": "count", "kind": "integer" },
              { "name": "flag", "kind": "boolean" },
              { "name": "scheme", "kind": "enumeration", "values": ["upwind", "central"] },
              { "name": "part", "kind": "component" },
              { "name": "material", "kind": "reference" },
              { "name": "titles", "kind": "list", "of": "string" },
              { "name": "ratios", "kind": "list", "of": "real" },
              { "name": "counts", "kind": "list", "of": "integer" },
              { "name": "flags", "kind": "list", "of": "boolean" },
              { "name": "schemes", "kind": "list", "of": "enumeration", "values": ["upwind", "central"] },
              { "name": "parts", "kind": "list", "of": "component" },
              { "name": "references", "kind": "list", "of": "reference" } ] } ] })";
} // namespace

void ListFixture::SetUp()
{
    ModuleTest::SetUp();
    Declare(Catalog);
    m_owner = Create("ListFixtureOwner", "Owner");
    m_access = AccessOf(m_owner);
}

void ListFixture::Load(const std::string& iValues)
{
    m_parts.clear();
    m_model = VYRStandalone::Model::Parse(R"({ "model": 1, "catalogs": ["ListFixture"], "objects": [
                                               { "type": "ListFixtureOwner", "name": "Owner", "values": )" +
                                              iValues + " } ] }",
                                          "test");
    m_owner = m_model.Find("Owner");
    m_access = AccessOf(m_owner);
}

VYRCfdObjectAccess ListFixture::At(const char* iAttribute) const
{
    const ORXISpecAttrKey_var key = KeyOf(iAttribute);
    return key->GetType() == tk_list ? Cursor(m_owner).Get(key.Pointer(), 0) : Cursor(m_owner).Ref(key.Pointer());
}

ORXISpecObject_var ListFixture::Part(const std::string& iName)
{
    for (const ORXISpecObject_var& part : m_parts)
        if (part->GetName() == iName.c_str())
            return part;
    m_parts.push_back(Create("ListFixturePart", iName.c_str()));
    return m_parts.back();
}

std::vector<VYRCfdObjectAccess> ListFixture::Parts(const Names& iNames)
{
    std::vector<VYRCfdObjectAccess> cursors;
    for (const std::string& name : iNames)
        cursors.push_back(name.empty() ? VYRCfdObjectAccess() : Cursor(Part(name)));
    return cursors;
}

void ListFixture::Fill(const char* iList, const Names& iNames)
{
    const ORXISpecAttrKey_var key = KeyOf(iList);
    ASSERT_EQ(m_access->RemoveAll(key), S_OK);
    int position = 0;
    for (const std::string& name : iNames)
    {
        ASSERT_EQ(m_access->InsertAtPosition(key, Part(name.empty() ? "Removed" : name), ++position), S_OK);
        if (name.empty())
        {
            ASSERT_EQ(m_access->SetSpecObject(key, NULL_var, position), S_OK);
        }
    }
    ASSERT_EQ(Held(iList), iNames);
}

Names ListFixture::Held(const char* iList) const
{
    const ORXISpecAttrKey_var key = KeyOf(iList);
    Names names;
    for (int i = 1; i <= m_access->GetListSize(key); ++i)
    {
        const ORXISpecObject_var entry = ORXISpecObject_var::Adopt(m_access->GetSpecObject(key, i));
        names.emplace_back(!entry ? "" : entry->GetName().CastToCharPtr());
    }
    return names;
}

ORXISpecAttrKey_var ListFixture::KeyOf(const char* iAttribute) const
{
    return ORXISpecAttrKey_var::Adopt(m_access->GetAttrKey(iAttribute));
}

ORXListValORXBaseUnknown_var HandleList(const std::vector<ORXBaseUnknown_var>& iHandles)
{
    ORXListValORXBaseUnknown_var list;
    for (const ORXBaseUnknown_var& handle : iHandles)
        list.Append(handle);
    return list;
}
