/**
 * @file
 * Catalogs in files, and how one finds those that it uses.
 */

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneModel.h"

namespace
{
using VYRStandalone::DocumentError;
using VYRStandalone::LoadCatalog;
using VYRStandalone::Model;

/// Each test has types of its own, since types are for the whole process.
class CatalogFiles : public testing::Test
{
protected:
    /// What is said of a catalog file that is refused, the test's folder as "DIR".
    std::string ErrorOf(const std::string& iFile, const std::vector<std::string>& iFolders = {})
    {
        try
        {
            LoadCatalog(iFile, iFolders);
        }
        catch (const DocumentError& error)
        {
            std::string text = error.what();
            for (std::size_t at = text.find(m_folder.Path()); at != std::string::npos; at = text.find(m_folder.Path()))
                text.replace(at, m_folder.Path().size(), "DIR");
            return text;
        }
        return {};
    }

    static bool IsDeclared(const std::string& iType)
    {
        const std::vector<std::string> names = VYRStandalone::TypeNames();
        return std::count(names.begin(), names.end(), iType) == 1;
    }

    /// A catalog of a name with one type, of the name and "Type", that uses others.
    static std::string Catalog(const std::string& iName, const std::string& iUses = "", const std::string& iType = "")
    {
        return R"({"catalog": ")" + iName + R"(", "uses": [)" + iUses + R"(], "types": [{"name": ")" + iName +
               "Type\"" + iType + "}]}";
    }

    TemporaryFolder m_folder;
};

TEST_F(CatalogFiles, UsedCatalogs_AreFoundBesideTheFileThenInTheFoldersThenBuiltIn)
{
    m_folder.Write("near/Near1.catalog.json", Catalog("Near1"));
    m_folder.Write("far/Near1.catalog.json", "not read");
    m_folder.Write("far/Far1.catalog.json", Catalog("Far1", "\"Further1\""));
    m_folder.Write("far/Further1.catalog.json", Catalog("Further1"));
    const std::string file = m_folder.Write("near/any name.json", Catalog("Top1", R"("VYRCfdBase", "Near1", "Far1")",
                                                                          R"(, "base": "Far1Type", "attributes": [
                                                         {"name": "n", "kind": "component", "type": "Near1Type"}])"));
    EXPECT_EQ(ErrorOf(file, {m_folder.Path("missing"), m_folder.Path("far")}), "");
    for (const char* type : {"Near1Type", "Far1Type", "Further1Type", "Top1Type"})
        EXPECT_TRUE(IsDeclared(type)) << type;
}

TEST_F(CatalogFiles, ACatalogThatIsDeclared_IsNotReadAgain)
{
    m_folder.Write("Once2.catalog.json", Catalog("Once2"));
    EXPECT_EQ(ErrorOf(m_folder.Write("First2.catalog.json", Catalog("First2", "\"Once2\""))), "");
    m_folder.Write("Once2.catalog.json", "no catalog any more");
    EXPECT_EQ(ErrorOf(m_folder.Write("Second2.catalog.json", Catalog("Second2", "\"Once2\", \"First2\""))), "");
    EXPECT_TRUE(IsDeclared("Second2Type"));
}

TEST_F(CatalogFiles, TwoThatUseAThird_AreBothDeclared)
{
    m_folder.Write("Third3.catalog.json", Catalog("Third3"));
    m_folder.Write("Left3.catalog.json", Catalog("Left3", "\"Third3\""));
    m_folder.Write("Right3.catalog.json", Catalog("Right3", "\"Third3\""));
    EXPECT_EQ(ErrorOf(m_folder.Write("Top3.catalog.json", Catalog("Top3", "\"Left3\", \"Right3\""))), "");
    EXPECT_TRUE(IsDeclared("Top3Type"));
}

TEST_F(CatalogFiles, CatalogsThatUseEachOther_AreRefused)
{
    m_folder.Write("A4.catalog.json", Catalog("A4", "\"B4\""));
    m_folder.Write("B4.catalog.json", Catalog("B4", "\"C4\""));
    m_folder.Write("C4.catalog.json", Catalog("C4", "\"B4\""));
    EXPECT_EQ(ErrorOf(m_folder.Path("A4.catalog.json")),
              "DIR/C4.catalog.json: /uses/0: catalogs must not use each other: \"B4\" uses \"C4\" uses \"B4\"");
    for (const char* type : {"A4Type", "B4Type", "C4Type"})
        EXPECT_FALSE(IsDeclared(type)) << type;
    EXPECT_EQ(ErrorOf(m_folder.Write("Self4.catalog.json", Catalog("Self4", "\"Self4\""))),
              "DIR/Self4.catalog.json: /uses/0: catalogs must not use each other: \"Self4\" uses \"Self4\"");
}

TEST_F(CatalogFiles, WhatIsWrongInAUsedCatalog_IsSaidOfItsFile)
{
    m_folder.Write("Wrong5.catalog.json", "{\"catalog\": \"Wrong5\",\n}");
    EXPECT_EQ(ErrorOf(m_folder.Write("Top5.catalog.json", Catalog("Top5", "\"Wrong5\""))),
              "DIR/Wrong5.catalog.json:2:1: Missing a name for object member.");
    m_folder.Write("Other5.catalog.json", Catalog("Another5"));
    EXPECT_EQ(ErrorOf(m_folder.Write("Top5.catalog.json", Catalog("Top5", "\"Other5\""))),
              "DIR/Other5.catalog.json: /catalog: must be \"Other5\" as the file's name says, not \"Another5\"");
    EXPECT_FALSE(IsDeclared("Top5Type"));
    EXPECT_FALSE(IsDeclared("Another5Type"));
}

TEST_F(CatalogFiles, AnUnknownCatalog_IsSaidWithThePlacesThatWereSearched)
{
    const std::string file = m_folder.Write("Top6.catalog.json", Catalog("Top6", "\"VYRCfdBase\", \"Nowhere6\""));
    EXPECT_EQ(ErrorOf(file, {m_folder.Path("more")}),
              "DIR/Top6.catalog.json: /uses/1: unknown catalog \"Nowhere6\": no file \"Nowhere6.catalog.json\" in "
              "\"DIR\", \"DIR/more\", and none of that name is declared");
    m_folder.Write("up/Above6.catalog.json", Catalog("Above6"));
    EXPECT_EQ(ErrorOf(m_folder.Write("Top6.catalog.json", Catalog("Top6", "\"up/Above6\""))),
              "DIR/Top6.catalog.json: /uses/0: unknown catalog \"up/Above6\": no file \"up/Above6.catalog.json\" in "
              "\"DIR\", and none of that name is declared");
}

TEST_F(CatalogFiles, WhatIsNoReadableFile_IsRefused)
{
    EXPECT_EQ(ErrorOf(m_folder.Path("missing.json")), "DIR/missing.json: cannot be opened: No such file or directory");
    EXPECT_EQ(ErrorOf(m_folder.Path()), "DIR: is a folder, not a file");
    EXPECT_EQ(ErrorOf(m_folder.Write("empty.json", "")), "DIR/empty.json:1:1: The document is empty.");
}

TEST_F(CatalogFiles, ModelsFindTheirCatalogsTheSameWay)
{
    m_folder.Write("models/Beside7.catalog.json", Catalog("Beside7"));
    m_folder.Write("catalogs/Folder7.catalog.json", Catalog("Folder7", "\"Used7\""));
    m_folder.Write("catalogs/Used7.catalog.json", Catalog("Used7"));
    const std::string file = m_folder.Write("models/m.model.json", R"({"model": 1, "catalogs": ["Beside7", "Folder7"],
        "objects": [{"type": "Used7Type", "name": "U"}, {"type": "Beside7Type", "name": "B"}]})");
    const Model model = Model::Load(file, {m_folder.Path("catalogs")});
    EXPECT_EQ(model.Objects().size(), 2U);
    EXPECT_NE(model.Text().find(R"("catalogs": ["Beside7", "Folder7", "Used7"])"), std::string::npos) << model.Text();
}
} // namespace
