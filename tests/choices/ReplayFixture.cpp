#include "ReplayFixture.h"

#include "ChannelSwap.h"
#include "Configurations.h"
#include "TemporaryFolder.h"
#include "VYRCfdTraceManager.h"

namespace
{
std::string Content()
{
    std::string text;
    for (const std::string& configuration : {
             Configuration("makeForty", R"([ { "path": "count", "type": "integer", "default": "40" } ])"),
             Configuration("makeFifty", R"([ { "path": "count", "type": "integer", "default": "50" } ])"),
             Configuration("makeLabel", R"([ { "path": "label", "type": "string", "default": "made" } ])"),
             Configuration("makeWrong", R"([ { "path": "count", "value": "1, 2", "list": true } ])"),
             Configuration("makeNone", "[]"),
             Configuration("recordAll", R"([
                 { "path": "Data", "condition": "value==beta", "config": "makeForty" },
                 { "path": "Data", "condition": "value==alpha", "config": "makeLabel" } ])"),
         })
        text += (text.empty() ? "" : ",\n") + configuration;
    return text;
}

/// Lives as long as the process, as what was loaded from it does.
const TemporaryFolder& Installation()
{
    static const TemporaryFolder folder;
    static const bool isWritten = [] {
        WriteInstallation(folder, Content());
        return true;
    }();
    static_cast<void>(isWritten);
    return folder;
}
} // namespace

void ReplayFixture::SetUp()
{
    ChoiceTest::SetUp();
    VYRStandalone::SetOfficialVariable("ORXInstallPath", Installation().Path());
}

void ReplayFixture::TearDown()
{
    VYRStandalone::ResetOfficialVariable("ORXInstallPath");
    ChoiceTest::TearDown();
}

Lines Applied(const std::function<void()>& iAction)
{
    constexpr std::string_view start = "Applying config: ";
    ChannelSwap decorate(VYRCfdTraceManager::_Decorate);
    iAction();
    Lines names;
    for (const std::string& text : decorate.Take())
        if (text.starts_with(start))
            names.push_back(text.substr(start.size(), text.find('\n') - start.size()));
    return names;
}
