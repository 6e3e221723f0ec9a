#ifndef FuzzTarget_H
#define FuzzTarget_H

/**
 * @file
 * What every fuzz target is made of. A target is one source file, which says in its head comment what an input is and
 * what must hold for it. It is driven by the engine (clang's libFuzzer), or by Replay.cpp, which goes through a corpus.
 */

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// One input. @return 0; an input by which something does not hold does not return
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize);

/// The target's work on one input.
void RunInput(std::string_view iInput);

/// Ends the process as a crash unless it holds. @param iWhat what was expected @param iDetail the texts that differ
void Demand(bool iHolds, const char* iWhat, const std::string& iDetail = {});

/// Demands that both texts are the same, byte by byte.
void DemandSame(std::string_view iLeft, std::string_view iRight, const char* iWhat);

/// The text before the first line break, and what stands behind it; without one everything and nothing.
struct TwoTexts
{
    std::string first;
    std::string second;
    bool hasSecond = false;
};
TwoTexts SplitInput(std::string_view iInput);

/// A text of JSON, in its quotation marks.
std::string JsonText(std::string_view iText);

/// Gives the process a locale in which numbers look otherwise ("1.234,5"): nothing may read or write numbers by it.
void UseForeignNumbers();

#endif
