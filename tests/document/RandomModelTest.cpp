/**
 * @file
 * Models made by chance are the same after saving and loading; documents that were damaged are refused, or make a model
 * that is.
 */

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "ExactDump.h"
#include "RandomModel.h"
#include "TestCatalog.h"
#include "VYRStandaloneInstruments.h"
#include "VYRStandaloneModel.h"

namespace
{
using VYRStandalone::DocumentError;
using VYRStandalone::Model;

class RandomModels : public testing::Test
{
protected:
    RandomModels() { TestCatalog::Declare(); }
};

TEST_F(RandomModels, AreTheSameAfterSavingAndLoading)
{
    std::string all;
    for (std::uint32_t seed = 1; seed <= 4000; ++seed)
    {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const Model model = RandomModel(seed).Make();
        const std::string text = model.Text();
        const Model again = Model::Parse(text, "saved");
        ASSERT_EQ(ExactDump(again), ExactDump(model)) << text;
        ASSERT_EQ(again.Text(), text);
        all += text;
    }
    // That the models are of everything.
    for (const char* content : {"\"type\": \"Rich\"", "\"type\": \"VYRCfdChoice\"", "\"column\": [", "\"added\": {",
                                "\"alias\": ", "\"identifier\": ", "\"ref\": ", "\"flag\": ", "\\u0000", "-0.0",
                                "e-324", "2147483647", "\"mayOthers\": {", "\"kind\": \"component\"",
                                "\"kind\": \"reference\"", "\"kind\": \"list\"", "\"kind\": \"enumeration\""})
        EXPECT_NE(all.find(content), std::string::npos) << content;
}

/// Takes pieces out, doubles them, moves them, or changes single bytes.
std::string Damaged(std::string iText, std::mt19937& ioRandom)
{
    const auto below = [&](std::size_t iEnd) {
        return static_cast<std::size_t>(ioRandom()) % std::max<std::size_t>(iEnd, 1);
    };
    static constexpr char Bytes[] = "{}[],:\"0-1e.ntf\\/ \x80\xC3";
    for (std::size_t times = 1 + below(2); times > 0 && !iText.empty(); --times)
    {
        const std::size_t from = below(iText.size());
        const std::string piece = iText.substr(from, 1 + below(40));
        switch (below(4))
        {
        case 0:
            iText.erase(from, piece.size());
            break;
        case 1:
            iText.insert(below(iText.size()), piece);
            break;
        case 2:
            iText[from] = Bytes[below(sizeof(Bytes))];
            break;
        default:
            iText.erase(from, 1);
            break;
        }
    }
    return iText;
}

TEST_F(RandomModels, DamagedDocuments_AreRefusedOrMakeAModel)
{
    int refused = 0;
    int taken = 0;
    for (std::uint32_t seed = 1; seed <= 300; ++seed)
    {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        const std::string text = RandomModel(seed).Make().Text();
        for (int i = 0; i < 10; ++i)
        {
            const std::string damaged = Damaged(text, random);
            try
            {
                const Model model = Model::Parse(damaged, "damaged");
                const std::string saved = model.Text();
                const Model again = Model::Parse(saved, "saved");
                ASSERT_EQ(ExactDump(again), ExactDump(model)) << damaged;
                ++taken;
            }
            catch (const DocumentError& error)
            {
                ASSERT_EQ(std::string(error.what()).find("damaged:"), 0U) << error.what() << '\n' << damaged;
                ++refused;
            }
        }
    }
    EXPECT_GT(refused, 1000);
    EXPECT_GT(taken, 20);
    EXPECT_EQ(VYRStandalone::LiveComponents(), 0);
}
} // namespace
