/**
 * @file
 * Configuration brackets for the length of a scope.
 */

#include <stdexcept>
#include <utility>

#include "ContractTest.h"
#include "VYRCfdConfigurableTransaction.h"

namespace
{
using Lines = std::vector<std::string>;

/// A component of its own that notes what it is told, and answers as it was told to.
class Bracketed : public VYRICfdConfigurable
{
public:
    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override
    {
        if (!(iInterface == IID_VYRICfdConfigurable))
            return VYRICfdConfigurable::QueryInterface(iInterface, oInterface);
        AddRef();
        *oInterface = static_cast<VYRICfdConfigurable*>(this);
        return S_OK;
    }

    HRESULT StartConfiguration() override
    {
        told.emplace_back("start");
        return start;
    }

    HRESULT CompleteConfiguration() override
    {
        told.emplace_back("complete");
        if (throws)
            throw std::runtime_error("update");
        return complete;
    }

    Lines Told() { return std::exchange(told, {}); }

    Lines told;
    HRESULT start = S_OK;
    HRESULT complete = S_OK;
    bool throws = false;
};

using Bracketed_var = ORXHandle<Bracketed>;

class Transactions : public ContractTest
{
protected:
    const Bracketed_var m_bracketed = Bracketed_var::Adopt(new Bracketed);
    const VYRICfdConfigurable_var m_configurable = m_bracketed;
};

TEST_F(Transactions, OpenAtTheBeginningAndCloseAtTheEnd)
{
    {
        const VYRCfdConfigurableTransaction transaction(m_configurable);
        EXPECT_EQ(m_bracketed->Told(), (Lines{"start"}));
    }
    EXPECT_EQ(m_bracketed->Told(), (Lines{"complete"}));
}

TEST_F(Transactions, CloseWhateverTheStartAnswers)
{
    for (const HRESULT answer : {S_FALSE, E_FAIL})
    {
        m_bracketed->start = answer;
        {
            const VYRCfdConfigurableTransaction transaction(m_configurable);
        }
        EXPECT_EQ(m_bracketed->Told(), (Lines{"start", "complete"})) << answer;
    }
}

TEST_F(Transactions, LoseWhatTheCloseAnswers)
{
    m_bracketed->complete = E_FAIL;
    {
        const VYRCfdConfigurableTransaction transaction(m_configurable);
    }
    EXPECT_EQ(m_bracketed->Told(), (Lines{"start", "complete"}));
    EXPECT_TRUE(HostUnderTest::TakeReports().empty());
}

TEST_F(Transactions, Nested_EachTellTheirOwn)
{
    {
        const VYRCfdConfigurableTransaction outer(m_configurable);
        {
            const VYRCfdConfigurableTransaction inner(m_configurable);
        }
        m_bracketed->told.emplace_back("between");
    }
    EXPECT_EQ(m_bracketed->Told(), (Lines{"start", "start", "complete", "between", "complete"}));
}

TEST_F(Transactions, OnANullHandle_DoNothing)
{
    EXPECT_NO_THROW({ const VYRCfdConfigurableTransaction transaction{VYRICfdConfigurable_var()}; });
}

TEST_F(Transactions, HoldTheirComponent)
{
    Bracketed_var bracketed = Bracketed_var::Adopt(new Bracketed);
    const int before = HostUnderTest::LiveComponents();
    {
        const VYRCfdConfigurableTransaction transaction{VYRICfdConfigurable_var(bracketed)};
        bracketed = NULL_var;
        EXPECT_EQ(HostUnderTest::LiveComponents(), before);
    }
    EXPECT_EQ(HostUnderTest::LiveComponents(), before - 1);
}

TEST_F(Transactions, ExceptionInsideTheBracket_ClosesItAndPassesThrough)
{
    const auto fail = [this] {
        const VYRCfdConfigurableTransaction transaction(m_configurable);
        throw std::invalid_argument("inside");
    };
    EXPECT_THROW(fail(), std::invalid_argument);
    EXPECT_EQ(m_bracketed->Told(), (Lines{"start", "complete"}));
}

TEST_F(Transactions, ExceptionOfTheClose_PassesThrough)
{
    m_bracketed->throws = true;
    const auto close = [this] { const VYRCfdConfigurableTransaction transaction(m_configurable); };
    EXPECT_THROW(close(), std::runtime_error);
    EXPECT_EQ(m_bracketed->Told(), (Lines{"start", "complete"}));
}

TEST_F(Transactions, ExceptionOfTheCloseWhileAnotherEndsTheScope_GivesWayToIt)
{
    m_bracketed->throws = true;
    const auto fail = [this] {
        const VYRCfdConfigurableTransaction transaction(m_configurable);
        throw std::invalid_argument("inside");
    };
    EXPECT_THROW(fail(), std::invalid_argument);
    EXPECT_EQ(m_bracketed->Told(), (Lines{"start", "complete"}));
}

/// Uses a bracket of its own while an exception passes by.
class Cleanup
{
public:
    Cleanup(const VYRICfdConfigurable_var& iConfigurable, std::string& oCaught)
        : m_configurable(iConfigurable), m_caught(oCaught)
    {
    }
    ~Cleanup()
    {
        try
        {
            const VYRCfdConfigurableTransaction transaction(m_configurable);
        }
        catch (const std::runtime_error& error)
        {
            m_caught = error.what();
        }
    }
    Cleanup(const Cleanup&) = delete;
    Cleanup& operator=(const Cleanup&) = delete;

private:
    VYRICfdConfigurable_var m_configurable;
    std::string& m_caught;
};

TEST_F(Transactions, ExceptionOfTheClose_PassesThroughAlsoWhereAnOuterExceptionIsUnderWay)
{
    m_bracketed->throws = true;
    std::string caught;
    const auto fail = [&] {
        const Cleanup cleanup(m_configurable, caught);
        throw std::invalid_argument("outer");
    };
    EXPECT_THROW(fail(), std::invalid_argument);
    EXPECT_EQ(caught, "update") << "the bracket was opened and closed inside the clean-up";
}
} // namespace
