/**
 * @file
 * What the tool says of files that are no JSON: where something is to be changed, and to what.
 */

#include "ToolTest.h"

namespace
{
const std::string Broken = "samples/reffiles/VYRCfdApp/meshFYEConfig.json";

struct Mistake
{
    const char* name;
    std::string text;
    /// Line and column.
    const char* place;
    const char* message;
};

void PrintTo(const Mistake& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class Mistakes : public ToolTest, public testing::WithParamInterface<Mistake>
{
};

TEST_P(Mistakes, AreTold_WithTheirPlaceAndWhatWouldBeRight)
{
    Write(Broken, GetParam().text);
    const ToolRun run = Run({"list"});
    EXPECT_EQ(Outcome(run), Outcome(1, Broken + ":" + GetParam().place + ": " + GetParam().message + "\n"));
}

std::string NameOf(const testing::TestParamInfo<Mistake>& iInfo)
{
    return iInfo.param.name;
}

const Mistake Commas[] = {
    {"LastOfObject", "{\"a\": 1,\n \"b\": 2,\n}", "2:8", "nothing follows this comma but \"}\"; take the comma out"},
    {"LastOfArray", "[1, 2 ,\n\n]", "1:7", "nothing follows this comma but \"]\"; take the comma out"},
    {"Two", "[1,, 2]", "1:4", "nothing stands between two commas; take one out"},
    {"TwoInObject", "{\"a\": 1, ,\"b\": 2}", "1:10", "nothing stands between two commas; take one out"},
    {"FirstOfArray", "[ , 1]", "1:3", "nothing stands in front of this comma; take it out"},
    {"FirstOfObject", "{ , \"a\": 1}", "1:3", "nothing stands in front of this comma; take it out"},
    {"MissingBetweenMembers", "{\"name\": \"x\"\n \"config\": []}", "1:13", "a comma is missing behind \"x\""},
    {"MissingBehindNumber", "[1 2]", "1:3", "a comma is missing behind 1"},
    {"MissingBetweenObjects", "[{}\n{}]", "1:4", "a comma is missing behind \"}\""},
    {"MissingBehindLongText", "[\"" + std::string(60, 'x') + "\" 1]", "1:64", "a comma is missing behind at 1:2"},
    {"Semicolon", "[1; 2]", "1:3", "entries are parted by a comma, not by \";\""},
    {"Decimal", "{\"a\": 0,35}", "1:8", "a decimal comma is written as a point: 0.35"},
    {"DecimalBehindPoint", "{\"a\": 1.5,3}", "1:11", "a key stands in quotation marks: \"3\""},
    {"DecimalBelowZero", "{\"a\": -12,5e3}", "1:10", "a decimal comma is written as a point: -12.5e3"},
};
INSTANTIATE_TEST_SUITE_P(Commas, Mistakes, testing::ValuesIn(Commas), NameOf);

const Mistake Comments[] = {
    {"Line", "{ // all\n}", "1:3", "JSON has no comments; take it out"},
    {"Block", "{\"a\": /* all */ 1}", "1:7", "JSON has no comments; take it out"},
    {"Sharp", "# all\n{}", "1:1", "JSON has no comments; take it out"},
    {"BehindTheEnd", "{} // all", "1:4", "JSON has no comments; take it out"},
    {"BehindComma", "[1, // one\n 2]", "1:5", "JSON has no comments; take it out"},
};
INSTANTIATE_TEST_SUITE_P(Comments, Mistakes, testing::ValuesIn(Comments), NameOf);

const Mistake Marks[] = {
    {"SingleOfKey", "{'name': 1}", "1:2", "a key stands in straight, double quotation marks: \"name\""},
    {"SingleOfValue", "{\"name\": 'a b'}", "1:10", "a text stands in straight, double quotation marks: \"a b\""},
    {"Typographic", "[\xE2\x80\x9Cwall\xE2\x80\x9D]", "1:2",
     "a text stands in straight, double quotation marks: \"wall\""},
    {"SingleThatDoesNotEnd", "['a\n]", "1:2", "a text stands in straight, double quotation marks"},
    {"BareKey", "{name: 1}", "1:2", "a key stands in quotation marks: \"name\""},
    {"BareValue", "{\"name\": wall}", "1:10", "a text stands in quotation marks: \"wall\""},
    {"BareNumberAsKey", "{1: 2}", "1:2", "a key stands in quotation marks: \"1\""},
    {"MissingBehindKey", "{\"name: \"wall\"}", "1:10",
     "behind the text \"name: \" something follows without a comma: a quotation mark is missing or too many, or one "
     "inside a text is to be written \\\""},
    {"InsideText", "[\"a \"b\" c\"]", "1:6",
     "behind the text \"a \" something follows without a comma: a quotation mark is missing or too many, or one "
     "inside a text is to be written \\\""},
    {"MissingAtLineEnd", "{\"name\": \"wall,\n \"config\": []}", "1:16",
     "the text at 1:10 does not end on its line: its closing quotation mark is missing, or a line break in it is to be "
     "written \\n"},
    {"MissingAtEnd", "[\"wall", "1:7",
     "the document ends inside the text at 1:2: its closing quotation mark is missing"},
};
INSTANTIATE_TEST_SUITE_P(Marks, Mistakes, testing::ValuesIn(Marks), NameOf);

const Mistake Brackets[] = {
    {"ObjectInFrontOfBracket", "{\"a\": [\n  {\"b\": 1\n]}", "3:1",
     "the \"{\" at 2:3 is not closed: \"}\" is missing in front of this \"]\", or this \"]\" is one too many"},
    {"ArrayInFrontOfBrace", "{\"a\": [1, 2}", "1:12",
     "the \"[\" at 1:7 is not closed: \"]\" is missing in front of this \"}\", or this \"}\" is one too many"},
    {"EmptyArrayInFrontOfBrace", "{\"a\": [}", "1:8",
     "the \"[\" at 1:7 is not closed: \"]\" is missing in front of this \"}\", or this \"}\" is one too many"},
    {"ObjectInFrontOfObject", "[{\"a\": 1\n {\"b\": 2}]", "1:9",
     "the \"{\" at 1:2 is to be closed by \"}\", and a comma is to follow, in front of the \"{\" at 2:2"},
    {"ObjectBehindComma", "[{\"a\": 1,\n {\"b\": 2}]", "2:2",
     "a key in quotation marks is wanted in front of this \"{\", or the \"{\" at 1:2 is to be closed before"},
    {"ByIndentation", "{\n  \"a\": {\n    \"b\": {\n      \"c\": 1\n  },\n  \"d\": 2\n}\n", "8:1",
     "the document ends, and the \"{\" at 3:10 is not closed by \"}\""},
    {"ByIndentationInFrontOfBracket", "[\n  {\n    \"b\": {\n      \"c\": 1\n  },\n  {}\n]\n", "6:3",
     "a key in quotation marks is wanted in front of this \"{\", or the \"{\" at 3:10 is to be closed before"},
    {"One", "{\"a\": 1\n", "2:1", "the document ends, and the \"{\" at 1:1 is not closed by \"}\""},
    {"Two", "{\"a\": [1,", "1:10",
     "the document ends, and the \"[\" at 1:7 is not closed by \"]\", nor the \"{\" at 1:1"},
    {"Several", "{\"a\": [{\"b\":", "1:13",
     "the document ends, and the \"{\" at 1:8 is not closed by \"}\", nor the \"[\" at 1:7, nor 1 other further out"},
    {"OneTooMany", "{\"a\": []}\n}", "2:1",
     "this \"}\" closes nothing: the document ends at 1:9, where its value does"},
    {"FirstMissing", "\n  \"configurations\": []\n}", "2:3",
     "a key with a value stands between { and }: a \"{\" is missing in front of \"configurations\""},
    {"TextAndMoreBehindIt", "\"a\", 1", "1:4",
     "the document ends at 1:3, where its value does, and nothing may follow"},
    {"RoundInPlaceOfSquare", "{\"a\": [1, 2)}", "1:12", "the \"[\" at 1:7 is closed by \"]\", not by \")\""},
    {"RoundInPlaceOfCurly", "[{\"a\": 1)]", "1:9", "the \"{\" at 1:2 is closed by \"}\", not by \")\""},
    {"RoundThatOpens", "{\"a\": (1, 2)}", "1:7", "an array stands between [ and ], not between ( and )"},
    {"FirstOfAll", "]", "1:1", "this \"]\" closes nothing"},
    {"KeyInArray", "[\"a\": 1]", "1:5",
     "a key with a value stands between { and }, and the array at 1:1 holds values alone"},
};
INSTANTIATE_TEST_SUITE_P(Brackets, Mistakes, testing::ValuesIn(Brackets), NameOf);

const Mistake Keys[] = {
    {"ValueMissing", "{\"a\": , \"b\": 1}", "1:6", "behind the colon a value is missing"},
    {"ValueAndColonMissing", "{\"a\"}", "1:5", "behind the key \"a\" a colon and a value are missing"},
    {"ColonMissing", "{\"a\" 1}", "1:5", "behind the key \"a\" a colon is missing"},
    {"EqualSign", "{\"a\" = 1}", "1:6", "between a key and its value stands a colon, not \"=\""},
    {"TwoColons", "{\"a\": \"b\": 1}", "1:10",
     "behind a value stands no colon: a comma or a quotation mark is missing before"},
};
INSTANTIATE_TEST_SUITE_P(Keys, Mistakes, testing::ValuesIn(Keys), NameOf);

const Mistake Texts[] = {
    {"Tabulator", "[\"a\tb\"]", "1:4", "a tabulator inside a text is written \\t"},
    {"ControlCharacter", "[\"a\x01\"]", "1:4",
     "a control character inside a text is written as an escape, this one \\u0001"},
    {"WindowsPath", "[\"C:\\data\"]", "1:5",
     "a backslash itself is written \\\\; otherwise behind a backslash stands one of \" / b f n r t, or u and four "
     "digits"},
    {"EscapeWithoutDigits", "[\"C:\\users\"]", "1:5",
     "behind \\u stand four hexadecimal digits, as in \\u00E4; a backslash itself is written \\\\"},
    {"HalfOfAPair", "[\"\\uD83D\"]", "1:3",
     "\\uD83D is half of a pair of escapes, and the other half is not beside it; such a character can also be written "
     "as it is"},
    {"OtherEncoding", "[\"W\xE4rme\"]", "1:4",
     "the byte 0xE4 is no UTF-8: the file is saved in another encoding, or damaged; save it as UTF-8"},
    {"BlankOfAnotherKind",
     "[1,\xC2\xA0"
     "2]",
     "1:4", "what looks like a blank here is another character, which has no place outside texts; write a blank"},
    {"Joined", "[\"a\" + \"b\"]", "1:6", "texts cannot be joined by \"+\"; write them as one text"},
    {"JoinedWithoutBlanks", "{\"a\": \"b\"+\n\"c\"}", "1:10",
     "texts cannot be joined by \"+\"; write them as one text"},
    {"SignOfNoMeaning", "[&]", "1:2", "\"&\" has no place here; a value is wanted"},
};
INSTANTIATE_TEST_SUITE_P(Texts, Mistakes, testing::ValuesIn(Texts), NameOf);

const Mistake Values[] = {
    {"True", "[True]", "1:2", "in JSON \"True\" is written true"},
    {"False", "{\"a\": FALSE}", "1:7", "in JSON \"FALSE\" is written false"},
    {"None", "[None]", "1:2", "in JSON \"None\" is written null"},
    {"NotANumber", "[NaN]", "1:2", "JSON has no \"NaN\", but finite numbers only"},
    {"Infinity", "[-Infinity]", "1:2", "JSON has no \"-Infinity\", but finite numbers only"},
    {"Plus", "[+5]", "1:2", "\"+5\" is no number of JSON; write 5"},
    {"Point", "[.5]", "1:2", "\".5\" is no number of JSON; write 0.5"},
    {"PointBelowZero", "[-.5]", "1:2", "\"-.5\" is no number of JSON; write -0.5"},
    {"PointAtEnd", "[5.]", "1:2", "\"5.\" is no number of JSON; write 5"},
    {"LeadingZero", "[007]", "1:2", "\"007\" is no number of JSON; write 7"},
    {"PartedDigits", "[-1_000.5]", "1:2", "\"-1_000.5\" is no number of JSON; write -1000.5"},
    {"UnitBehindALine", "[1_m]", "1:2",
     "\"1_m\" is no number; a value with a unit is a text, in quotation marks: \"1_m\""},
    {"Hexadecimal", "[0x1F]", "1:2", "\"0x1F\" is no number of JSON; write 31"},
    {"Unit", "{\"a\": 1.5m}", "1:7",
     "\"1.5m\" is no number; a value with a unit is a text, in quotation marks: \"1.5m\""},
    {"Version", "[1.2.3]", "1:2", "\"1.2.3\" is no number; one is written as 2, -0.5 or 1.5e-3"},
    {"PointAlone", "[.]", "1:2", "\".\" is no number; one is written as 2, -0.5 or 1.5e-3"},
    {"ExponentWithoutDigits", "[1e]", "1:2", "\"1e\" is no number; one is written as 2, -0.5 or 1.5e-3"},
};
INSTANTIATE_TEST_SUITE_P(Values, Mistakes, testing::ValuesIn(Values), NameOf);

const Mistake Documents[] = {
    {"Empty", "", "1:1", "the file is empty; a document between { and } is wanted"},
    {"Blank", " \n\n", "1:1", "nothing stands in the file but blanks; a document between { and } is wanted"},
    {"MoreBehindTheEnd", "{}\n{\"a\": 1}", "2:1",
     "the document ends at 1:2, where its value does, and nothing may follow"},
    {"ByteOrderMark", "\xEF\xBB\xBF{}", "1:1",
     "a byte order mark has no place in JSON; save the file as UTF-8 without one"},
    {"Utf16", std::string("\xFF\xFE{\0}\0", 6), "1:1", "the file is in UTF-16; save it as UTF-8"},
    {"Utf16WithoutMark", std::string("\0{\0}", 4), "1:1", "the file is in UTF-16; save it as UTF-8"},
    {"Utf32", std::string("\xFF\xFE\0\0{\0\0\0", 8), "1:1", "the file is in UTF-32; save it as UTF-8"},
    {"Utf32WithoutMark", std::string("{\0\0\0}\0\0\0", 8), "1:1", "the file is in UTF-32; save it as UTF-8"},
    {"Utf32OfTheOtherOrder", std::string("\0\0\0{\0\0\0}", 8), "1:1", "the file is in UTF-32; save it as UTF-8"},
    // What the parser itself has to say stands.
    {"ZeroByte", std::string("[1, \0]", 6), "1:5", "A zero byte has no place in JSON."},
    {"TooLargeNumber", "[1e999]", "1:2", "Number too big to be stored in double."},
};
INSTANTIATE_TEST_SUITE_P(Documents, Mistakes, testing::ValuesIn(Documents), NameOf);

TEST_F(ToolTest, Mistakes_OfJson_AreToldInModelsCatalogsAndByTheCheckAsWell)
{
    const std::string text = "{\"types\": [],\n}";
    const std::string line = ":1:13: nothing follows this comma but \"}\"; take the comma out\n";
    Write("a.model.json", text);
    Write("a.catalog.json", text);
    Write(Broken, text);
    EXPECT_EQ(Outcome(Run({"show", "a.model.json"})), Outcome(1, "a.model.json" + line));
    EXPECT_EQ(Outcome(Run({"show", External, "--catalog", "a.catalog.json"})), Outcome(1, "a.catalog.json" + line));
    const std::string output = Run({"check", "a.catalog.json"}).output;
    const std::string finding = ":1:13: error: nothing follows this comma but \"}\"; take the comma out; ";
    EXPECT_NE(output.find("a.catalog.json" + finding), std::string::npos) << output;
    EXPECT_NE(output.find(Broken + finding), std::string::npos) << output;
}

TEST_F(ToolTest, Mistakes_InLargeFilesOnOneLine_AreFoundInTimeInProportion)
{
    std::string text = "{\"a\": [";
    for (int i = 0; i < 200000; ++i)
        text += "{\"b\": [\"c\"]}, ";
    Write(Broken, text + "]}");
    const ToolRun run = Run({"list"});
    EXPECT_EQ(Outcome(run), Outcome(1, Broken + ":1:" + std::to_string(text.size() - 1) +
                                           ": nothing follows this comma but \"]\"; take the comma out\n"));
}
} // namespace
