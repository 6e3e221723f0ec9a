/**
 * @file
 * Streams are read by another library than the one that says what is valid and where a file is wrong. Whatever stands
 * in a file, the two must not differ: in the verdict, and in each value that a stream gives.
 */

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidjson/document.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include "JIStream.h"
#include "TemporaryFolder.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneServices.h"

namespace
{
namespace fs = std::filesystem;
using JSON::JIStream;
using Value = rapidjson::Value;

std::string_view ViewOf(const Value& iText)
{
    return {iText.GetString(), iText.GetStringLength()};
}

/// The first member of that name, null when there is none.
const Value* FirstOf(const Value& iObject, std::string_view iKey)
{
    for (const auto& member : iObject.GetObject())
        if (ViewOf(member.name) == iKey)
            return &member.value;
    return nullptr;
}

/// What a text says, but for its numbers, which no stream gives.
class Expected : public rapidjson::Document
{
public:
    bool RawNumber(const char* /*iText*/, rapidjson::SizeType /*iLength*/, bool /*iCopy*/) { return Int(0); }

    bool Read(std::string_view iText)
    {
        bool isRead = false;
        const auto generate = [&](rapidjson::Document& oBuilt) {
            constexpr unsigned Flags = rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseIterativeFlag;
            rapidjson::MemoryStream stream(iText.data(), iText.size());
            isRead = !rapidjson::Reader().Parse<Flags>(stream, static_cast<Expected&>(oBuilt)).IsError();
            return isRead;
        };
        Populate(generate);
        return isRead;
    }
};

class JsonReaders : public testing::Test
{
protected:
    /// Reads the text in both ways. @return whether it is an object of valid JSON
    bool ReadBoth(const std::string& iText)
    {
        const std::string file = m_folder.Write("file.json", iText);
        const bool isValid = IsObjectOfStrictJson(file, iText);
        JIStream stream;
        EXPECT_EQ(stream.ParseFile(file.c_str(), true), isValid) << Shown(iText);
        if (!isValid || HasFailure())
            return isValid;
        Expected expected;
        EXPECT_TRUE(expected.Read(iText)) << Shown(iText);
        if (!HasFailure())
            Compare(stream, expected, iText);
        return isValid;
    }

private:
    static std::string Shown(const std::string& iText) { return iText.substr(0, 2000); }

    static bool IsObjectOfStrictJson(const std::string& iFile, const std::string& iText)
    {
        try
        {
            VYRStandalone::CheckJson(iFile);
        }
        catch (const VYRStandalone::DocumentError&)
        {
            return false;
        }
        const std::size_t first = iText.find_first_not_of(" \t\r\n");
        return first != std::string::npos && iText[first] == '{';
    }

    static void Compare(const JIStream& iStream, const Value& iObject, const std::string& iText);

    TemporaryFolder m_folder;
};
void JsonReaders::Compare(const JIStream& iStream, const Value& iObject, const std::string& iText)
{
    for (const auto& member : iObject.GetObject())
    {
        const std::string key(ViewOf(member.name));
        const ORXUnicodeString name(key.data(), key.size());
        const Value& value = *FirstOf(iObject, key);
        ASSERT_TRUE(iStream.Exist(name)) << key << " in " << Shown(iText);
        ASSERT_EQ(iStream.ReadString(name).View(), value.IsString() ? ViewOf(value) : "")
            << key << " in " << Shown(iText);
        ASSERT_EQ(iStream.ReadBoolean(name), value.IsTrue()) << key << " in " << Shown(iText);
        const std::string missing = key + "\x7f";
        ASSERT_EQ(iStream.Exist(ORXUnicodeString(missing.data(), missing.size())),
                  FirstOf(iObject, missing) != nullptr);

        // This one takes keys up to a zero.
        const Value* array = FirstOf(iObject, key.c_str());
        const std::vector<JIStream> objects = iStream.ReadObjects(key.c_str());
        ASSERT_EQ(objects.size(), array != nullptr && array->IsArray() ? array->Size() : 0)
            << key << " in " << Shown(iText);
        for (std::size_t i = 0; i < objects.size(); ++i)
        {
            const Value& element = (*array)[static_cast<rapidjson::SizeType>(i)];
            if (element.IsObject() && &member.value == array)
                Compare(objects[i], element, iText);
            ASSERT_EQ(objects[i].Exist(""), element.IsObject() && FirstOf(element, "") != nullptr) << Shown(iText);
        }
        if (HasFatalFailure())
            return;
    }
}

/// All files below the folder, in an order that is the same everywhere.
std::vector<std::string> TextsBelow(const fs::path& iFolder, const std::string& iSuffix)
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(iFolder))
        if (entry.is_regular_file() && (iSuffix.empty() || entry.path().extension() == iSuffix))
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<std::string> texts;
    for (const fs::path& file : files)
    {
        std::ifstream input(file, std::ios::binary);
        texts.emplace_back(std::istreambuf_iterator<char>(input), std::istreambuf_iterator<char>());
    }
    return texts;
}

std::vector<std::string> AllTexts()
{
    const fs::path root = fs::path(VYR_SAMPLES_DIR).parent_path();
    std::vector<std::string> texts = TextsBelow(root / "fuzz" / "corpus", "");
    for (const char* folder : {"samples", "tests"})
    {
        const std::vector<std::string> more = TextsBelow(root / folder, ".json");
        texts.insert(texts.end(), more.begin(), more.end());
    }
    return texts;
}

/// What the two libraries are most likely to see with different eyes.
const std::vector<std::string>& Tokens()
{
    static const std::vector<std::string> tokens{"\"",
                                                 "\\",
                                                 "\\u",
                                                 "\\ud83c",
                                                 "\\udf0a",
                                                 "\\u0000",
                                                 "\\uD800\\uDC00",
                                                 "{",
                                                 "}",
                                                 "[",
                                                 "]",
                                                 ",",
                                                 ":",
                                                 "[{}]",
                                                 "true",
                                                 "false",
                                                 "null",
                                                 "-0",
                                                 "1e400",
                                                 "0e400",
                                                 "0.0E+400",
                                                 std::string(310, '1') + "e-100",
                                                 std::string(310, '1') + ".5e-100",
                                                 "-1e-400",
                                                 "1e308",
                                                 "0.1e-7",
                                                 "01",
                                                 "1.",
                                                 "\"a\":1,",
                                                 "\n",
                                                 "\t",
                                                 "\xEF\xBB\xBF",
                                                 "\xC3\xA4",
                                                 "\xED\xA0\x80",
                                                 "\xF4\x90\x80\x80",
                                                 "\xC0\x80",
                                                 "\x7f",
                                                 "\x1f",
                                                 "18446744073709551616",
                                                 "-9223372036854775809",
                                                 "//",
                                                 "/**/",
                                                 " "};
    return tokens;
}

std::string Mutated(std::string ioText, std::mt19937& ioRandom)
{
    const auto below = [&](std::size_t iEnd) { return ioRandom() % std::max<std::size_t>(iEnd, 1); };
    for (std::size_t left = 1 + below(3); left > 0; --left)
    {
        const std::size_t at = below(ioText.size() + 1);
        switch (below(5))
        {
        case 0:
            ioText.insert(at, 1, static_cast<char>(below(256)));
            break;
        case 1:
            ioText.erase(at, 1);
            break;
        case 2:
            if (at < ioText.size())
                ioText[at] = static_cast<char>(below(256));
            break;
        case 3:
            ioText.insert(at, ioText.substr(below(ioText.size()), below(40)));
            break;
        default:
            ioText.insert(at, Tokens()[below(Tokens().size())]);
        }
    }
    return ioText;
}

TEST_F(JsonReaders, OnEveryFileOfTheTree_DoNotDiffer)
{
    int valid = 0;
    const std::vector<std::string> texts = AllTexts();
    for (const std::string& text : texts)
        valid += ReadBoth(text) ? 1 : 0;
    EXPECT_GT(valid, 150) << "of " << texts.size();
    EXPECT_GT(texts.size(), static_cast<std::size_t>(valid) + 100);
}

TEST_F(JsonReaders, OnRandomChangesOfFiles_DoNotDiffer)
{
    constexpr std::size_t Largest = 4096;
    constexpr int Changes = 6;
    std::mt19937 random(20);
    int valid = 0;
    for (const std::string& text : AllTexts())
        for (int i = 0; text.size() <= Largest && i < Changes && !HasFailure(); ++i)
            valid += ReadBoth(Mutated(text, random)) ? 1 : 0;
    EXPECT_GT(valid, 200);
}

TEST_F(JsonReaders, OnValuesAtTheEdges_DoNotDiffer)
{
    std::vector<std::string> values{"18446744073709551615",
                                    "18446744073709551616",
                                    "-9223372036854775808",
                                    "-9223372036854775809",
                                    "1e308",
                                    "1.7976931348623157e308",
                                    "1.7976931348623158e308",
                                    "1.7976931348623159e308",
                                    "-1.7976931348623159e308",
                                    "1e309",
                                    "-1e309",
                                    "1e99999999999999999999",
                                    "1e-99999999999999999999",
                                    "5e-324",
                                    "2e-324",
                                    "4.9e-324",
                                    "2.2250738585072011e-308",
                                    "-0",
                                    "-0.0",
                                    "0e0",
                                    "0e99999999999999999999",
                                    "-",
                                    "+1",
                                    ".5",
                                    "1.",
                                    "1.e1",
                                    "1e",
                                    "1e+",
                                    "0e309",
                                    "0.0e-400",
                                    "-0.00E400",
                                    "10e307",
                                    "\"0e309\"",
                                    "00",
                                    "0x1",
                                    "Infinity",
                                    "NaN",
                                    "nul",
                                    "truefalse",
                                    "true",
                                    "tru",
                                    "0." + std::string(400, '0') + "1e405",
                                    std::string(400, '1'),
                                    "1" + std::string(308, '0'),
                                    "1" + std::string(309, '0'),
                                    std::string(310, '1') + "e-100",
                                    std::string(310, '1') + ".5e-100",
                                    std::string(309, '9') + "e-1",
                                    std::string(20, '9') + "e-5",
                                    "\"\\ud7ff\\ue000\"",
                                    "\"\\ud800\\udbff\"",
                                    "\"\\udc00\\ud800\"",
                                    "\"\\ud800\\u0041\"",
                                    "\"\\udbff\\udfff\"",
                                    "\"\\uDFFF\"",
                                    "\"\\ud800\"",
                                    "\"\\u12\"",
                                    "\"\\u00g0\"",
                                    "\"\\U0041\"",
                                    "\"\\'\"",
                                    "\"\\\"",
                                    "\"\x7f\""};
    for (int byte = 0; byte < 256; ++byte)
    {
        const std::string one(1, static_cast<char>(byte));
        values.insert(values.end(),
                      {one, "\"" + one + "\"", "\"\\" + one + "\"", "\"\xE1" + one + "\x80\"",
                       "\"\xE0" + one + "\x80\"", "\"\xED" + one + "\x80\"", "\"\xF0" + one + "\x80\x80\"",
                       "\"\xF4" + one + "\x80\x80\"", "\"" + one + "\x80\"", "1" + one});
    }
    for (std::size_t depth = 997; depth <= 1003; ++depth)
        for (const char* inner : {"", "1", "{}", "[]", "{\"a\":[]}"})
        {
            values.push_back(std::string(depth, '[') + inner + std::string(depth, ']'));
            std::string objects;
            for (std::size_t i = 0; i < depth; ++i)
                objects += "{\"a\":";
            values.push_back(objects + (*inner == '\0' ? "0" : inner) + std::string(depth, '}'));
        }
    int valid = 0;
    for (const std::string& value : values)
    {
        valid += ReadBoth("{\"a\": " + value + ", \"b\": \"text\"}") ? 1 : 0;
        valid += ReadBoth("{" + value + ": 1}") ? 1 : 0;
        ReadBoth(value + "{}");
        ReadBoth("{}" + value);
    }
    EXPECT_GT(valid, 300);
}

/// Texts and keys that a document keeps once must be the same to the last byte.
TEST_F(JsonReaders, OnTextsThatAreNearlyTheSame_DoNotDiffer)
{
    std::vector<std::string> texts{"", "\\u0000"};
    for (const std::size_t size : {1U, 3U, 4U, 7U, 8U, 9U, 15U, 16U, 17U, 23U, 24U, 25U, 31U, 32U, 33U, 40U, 100U})
        for (const char* const end : {"", "a", "b", "\\u0000", "\\u0000\\u0000"})
            texts.push_back(std::string(size, 'x') + end);
    std::mt19937 random(1);
    const auto any = [&] { return '"' + texts[random() % texts.size()] + '"'; };
    std::string elements;
    for (int i = 0; i < 3000; ++i)
        elements += (i > 0 ? ",{" : "{") + any() + ':' + any() + ',' + any() + ':' + any() + '}';
    EXPECT_TRUE(ReadBoth(R"({"all": [)" + elements + "]}"));
    // And so by the other reader, to which this number goes.
    EXPECT_TRUE(ReadBoth(R"({"all": [)" + elements + "], \"large\": 18446744073709551616}"));
}

/// A document has room for as many different ones as there are.
TEST_F(JsonReaders, OnManyDifferentTexts_DoNotDiffer)
{
    std::string elements;
    for (int i = 0; i < 5000; ++i)
    {
        const std::string number = std::to_string(i);
        elements += (i > 0 ? ",{\"" : "{\"") + number + "\":\"text" + number + "\",\"list\":[1,{\"" + number +
                    R"(":true},[{"deep":"er"}],{}]})";
    }
    EXPECT_TRUE(ReadBoth(R"({"all": [)" + elements + "]}"));
}

/// What the memory of an earlier file leaves behind a shorter one must not count.
TEST_F(JsonReaders, OnBeginningsOfAFile_ReadAfterTheWhole_DoNotDiffer)
{
    const std::string whole = R"({"a": [{"b": "\ud83c\udf0a"}, {"c": true}], "b": 1.5e3, "c": "text"})"
                              "\n  ";
    for (std::size_t size = 0; size <= whole.size(); ++size)
    {
        EXPECT_TRUE(ReadBoth(whole));
        EXPECT_EQ(ReadBoth(whole.substr(0, size)), size + 3 >= whole.size()) << size;
    }
}

/// By its size alone: there would not be memory for all of it.
TEST_F(JsonReaders, OfAFileOfATerabyte_RefuseItBeforeItIsRead)
{
    const TemporaryFolder folder;
    const std::string file = folder.Write("file.json", "{}");
    std::filesystem::resize_file(file, std::uintmax_t{1} << 40);
    JSON::JIStream stream;
    EXPECT_FALSE(stream.ParseFile(file.c_str(), true));
    std::filesystem::resize_file(file, 2);
    EXPECT_TRUE(stream.ParseFile(file.c_str(), true));
}

TEST_F(JsonReaders, OnFilesOfAllSizes_DoNotDiffer)
{
    for (const std::size_t size : {1U, 4000U, 4096U, 65536U, 131000U, 131072U, 131073U, 1048576U, 3000000U, 100U})
    {
        std::string text = R"({"a": [{"name": "first"})";
        while (text.size() < size)
            text += R"(,{"name":"\u00e4 )" + std::to_string(text.size()) + "\"}";
        EXPECT_TRUE(ReadBoth(text + "]}"));
        EXPECT_FALSE(ReadBoth(text + "]"));
    }
}
} // namespace
