#include "FuzzTarget.h"

#include <cstdio>
#include <cstdlib>
#include <locale>

#include "VYRStandaloneErrors.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class ForeignNumbers : public std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

std::string LiveNames()
{
    std::string names;
    for (const std::string& name : VYRStandalone::LiveComponentNames())
        names += "  " + name + "\n";
    return names;
}
} // namespace

/// The leak sanitizer asks for this: the units library loses the word at which a text turns out to be no unit.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libudunits2";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize)
{
    // The first input makes what a target keeps for its whole life.
    static const int before = [] {
        RunInput({});
        return VYRStandalone::LiveComponents();
    }();
    RunInput({reinterpret_cast<const char*>(iData), iSize});
    VYRStandalone::TakeReports();
    Demand(VYRStandalone::LiveComponents() == before, "no component stays alive", LiveNames());
    return 0;
}

void Demand(bool iHolds, const char* iWhat, const std::string& iDetail)
{
    if (iHolds)
        return;
    std::fprintf(stderr, "FINDING: does not hold: %s\n%s\n", iWhat, iDetail.c_str());
    std::abort();
}

void DemandSame(std::string_view iLeft, std::string_view iRight, const char* iWhat)
{
    if (iLeft != iRight)
        Demand(false, iWhat, "one:   " + JsonText(iLeft) + "\nother: " + JsonText(iRight));
}

TwoTexts SplitInput(std::string_view iInput)
{
    const std::size_t at = iInput.find('\n');
    TwoTexts texts{std::string(iInput.substr(0, at)), {}, at != std::string_view::npos};
    if (texts.hasSecond)
        texts.second = iInput.substr(at + 1);
    return texts;
}

std::string JsonText(std::string_view iText)
{
    std::string text = "\"";
    for (const char character : iText)
    {
        char escape[8];
        if (character == '"' || character == '\\')
            (text += '\\') += character;
        else if (static_cast<unsigned char>(character) >= 0x20)
            text += character;
        else
        {
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(character));
            text += escape;
        }
    }
    return text + '"';
}

void UseForeignNumbers()
{
    // The locale takes its facet over.
    std::locale::global(std::locale(std::locale::classic(), new ForeignNumbers));
}
