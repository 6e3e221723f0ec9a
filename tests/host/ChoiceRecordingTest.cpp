/**
 * @file
 * What recorders note of the allowed values of parameters, of callbacks, and of lines of a caller's own.
 */

#include <functional>
#include <utility>

#include "HostTypes.h"
#include "ORXICkeManipulator.h"
#include "ORXNotification.h"
#include "VYRCfdAttributeNotification.h"

namespace
{
using VYRStandalone::CallRecorder;
using Lines = std::vector<std::string>;

class ChoiceRecording : public HostTest
{
protected:
    ChoiceRecording() : m_object(Make("HostPlain", "P")) {}

    static ORXListValORXUnicodeString ListOf(const std::vector<const char*>& iTexts)
    {
        ORXListValORXUnicodeString list;
        for (const char* text : iTexts)
            list.Append(text);
        return list;
    }

    static Lines AllowedBy(const ORXICkeManipulator_var& iManipulator)
    {
        ORXListValORXUnicodeString list;
        EXPECT_EQ(iManipulator->GetAllowedValues(list), S_OK);
        Lines texts;
        for (int i = 1; i <= list.Size(); ++i)
            texts.push_back(Narrow(list[i]));
        return texts;
    }

    static void Dispatch(ORXBaseUnknown* iPublisher)
    {
        const ORXHandle<ORXNotification> notification =
            ORXHandle<ORXNotification>::Adopt(new VYRCfdAttributeNotification);
        DispatchCallbacks(iPublisher, notification);
    }

    ORXISpecObject_var m_object;
};

TEST_F(ChoiceRecording, AllowedValues_AreNotedWithTheAttribute)
{
    const ORXISpecObject_var part = ObjectOf(m_object, "part");
    const ORXICkeManipulator_var title = ParmOf(m_object, "title")->CreateManipulator();
    const ORXICkeManipulator_var size = ParmOf(part, "size")->CreateManipulator();
    CallRecorder recorder;
    EXPECT_EQ(title->SetAllowedValues(ListOf({"a", "b"})), S_OK);
    EXPECT_EQ(title->SetAllowedValues(ListOf({})), S_OK);
    EXPECT_EQ(title->SetAllowedValues(ListOf({"", "c"})), S_OK);
    EXPECT_EQ(size->SetAllowedValues(ListOf({"small"})), S_OK);
    EXPECT_EQ(recorder.Take(), (Lines{"allow P.title = [a, b]", "allow P.title = []", "allow P.title = [, c]",
                                      "allow P/part.size = [small]"}))
        << "nobody is told of them: there is no notification";
    EXPECT_EQ(AllowedBy(title), (Lines{"", "c"}));
    EXPECT_EQ(recorder.Take(), Lines{}) << "a read changes nothing";
}

TEST_F(ChoiceRecording, AllowedValuesThatFail_AreNotedAndLeftAsTheyWere)
{
    const ORXICkeManipulator_var title = ParmOf(m_object, "title")->CreateManipulator();
    ASSERT_EQ(title->SetAllowedValues(ListOf({"a"})), S_OK);
    VYRStandalone::Fault fault;
    fault.operation = "SetAllowedValues";
    fault.subject = "title";
    VYRStandalone::PlantFault(fault);
    CallRecorder recorder;
    EXPECT_EQ(title->SetAllowedValues(ListOf({"b"})), E_FAIL);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    VYRStandalone::ClearFaults();
    EXPECT_EQ(recorder.Take(), (Lines{"allow P.title = [b]"}));
    EXPECT_EQ(AllowedBy(title), (Lines{"a"}));
}

TEST_F(ChoiceRecording, Callbacks_AreNotedBeforeTheyReachSubscribers)
{
    const ORXISpecObject_var part = ObjectOf(m_object, "part");
    const VYRStandalone::Subscription whole(m_object, [&](ORXNotification&) {
        VYRStandalone::RecordLine("whole");
        Dispatch(part);
    });
    const VYRStandalone::Subscription inside(part, [](ORXNotification&) { VYRStandalone::RecordLine("part"); });
    CallRecorder recorder;
    Dispatch(m_object);
    EXPECT_EQ(recorder.Take(), (Lines{"dispatch P", "whole", "dispatch P/part", "part"}));
}

TEST_F(ChoiceRecording, CallbacksThatNobodyWaitsFor_AreNoted)
{
    CallRecorder recorder;
    Dispatch(m_object);
    EXPECT_EQ(recorder.Take(), (Lines{"dispatch P"}));
}

TEST_F(ChoiceRecording, CallbacksOfNothing_AreNotNoted)
{
    CallRecorder recorder;
    Dispatch(nullptr);
    DispatchCallbacks(m_object, nullptr);
    EXPECT_EQ(recorder.Take(), Lines{});
}

TEST_F(ChoiceRecording, LinesOfACaller_StandAmongTheCallsOfEveryRecorder)
{
    VYRStandalone::RecordLine("before any recorder");
    CallRecorder outer;
    ParmOf(m_object, "count")->Valuate(1);
    {
        CallRecorder inner;
        VYRStandalone::RecordLine("mine = [1]");
        EXPECT_EQ(inner.Take(), (Lines{"mine = [1]"}));
    }
    ParmOf(m_object, "count")->Valuate(2);
    EXPECT_EQ(outer.Take(), (Lines{"write P.count = 1", "mine = [1]", "write P.count = 2"}));
}
} // namespace
