/**
 * @file
 * The comparison can fail: twins that are wrong in one thing each are found out, and by few operations.
 */

#include <iostream>

#include <gtest/gtest.h>

#include "RandomRun.h"

namespace
{
using Twin::Object;
using Twin::Value;

class ForgetsToMark : public Twin::Configurator
{
    void Advise(Object& ioObject, const std::string& iName, bool iIsThere, bool iIsTrue) override
    {
        if (iName != "note")
            Configurator::Advise(ioObject, iName, iIsThere, iIsTrue);
    }
};

class AsksWithoutMakingTheFlag : public Twin::Configurator
{
    HRESULT IsSet(Object& ioObject, const std::string& iName, bool& oIsSet) override
    {
        const Object* flags = Find(&ioObject, "defaultManagement")->object;
        if (!iName.empty() && flags != nullptr && Find(flags, iName + "_isset") == nullptr)
            return oIsSet = false, S_OK;
        return Configurator::IsSet(ioObject, iName, oIsSet);
    }
};

class ForgetsRecords : public Twin::Configurator
{
    HRESULT GetDefault(Object& ioObject, const std::string& iName, std::optional<Value>& oValue) override
    {
        const bool isKept = ioObject.defaults.custom.contains(iName);
        const HRESULT status = Configurator::GetDefault(ioObject, iName, oValue);
        if (!isKept)
            ioObject.defaults.custom.erase(iName);
        return status;
    }
};

class AlwaysFollowsItsDefault : public Twin::Configurator
{
    HRESULT SetIsAuto(Object& ioObject, const std::string& iName, bool iIsAuto) override
    {
        const HRESULT status = Configurator::SetIsAuto(ioObject, iName, iIsAuto);
        if (status == S_OK && iIsAuto && !ioObject.defaults.isUpdating)
            Unset(ioObject, iName);
        return status;
    }
};

class WritesListsAnew : public Twin::Configurator
{
    HRESULT SetList(const Twin::Place& iPlace, const std::vector<Object*>& iObjects) override
    {
        if (iPlace.attribute != nullptr && iPlace.attribute->objects.size() > 1)
            RemoveAll(*iPlace.object, *iPlace.attribute);
        return Configurator::SetList(iPlace, iObjects);
    }
};

class NestsBrackets : public Twin::Configurator
{
    HRESULT StartConfiguration(Object& ioChoice) override
    {
        return ++m_depths[&ioChoice] > 1 ? S_FALSE : Configurator::StartConfiguration(ioChoice);
    }

    HRESULT CompleteConfiguration(Object& ioChoice) override
    {
        return --m_depths[&ioChoice] > 0 ? S_FALSE : Configurator::CompleteConfiguration(ioChoice);
    }

    std::map<const Object*, int> m_depths;
};

class PutsStartupsWhereTheyBelong : public Twin::Configurator
{
    HRESULT AddChoices(Object& ioChoice, const std::set<std::string>& iAdded) override
    {
        if (TextsOf(*ioChoice.startup, "Startups").empty())
            return Configurator::AddChoices(ioChoice, iAdded);
        return Reset(ioChoice, true);
    }
};

class UpdatesOnce : public Twin::Configurator
{
    HRESULT UpdateChoice(Object& ioChoice, const std::string& iDefault) override
    {
        if (m_isInside)
            return S_OK;
        m_isInside = true;
        const HRESULT status = Configurator::UpdateChoice(ioChoice, iDefault);
        m_isInside = false;
        return status;
    }

    bool m_isInside = false;
};

struct Defect
{
    const char* name;
    TwinMaker make;
};

std::ostream& operator<<(std::ostream& ioStream, const Defect& iDefect)
{
    return ioStream << iDefect.name;
}

template <class Defective> Defect Of(const char* iName)
{
    return {iName, [] { return std::make_unique<Defective>(); }};
}

class Defects : public testing::TestWithParam<Defect>
{
};

TEST_P(Defects, IsFoundByFewOperations)
{
    const RunResult found = RunRandom(1, 3LL * OperationsPerModel, GetParam().make);
    ASSERT_NE(found.difference, "");
    const RunResult fewest = Shrink(found, GetParam().make);
    std::cout << Describe(fewest);
    EXPECT_LE(fewest.operations.size(), 5u);
    EXPECT_NE(RunOperations(fewest.operations, GetParam().make).difference, "");
    EXPECT_EQ(RunOperations(fewest.operations).difference, "") << "it is the defect that differs";
}

INSTANTIATE_TEST_SUITE_P(
    Random, Defects,
    testing::Values(Of<ForgetsToMark>("ForgetsToMark"), Of<AsksWithoutMakingTheFlag>("AsksWithoutMakingTheFlag"),
                    Of<ForgetsRecords>("ForgetsRecords"), Of<AlwaysFollowsItsDefault>("AlwaysFollowsItsDefault"),
                    Of<WritesListsAnew>("WritesListsAnew"), Of<NestsBrackets>("NestsBrackets"),
                    Of<PutsStartupsWhereTheyBelong>("PutsStartupsWhereTheyBelong"), Of<UpdatesOnce>("UpdatesOnce")),
    [](const testing::TestParamInfo<Defect>& iInfo) { return std::string(iInfo.param.name); });
} // namespace
