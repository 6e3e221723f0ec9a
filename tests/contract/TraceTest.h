#ifndef TraceTest_H
#define TraceTest_H

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "HostUnderTest.h"
#include "ORXTrace.h"

/// A test that keeps every text that is printed, as it was handed over.
class TraceTest : public testing::Test
{
protected:
    TraceTest()
    {
        HostUnderTest::RedirectTraces([this](const std::string& iText) { m_texts.push_back(iText); });
    }
    ~TraceTest() override { HostUnderTest::RedirectTraces({}); }

    using Texts = std::vector<std::string>;

    /// Channels live until the process ends, and the host keeps them.
    static ORXTrace* MakeChannel(const char* iName, ORXTraMode iMode = ORXTraActive, int iLevel = 1024)
    {
        return new ORXTrace(iName, "made by a test", iMode, "STDOUT", iLevel);
    }

    Texts m_texts;
};

#endif
