/**
 * @file
 * Models on disk: a save replaces the file in one step, or leaves everything as it was.
 */

#include <filesystem>
#include <limits>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "ModelDump.h"
#include "ORXISpecAttrAccess.h"
#include "TemporaryFolder.h"
#include "TestCatalog.h"
#include "VYRStandaloneModel.h"

namespace
{
namespace fs = std::filesystem;
using VYRStandalone::DocumentError;
using VYRStandalone::Model;
using Names = std::vector<std::string>;

class ModelFiles : public testing::Test
{
protected:
    ModelFiles() { TestCatalog::Declare(); }

    static Model Sample() { return Model::Parse(TestCatalog::ModelOfValues("\"real\": 0.5"), "test"); }

    /// What is said when the model cannot be saved, the test's folder as "DIR"; empty when it is saved.
    std::string SaveError(const Model& iModel, const std::string& iFile) const
    {
        try
        {
            iModel.Save(iFile);
        }
        catch (const DocumentError& error)
        {
            return Shortened(error.what());
        }
        return {};
    }

    std::string LoadError(const std::string& iFile) const
    {
        try
        {
            Model::Load(iFile);
        }
        catch (const DocumentError& error)
        {
            return Shortened(error.what());
        }
        return {};
    }

    std::string Shortened(std::string iText) const
    {
        const std::size_t at = iText.find(m_folder.Path());
        return at == std::string::npos ? iText : iText.replace(at, m_folder.Path().size(), "DIR");
    }

    static unsigned ModeOf(const std::string& iFile)
    {
        struct stat status = {};
        EXPECT_EQ(stat(iFile.c_str(), &status), 0);
        return status.st_mode & 07777U;
    }

    TemporaryFolder m_folder;
};

TEST_F(ModelFiles, Save_MakesANewFileAndNothingElse)
{
    const Model model = Sample();
    EXPECT_EQ(SaveError(model, m_folder.Path("new.model.json")), "");
    EXPECT_EQ(m_folder.Names(), (Names{"new.model.json"}));
    EXPECT_EQ(m_folder.Read("new.model.json"), model.Text());
    EXPECT_EQ(Dump(Model::Load(m_folder.Path("new.model.json"))), Dump(model));
}

TEST_F(ModelFiles, Save_TwiceAfterLoading_WritesTheSameBytes)
{
    Sample().Save(m_folder.Path("one.json"));
    Model::Load(m_folder.Path("one.json")).Save(m_folder.Path("two.json"));
    EXPECT_EQ(m_folder.Read("two.json"), m_folder.Read("one.json"));
}

TEST_F(ModelFiles, Save_OfANewFile_HasTheMaskOfTheProcess)
{
    const mode_t before = umask(027);
    const std::string error = SaveError(Sample(), m_folder.Path("m.json"));
    umask(before);
    EXPECT_EQ(error, "");
    EXPECT_EQ(ModeOf(m_folder.Path("m.json")), 0640U);
}

TEST_F(ModelFiles, Save_OverAFile_KeepsItsPermissionsAndReplacesIt)
{
    const std::string file = m_folder.Write("m.json", "old");
    fs::permissions(file, static_cast<fs::perms>(0604));
    // Another name of the old file keeps the old text: the new one is another file.
    fs::create_hard_link(file, m_folder.Path("other"));
    EXPECT_EQ(SaveError(Sample(), file), "");
    EXPECT_EQ(ModeOf(file), 0604U);
    EXPECT_EQ(m_folder.Read("m.json"), Sample().Text());
    EXPECT_EQ(m_folder.Read("other"), "old");
}

TEST_F(ModelFiles, Save_ThroughASymbolicLink_ReplacesWhatItLeadsTo)
{
    m_folder.Write("real/m.json", "old");
    fs::create_symlink("real", m_folder.Path("folder"));
    fs::create_symlink("folder/m.json", m_folder.Path("first"));
    fs::create_symlink(m_folder.Path("first"), m_folder.Path("second"));
    EXPECT_EQ(SaveError(Sample(), m_folder.Path("second")), "");
    EXPECT_TRUE(fs::is_symlink(m_folder.Path("second")));
    EXPECT_TRUE(fs::is_symlink(m_folder.Path("first")));
    EXPECT_FALSE(fs::is_symlink(m_folder.Path("real/m.json")));
    EXPECT_EQ(m_folder.Read("real/m.json"), Sample().Text());
}

TEST_F(ModelFiles, Save_ThroughALinkToNothing_MakesWhatItLeadsTo)
{
    fs::create_symlink("made.json", m_folder.Path("link"));
    EXPECT_EQ(SaveError(Sample(), m_folder.Path("link")), "");
    EXPECT_TRUE(fs::is_symlink(m_folder.Path("link")));
    EXPECT_EQ(m_folder.Read("made.json"), Sample().Text());
}

TEST_F(ModelFiles, Save_IntoTheWorkingFolder_NeedsNoFolderInItsName)
{
    const fs::path before = fs::current_path();
    fs::current_path(m_folder.Path());
    const std::string error = SaveError(Sample(), "m.json");
    fs::current_path(before);
    EXPECT_EQ(error, "");
    EXPECT_EQ(m_folder.Names(), (Names{"m.json"}));
}

TEST_F(ModelFiles, Save_ThatCannotBe_SaysSoAndLeavesNothing)
{
    fs::create_directory(m_folder.Path("folder"));
    fs::create_symlink("circle", m_folder.Path("circle"));
    m_folder.Write("file", "text");
    const Names before = m_folder.Names();
    EXPECT_EQ(SaveError(Sample(), m_folder.Path("missing/m.json")),
              "DIR/missing/m.json: cannot be written: No such file or directory");
    EXPECT_EQ(SaveError(Sample(), m_folder.Path("folder")), "DIR/folder: is a folder, not a file");
    EXPECT_EQ(SaveError(Sample(), m_folder.Path("file/m.json")), "DIR/file/m.json: cannot be written: Not a directory");
    EXPECT_EQ(SaveError(Sample(), m_folder.Path("circle")),
              "DIR/circle: cannot be written: Too many levels of symbolic links");
    EXPECT_EQ(SaveError(Sample(), ""), ": cannot be written: No such file or directory");
    EXPECT_EQ(m_folder.Names(), before);
    EXPECT_EQ(m_folder.Read("file"), "text");
    EXPECT_TRUE(fs::is_empty(m_folder.Path("folder")));
}

/// Nothing is forbidden to the super-user, so for its life the process is somebody else, who owns the given files.
class Nobody
{
public:
    explicit Nobody(const std::vector<std::string>& iFiles)
    {
        if (!m_wasRoot)
            return;
        for (const std::string& file : iFiles)
            EXPECT_EQ(chown(file.c_str(), Identifier, Identifier), 0) << file;
        EXPECT_EQ(setresuid(Identifier, Identifier, 0), 0);
    }
    ~Nobody()
    {
        if (!m_wasRoot)
            return;
        EXPECT_EQ(setresuid(0, 0, 0), 0);
    }
    Nobody(const Nobody&) = delete;
    Nobody& operator=(const Nobody&) = delete;

private:
    static constexpr uid_t Identifier = 65534;
    const bool m_wasRoot = geteuid() == 0;
};

TEST_F(ModelFiles, Save_WithoutPermission_SaysSoAndLeavesTheFile)
{
    const std::string file = m_folder.Write("m.json", "old");
    fs::permissions(file, static_cast<fs::perms>(0444));
    const Nobody nobody({m_folder.Path(), file});
    EXPECT_EQ(SaveError(Sample(), file), "DIR/m.json: cannot be written: Permission denied");
    fs::permissions(m_folder.Path(), static_cast<fs::perms>(0555));
    EXPECT_EQ(SaveError(Sample(), m_folder.Path("n.json")), "DIR/n.json: cannot be written: Permission denied");
    fs::permissions(m_folder.Path(), static_cast<fs::perms>(0755));
    EXPECT_EQ(m_folder.Names(), (Names{"m.json"}));
    EXPECT_EQ(m_folder.Read("m.json"), "old");
}

TEST_F(ModelFiles, Save_OnAFullDevice_SaysSo)
{
    EXPECT_EQ(SaveError(Sample(), "/dev/full"), "/dev/full: cannot be written: No space left on device");
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(ModelFiles, Save_IntoAPipe_WritesIt)
{
    const std::string pipe = m_folder.Path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::string read;
    std::thread reader([&] { read = m_folder.Read("pipe"); });
    const std::string error = SaveError(Sample(), pipe);
    reader.join();
    EXPECT_EQ(error, "");
    EXPECT_EQ(read, Sample().Text());
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(ModelFiles, Save_OfWhatAFileCannotHold_SaysWhereAndLeavesTheFile)
{
    const std::string file = m_folder.Write("m.json", "old");
    Model model;
    const ORXISpecAttrAccess_var access = model.Create("Everything", "E");
    const auto key = [&](const char* iName) { return ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iName)); };

    EXPECT_EQ(access->SetDouble(key("real"), std::numeric_limits<double>::infinity()), S_OK);
    EXPECT_EQ(SaveError(model, file),
              "DIR/m.json: /objects/0/values/real: a real that is infinite or no number cannot be saved");
    EXPECT_EQ(access->SetDouble(key("real"), 0.0), S_OK);

    EXPECT_EQ(access->SetString(key("string"), "ab\xE4"), S_OK);
    EXPECT_EQ(SaveError(model, file), "DIR/m.json: /objects/0/values/string: a text that is no UTF-8 cannot be saved");
    EXPECT_EQ(access->SetString(key("string"), ""), S_OK);

    Model other;
    EXPECT_EQ(access->SetSpecObject(key("other"), other.Create("Part", "elsewhere")), S_OK);
    EXPECT_EQ(SaveError(model, file),
              "DIR/m.json: /objects/0/values/other: refers to \"elsewhere\", which is not in the model");

    EXPECT_EQ(m_folder.Read("m.json"), "old");
    EXPECT_EQ(m_folder.Names(), (Names{"m.json"}));
}

TEST_F(ModelFiles, Load_OfWhatIsNoReadableModel_SaysSo)
{
    EXPECT_EQ(LoadError(m_folder.Path("missing.json")),
              "DIR/missing.json: cannot be opened: No such file or directory");
    EXPECT_EQ(LoadError(m_folder.Path()), "DIR: is a folder, not a file");
    EXPECT_EQ(LoadError(""), ": cannot be opened: No such file or directory");
    EXPECT_EQ(LoadError(m_folder.Write("empty.json", "")), "DIR/empty.json:1:1: The document is empty.");
    EXPECT_EQ(LoadError(m_folder.Write("half.json", "{\"model\": 1,\n  \"obj")),
              "DIR/half.json:2:7: Missing a closing quotation mark in string.");
    EXPECT_EQ(LoadError(m_folder.Write("shape.json", "{\"model\": 1, \"objects\": [{}]}")),
              "DIR/shape.json: /objects/0/type: is missing");
}

TEST_F(ModelFiles, Load_LeavesTheFileAsItIs)
{
    const std::string text = TestCatalog::ModelOfValues("\"real\": 1");
    const std::string file = m_folder.Write("m.json", text);
    Model model = Model::Load(file);
    model.Create("Part", "P");
    model.Close();
    EXPECT_EQ(m_folder.Read("m.json"), text);
    EXPECT_EQ(m_folder.Names(), (Names{"m.json"}));
}
} // namespace
