/**
 * @file
 * Models and documents of unusual size and depth.
 */

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "BoundedStack.h"
#include "ExactDump.h"
#include "JIStream.h"
#include "ModelDump.h"
#include "ORXIAlias.h"
#include "ORXISpecAttribute.h"
#include "RoundTrip.h"
#include "Sanitized.h"
#include "TemporaryFolder.h"
#include "TestCatalog.h"
#include "VYRIFldIdentifier.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneInstruments.h"
#include "VYRStandaloneModel.h"
#include "VYRStandaloneServices.h"

namespace
{
using VYRStandalone::DocumentError;
using VYRStandalone::Model;

constexpr std::size_t Megabyte = 1000000;
/// What a thread has by default is more; a recursion by depth ends here.
constexpr std::size_t StackKibibytes = 512;

std::string Repeated(const std::string& iText, int iCount)
{
    std::string text;
    text.reserve(iText.size() * static_cast<std::size_t>(iCount));
    for (int i = 0; i < iCount; ++i)
        text += iText;
    return text;
}

class Limits : public testing::Test
{
protected:
    Limits() { TestCatalog::Declare(); }

    template <class Action> static std::string ErrorOf(const Action& iAction)
    {
        try
        {
            iAction();
        }
        catch (const DocumentError& error)
        {
            return error.what();
        }
        return {};
    }

    static std::string ParseError(const std::string& iText)
    {
        return ErrorOf([&] { Model::Parse(iText, "m.json"); });
    }

    static std::string CatalogError(const std::string& iText)
    {
        return ErrorOf([&] { VYRStandalone::DeclareCatalog(iText, "c.json"); });
    }

    const TemporaryFolder m_folder;
};

TEST_F(Limits, AHundredThousandObjects_AreLoadedChangedAndSaved)
{
    constexpr int Count = 100000;
    std::string objects;
    for (int i = 0; i < Count; ++i)
    {
        const std::string number = std::to_string(i);
        objects += (i == 0 ? "" : ",") + (R"({"type": "Part", "name": "P)" + number + R"(", "id": )" + number +
                                          R"(, "values": {"size": )" + number + "}}");
    }
    const std::string file = m_folder.Write("m.json", TestCatalog::Model(objects));
    Model model = Model::Load(file);
    const std::vector<ORXISpecObject_var> loaded = model.Objects();
    ASSERT_EQ(loaded.size(), static_cast<std::size_t>(Count));
    for (std::size_t i = 0; i < loaded.size(); ++i)
    {
        const ORXISpecAttrAccess_var access = loaded[i];
        const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey("size"));
        ASSERT_EQ(access->GetDouble(key), static_cast<double>(i));
        ASSERT_EQ(access->SetDouble(key, static_cast<double>(i) + 0.5), S_OK);
        VYRStandalone::SetIdentifier(loaded[i], loaded[Count - 1 - i]->GetName());
    }
    const ORXISpecObject_var list = model.Create("Everything", "all");
    const ORXISpecAttrAccess_var access = list;
    const ORXISpecAttrKey_var others = KeyOf(list, "others");
    for (int i = Count; i > 0; --i)
        ASSERT_EQ(access->InsertAtPosition(others, loaded[static_cast<std::size_t>(i) - 1], Count - i + 1), S_OK);
    model.Save(file);

    const Model again = Model::Load(file);
    ASSERT_EQ(again.Objects().size(), static_cast<std::size_t>(Count) + 1);
    const ORXISpecObject_var last = again.Objects()[Count - 1];
    EXPECT_STREQ(last->GetName(), "P99999");
    const ORXISpecAttrAccess_var lastAccess = last;
    EXPECT_EQ(lastAccess->GetDouble(KeyOf(last, "size")), 99999.5);
    EXPECT_EQ(ObjectAt(again.Objects().back(), "others", 1), last);
    EXPECT_EQ(ObjectAt(again.Objects().back(), "others", Count), again.Objects().front());
    EXPECT_EQ(again.Text(), model.Text());
}

TEST_F(Limits, AHundredThousandReferencesByIdentifier_AreResolved)
{
    constexpr int Count = 100000;
    std::string objects;
    std::string references;
    for (int i = 0; i < Count; ++i)
    {
        const std::string number = std::to_string(i);
        objects += R"({"type": "Part", "name": "P", "identifier": "I)" + number + "\"},";
        references += (i == 0 ? "" : ",") + (R"({"ref": "I)" + number + "\"}");
    }
    const Model model = Model::Parse(TestCatalog::Model(objects + R"({"type": "Everything", "name": "E", "values": {
        "others": [)" + references + "]}}"),
                                     "test");
    EXPECT_EQ(ObjectAt(model.Find("E"), "others", Count), model.Objects()[Count - 1]);
}

TEST_F(Limits, AHundredThousandComponentsOfOneOwner_AreKept)
{
    constexpr int Count = 100000;
    Model model;
    const ORXISpecObject_var owner = model.Create("Everything", "E");
    const ORXISpecAttrAccess_var access = owner;
    const ORXISpecAttrKey_var key = KeyOf(owner, "parts");
    for (int i = 1; i <= Count; ++i)
        ASSERT_EQ(access->InsertAtPosition(key, model.Create("Part", "P"), i), S_OK);
    ASSERT_EQ(model.Objects().size(), 1U);
    const std::string text = model.Text();
    const Model again = Model::Parse(text, "saved");
    EXPECT_EQ(ORXISpecAttrAccess_var(again.Find("E"))->GetListSize(KeyOf(again.Find("E"), "parts")), Count);
    EXPECT_EQ(again.Text(), text);
}

TEST_F(Limits, AHundredThousandObjects_MoveUnderAnOwnerFromTheFirstOn)
{
    constexpr int Count = Repetitions(100000);
    Model model;
    for (int i = 0; i < Count; ++i)
        model.Create("Part", "P");
    const std::vector<ORXISpecObject_var> all = model.Objects();
    const ORXISpecObject_var owner = model.Create("Everything", "E");
    const ORXISpecAttrAccess_var access = owner;
    const ORXISpecAttrKey_var key = KeyOf(owner, "parts");
    for (int i = 1; i <= Count; ++i)
        ASSERT_EQ(access->InsertAtPosition(key, all[static_cast<std::size_t>(i) - 1], i), S_OK);
    EXPECT_EQ(model.Objects().size(), 1U);
    EXPECT_EQ(ObjectAt(owner, "parts", Count), all.back());
}

TEST_F(Limits, AMillionStrings_AreOneList)
{
    constexpr int Count = 1000000;
    ORXListValORXUnicodeString texts;
    for (int i = 0; i < Count; ++i)
        texts.Append(ORXUnicodeString(std::to_string(i).c_str()));
    Model model;
    const ORXISpecObject_var object = model.Create("Everything", "E");
    const ORXISpecAttrAccess_var access = object;
    ASSERT_EQ(access->SetStringList(KeyOf(object, "strings"), texts), S_OK);
    ASSERT_EQ(access->SetString(KeyOf(object, "strings"), "", Count / 2), S_OK);
    model.Save(m_folder.Path("m.json"));
    const Model again = Model::Load(m_folder.Path("m.json"));
    const ORXISpecAttrAccess_var loaded = again.Find("E");
    const ORXISpecAttrKey_var key = KeyOf(again.Find("E"), "strings");
    ASSERT_EQ(loaded->GetListSize(key), Count);
    for (int i = 1; i <= Count; ++i)
        ASSERT_EQ(loaded->GetString(key, i), i == Count / 2 ? ORXUnicodeString() : texts[i]) << i;
    EXPECT_EQ(again.Text(), model.Text());
}

TEST_F(Limits, NamesAndTextsOfAMegabyte_AreKept)
{
    const std::string name(Megabyte, 'n');
    // Of four bytes a character.
    const std::string wide = Repeated("\xF0\x9F\x8C\x8A", static_cast<int>(Megabyte / 4));
    Model model;
    const ORXISpecObject_var object = model.Create("Everything", name.c_str());
    VYRStandalone::SetAlias(object, wide.c_str());
    VYRStandalone::SetIdentifier(object, (name + "i").c_str());
    WriteText(object, "string", wide.c_str());
    ASSERT_TRUE(Add(object, name.c_str(), tk_string));
    WriteText(object, name.c_str(), name.c_str());
    const Model again = Model::Parse(model.Text(), "saved");
    const ORXISpecObject_var loaded = again.Find(name.c_str());
    ASSERT_NE(loaded, NULL_var);
    EXPECT_EQ(again.Find(wide.c_str()), loaded);
    EXPECT_TRUE(loaded->GetName() == name.c_str());
    EXPECT_EQ(ORXISpecAttrAccess_var(loaded)->GetString(KeyOf(loaded, "string")).GetLengthInChar(), 250000);
    EXPECT_TRUE(ExactDump(again) == ExactDump(model));
    EXPECT_TRUE(again.Text() == model.Text());
}

TEST_F(Limits, NamesOfAMegabyteInErrors_AreCut)
{
    const std::string name(Megabyte, 'n');
    const std::string cut = '"' + std::string(80, 'n') + "...\"";
    EXPECT_EQ(ParseError(TestCatalog::ModelOfValues("\"other\": {\"ref\": \"" + name + "\"}")),
              "m.json: /objects/0/values/other/ref: no object has the identifier or the name " + cut);
    const std::string unknownType = ParseError(TestCatalog::Model(R"({"name": "P", "type": ")" + name + "\"}"));
    EXPECT_EQ(unknownType.find("m.json: /objects/0/type: unknown type " + cut + "; there are "), 0U)
        << unknownType.substr(0, 200);
    const std::string twice = ParseError(TestCatalog::Model(R"({"type": "Part", "name": ")" + name + R"("},
        {"type": "Part", "name": ")" + name + R"("},
        {"type": "Everything", "name": "E", "values": {"other": {"ref": ")" +
                                                            name + "\"}}}"));
    EXPECT_EQ(twice, "m.json: /objects/2/values/other/ref: several objects have the identifier or the name " + cut +
                         ": " + cut + ", " + cut + "; refer by id");
}

/// An array or an object in itself, so deep.
std::string NestedArrays(int iDepth)
{
    return Repeated("[", iDepth) + Repeated("]", iDepth);
}

std::string NestedObjects(int iDepth)
{
    return Repeated("{\"a\":", iDepth) + "1" + Repeated("}", iDepth);
}

const std::string TooDeep = ": Arrays and objects stand inside each other more than 1000 deep.";

/// Line and column of the first bracket beyond the limit. For texts without brackets in strings.
std::string PlaceTooDeep(const std::string& iText)
{
    std::size_t at = 0;
    for (int depth = 0; depth <= 1000; ++at)
        depth += (iText[at] == '[' || iText[at] == '{' ? 1 : 0) - (iText[at] == ']' || iText[at] == '}' ? 1 : 0);
    const std::string before = iText.substr(0, at - 1);
    return ":" + std::to_string(std::count(before.begin(), before.end(), '\n') + 1) + ":" +
           std::to_string(before.size() - (before.rfind('\n') + 1) + 1);
}

TEST_F(Limits, DeepJson_IsNoModel)
{
    OnBoundedStack(StackKibibytes, [] {
        for (const int depth : {512, 900})
            for (const std::string& deep : {NestedArrays(depth), NestedObjects(depth)})
            {
                const char* kind = deep.front() == '[' ? "an array" : "an object";
                EXPECT_EQ(ParseError(TestCatalog::ModelOfValues("\"string\": " + deep)),
                          std::string("m.json: /objects/0/values/string: must be a single value, not ") + kind);
                EXPECT_EQ(ParseError(TestCatalog::Model(deep)),
                          deep.front() == '[' ? "m.json: /objects/0: must be an object, not an array"
                                              : "m.json: /objects/0/a: unknown key; there are \"type\", \"name\", "
                                                "\"alias\", \"identifier\", \"id\", \"values\", \"added\"");
                EXPECT_NE(ParseError(TestCatalog::ModelOfValues("\"strings\": [" + deep + "]")), "");
                EXPECT_NE(ParseError(TestCatalog::ModelOfValues("\"part\": " + deep)), "");
                EXPECT_NE(ParseError(TestCatalog::ModelOfValues("\"other\": " + deep)), "");
                EXPECT_NE(ParseError(deep), "");
                // Not closed.
                EXPECT_NE(ParseError(deep.substr(0, deep.size() / 2)), "");
            }
        for (const std::string& deep : {NestedArrays(100000), NestedObjects(100000)})
            for (const std::string& text : {deep, deep.substr(0, deep.size() / 2), TestCatalog::Model(deep),
                                            TestCatalog::ModelOfValues("\"strings\": " + deep)})
                EXPECT_EQ(ParseError(text), "m.json" + PlaceTooDeep(text) + TooDeep);
        EXPECT_EQ(VYRStandalone::LiveComponents(), 0);
    });
}

TEST_F(Limits, DeepJson_IsNoCatalog)
{
    const std::vector<std::string> before = VYRStandalone::TypeNames();
    OnBoundedStack(StackKibibytes, [] {
        for (const int depth : {512, 100000})
            for (const std::string& deep : {NestedArrays(depth), NestedObjects(depth)})
                for (const std::string& catalog :
                     {deep, deep.substr(0, deep.size() / 2), R"({"catalog": "Deep", "types": )" + deep + "}",
                      R"({"catalog": "Deep", "types": [{"name": "DeepType", "startup": )" + deep + "}]}",
                      R"({"catalog": "Deep", "types": [{"name": "DeepType", "attributes": [{"name": "a",
                          "kind": "real", "default": )" +
                          deep + "}]}]}"})
                    EXPECT_EQ(CatalogError(catalog).find("c.json"), 0U) << depth << ' ' << catalog.substr(0, 120);
        EXPECT_EQ(CatalogError(R"({"catalog": "Deep", "types": [{"name": "DeepType", "startup": )" +
                               NestedObjects(900) + "}]}"),
                  "c.json: /types/0/startup" + Repeated("/a", 201) +
                      ": components stand inside each other more than 200 deep");
    });
    EXPECT_EQ(VYRStandalone::TypeNames(), before);
}

TEST_F(Limits, DeepJson_InAConfigurationFileIsReadToTheLimitAndRefusedBeyond)
{
    OnBoundedStack(StackKibibytes, [this] {
        // The file's own object is one level more.
        for (const int depth : {512, 999, 1000, 100000})
            for (const std::string& deep : {NestedArrays(depth), NestedObjects(depth)})
            {
                const bool isRead = depth < 1000;
                const std::string whole =
                    m_folder.Write("whole.json", R"({"deep": )" + deep + R"(, "configurations": [{"name": "n"}]})");
                const int column = 10 + (deep.front() == '[' ? 999 : 5 * 999);
                EXPECT_EQ(ErrorOf([&] { VYRStandalone::CheckJson(whole); }),
                          isRead ? "" : whole + ":1:" + std::to_string(column) + TooDeep);
                JSON::JIStream stream;
                ASSERT_EQ(stream.ParseFile(whole.c_str(), true), isRead);
                EXPECT_TRUE(stream.ReadString("deep").IsEmpty());
                EXPECT_EQ(stream.ReadObjects("deep").size(), isRead && deep.front() == '[' ? 1U : 0U);
                EXPECT_EQ(stream.ReadObjects("configurations").size(), isRead ? 1U : 0U)
                    << "what stands behind it is read";

                const std::string open = m_folder.Write("open.json", R"({"deep": )" + deep.substr(0, deep.size() / 2));
                EXPECT_NE(ErrorOf([&] { VYRStandalone::CheckJson(open); }), "");
                EXPECT_FALSE(stream.ParseFile(open.c_str(), true));
                EXPECT_FALSE(stream.Exist("deep"));
            }
    });
}

ORXISpecObject_var Nest(Model& ioModel, int iDepth)
{
    ORXISpecObject_var top = ioModel.Create("Part", "innermost");
    for (int i = 0; i < iDepth; ++i)
    {
        const ORXISpecObject_var owner = ioModel.Create("Part", "outer");
        WriteObjectAt(owner, "inside", top);
        top = owner;
    }
    return top;
}

TEST_F(Limits, TwentyThousandLevelsOfComponents_AreUsedAndClosed)
{
    OnBoundedStack(StackKibibytes, [] {
        constexpr int Depth = 20000;
        {
            Model model;
            const ORXISpecObject_var top = Nest(model, Depth);
            EXPECT_EQ(model.Objects().size(), 1U);
            ORXISpecObject_var innermost = top;
            for (int i = 0; i < Depth; ++i)
                innermost = ObjectAt(innermost, "inside");
            EXPECT_STREQ(innermost->GetName(), "innermost");
            EXPECT_EQ(innermost->GetContainer(), model.Container());
            EXPECT_EQ(VYRStandalone::PathOf(innermost), "outer" + Repeated("/inside", Depth));
            WriteText(innermost, "label", "deep");
            EXPECT_EQ(ORXISpecAttrAccess_var(innermost)->SetSpecObject(KeyOf(innermost, "inside"), top), E_FAIL)
                << "nothing stands inside itself";
            model.DropExtensions();
            model.Close();
            EXPECT_TRUE(model.Objects().empty());
        }
        EXPECT_EQ(VYRStandalone::LiveComponents(), 0);
        {
            Model model;
            Nest(model, Depth);
        }
        EXPECT_EQ(VYRStandalone::LiveComponents(), 0) << "closed by the model's end";
        {
            Model model;
            const ORXISpecObject_var top = Nest(model, Depth);
            const ORXISpecObject_var half = ObjectAt(ObjectAt(top, "inside"), "inside");
            WriteObjectAt(ObjectAt(top, "inside"), "inside", NULL_var);
        }
        EXPECT_EQ(VYRStandalone::LiveComponents(), 0) << "taken out of the model before";
    });
}

TEST_F(Limits, TwentyThousandLevels_CanBeMadeFromTheOutermostOn)
{
    OnBoundedStack(StackKibibytes, [] {
        Model model;
        ORXISpecObject_var inner = model.Create("Part", "outermost");
        for (int i = 0; i < 20000; ++i)
        {
            const ORXISpecObject_var owner = inner;
            inner = model.Create("Part", "inner");
            WriteObjectAt(owner, "inside", inner);
        }
        EXPECT_EQ(model.Objects().size(), 1U);
    });
    EXPECT_EQ(VYRStandalone::LiveComponents(), 0);
}

TEST_F(Limits, MoreThanTwoHundredLevels_CannotBeSaved)
{
    OnBoundedStack(StackKibibytes, [this] {
        const std::string file = m_folder.Write("m.json", "old");
        const std::string error = file + ": /objects/0" + Repeated("/values/inside", 201) +
                                  ": components stand inside each other more than 200 deep";
        for (const int depth : {201, 20000})
        {
            Model model;
            Nest(model, depth);
            EXPECT_EQ(ErrorOf([&] { model.Save(file); }), error) << depth;
            EXPECT_EQ(m_folder.Read("m.json"), "old");
            EXPECT_EQ(m_folder.Names(), std::vector<std::string>{"m.json"});
        }
        Model model;
        Nest(model, 200);
        EXPECT_EQ(ErrorOf([&] { model.Save(file); }), "");
        EXPECT_EQ(ExactDump(Model::Load(file)), ExactDump(model));
    });
}

TEST_F(Limits, TenThousandAddedAttributes_AreKeptInTheirOrder)
{
    Model model;
    const ORXISpecObject_var object = model.Create("Part", "P");
    for (int i = 0; i < 10000; ++i)
    {
        const std::string name = std::to_string(i) + "_isset";
        ASSERT_TRUE(Add(object, name.c_str(), tk_boolean));
        if (i % 3 != 0)
            WriteBoolean(object, name.c_str(), i % 3 == 1);
    }
    const Model again = Model::Parse(model.Text(), "saved");
    EXPECT_TRUE(ExactDump(again) == ExactDump(model));
    EXPECT_TRUE(again.Text() == model.Text());
}
} // namespace
