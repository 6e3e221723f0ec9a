/**
 * @file
 * What is wrong with a JSON file that the host's reader would not take.
 */

#include <string>

#include <gtest/gtest.h>

#include "JIStream.h"
#include "TemporaryFolder.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneServices.h"

namespace
{
struct JsonCase
{
    const char* what;
    std::string text;
    /// What is said behind the name of the file; empty for JSON.
    std::string error;
};

class JsonFiles : public testing::TestWithParam<JsonCase>
{
};

TEST_P(JsonFiles, AreSaidToBeWrongWhereTheReaderRefusesThem)
{
    const TemporaryFolder folder;
    const std::string file = folder.Write("file.json", GetParam().text);
    std::string error;
    try
    {
        VYRStandalone::CheckJson(file);
    }
    catch (const VYRStandalone::DocumentError& caught)
    {
        error = std::string(caught.what()).substr(file.size());
    }
    EXPECT_EQ(error, GetParam().error);
    JSON::JIStream stream;
    EXPECT_EQ(stream.ParseFile(file.c_str(), true), error.empty() && GetParam().text.front() == '{');
}

INSTANTIATE_TEST_SUITE_P(
    CheckJson, JsonFiles,
    testing::Values(JsonCase{"Object", "{\"a\": [1, 2]}", ""}, JsonCase{"AnyShape", "[]", ""},
                    JsonCase{"Nothing", "", ":1:1: The document is empty."},
                    JsonCase{"Comma", "{\n\t\"a\": 1,\n}", ":3:1: Missing a name for object member."},
                    JsonCase{"HalfASurrogatePair", "{\"\xC3\xA4\": \"\\udc00\"}",
                             ":1:8: The surrogate pair in string is invalid."},
                    JsonCase{"Trailing", "{}\n{}", ":2:1: The document root must not be followed by other values."},
                    // Bytes of a byte order mark that is none.
                    JsonCase{"FirstOfAMark", "\xEF{}", ":1:1: Invalid value."},
                    JsonCase{"SecondOfAMark", "\xBB{}", ":1:1: Invalid value."},
                    JsonCase{"ThirdOfAMark", "\xBF{}", ":1:1: Invalid value."},
                    JsonCase{"HalfAMark", "\xEF\xBB{}", ":1:1: Invalid value."},
                    JsonCase{"ZeroByte", std::string("{}\n\0", 4), ":2:1: A zero byte has no place in JSON."}),
    [](const testing::TestParamInfo<JsonCase>& iInfo) { return std::string(iInfo.param.what); });

TEST(CheckJson, OfWhatIsNoFile_SaysSo)
{
    try
    {
        VYRStandalone::CheckJson("nowhere.json");
        FAIL();
    }
    catch (const VYRStandalone::DocumentError& error)
    {
        EXPECT_STREQ(error.what(), "nowhere.json: cannot be opened: No such file or directory");
    }
}
} // namespace
