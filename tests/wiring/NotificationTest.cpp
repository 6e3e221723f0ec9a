/**
 * @file
 * How changes of attributes become flags.
 */

#include "FlowTest.h"
#include "ForeignManager.h"
#include "ORXIInstance.h"
#include "ORXISpecAttribute.h"
#include "ORXTypeCode.h"
#include "RecordingInstance.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class NotificationTest : public FlowTest
{
protected:
    /// A value that is true.
    ORXIValue_var True() const
    {
        const ORXISpecAttrAccess_var access = AccessOf(m_solver);
        return ORXCke_GetParm(access, ORXISpecAttrKey_var::Adopt(access->GetAttrKey("steady")), 1)->GetValue();
    }

    /// Adds a flag to a sub-feature and writes it as a user does.
    static void WriteFlag(const ORXISpecObject_var& iSubFeature, const char* iName, bool iValue)
    {
        const ORXISpecAttribute_var flag =
            ORXISpecAttribute_var::Adopt(iSubFeature->AddAttribute(iName, tk_boolean, 1));
        ASSERT_FALSE(!flag);
        ASSERT_EQ(flag->SetBoolean(iValue ? ORXTrue : ORXFalse), S_OK);
    }
};

// ---- Values features ------------------------------------------------------------------------------------------------

TEST_F(NotificationTest, AnyWrittenAttribute_IsMarkedAsSet)
{
    Write(m_solver, "iterations", "40");
    Write(m_solver, "relaxation", "0.25");
    Write(m_solver, "scheme", "central");
    Write(m_solver, "steady", "false");
    Write(m_solver, "title", "");
    ASSERT_EQ(WriteObject(m_solver, "material", Create("FlowTestMaterial", "Air")), S_OK);
    ASSERT_EQ(WriteObject(m_solver, "zone", Create("FlowTestZone", "Inlet")), S_OK);
    ASSERT_EQ(Cursor(m_solver)["monitors"].RemoveAll(), S_OK);
    for (const char* name : {"iterations", "relaxation", "scheme", "steady", "title", "material", "zone", "monitors"})
        EXPECT_EQ(SetFlagOf(m_solver, name), "true") << name;
    EXPECT_EQ(SetFlagOf(m_solver, "seed"), "absent");
}

TEST_F(NotificationTest, DefaultManagementItself_IsAnAttributeLikeAnyOther)
{
    ASSERT_EQ(WriteObject(m_solver, "defaultManagement", SubFeature()), S_OK);
    EXPECT_EQ(SetFlagOf(m_solver, "defaultManagement"), "true");
}

TEST_F(NotificationTest, FailedWrite_MarksNothing)
{
    Write(m_solver, "iterations", "many");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "absent");
}

TEST_F(NotificationTest, WriteThatTakesTheValueAway_BringsTheDefaultBack)
{
    Write(m_solver, "iterations", "40");
    TakeAway(m_solver, "iterations");
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
}

TEST_F(NotificationTest, ClearedObject_IsUnset)
{
    ASSERT_EQ(WriteObject(m_solver, "material", Create("FlowTestMaterial", "Air")), S_OK);
    ASSERT_EQ(WriteObject(m_solver, "material", NULL_var), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("defaultParm", "VYRCfdDefaultManagementAdp::GetDefault")}));
    EXPECT_EQ(SetFlagOf(m_solver, "material"), "false");
}

TEST_F(NotificationTest, Creation_MarksNothing)
{
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "absent");
    EXPECT_EQ(SetFlagOf(m_solver, "zone"), "absent");
}

TEST_F(NotificationTest, Listeners_AreToldAfterTheFlags)
{
    const RecordingInstance_var listener = RecordingInstance_var::Adopt(new RecordingInstance);
    const ORXIInstance_var instance = m_solver;
    ASSERT_EQ(instance->AddInstanceListener(listener), S_OK);
    Write(m_solver, "iterations", "40");
    TakeAway(m_solver, "iterations");
    // The default that comes back is told first: it is written within the notification of the value's end.
    EXPECT_EQ(listener->told,
              (Lines{"changed iterations = 40", "changed iterations = 500", "changed iterations = (none)"}));
    instance->RemoveInstanceListener(listener);
}

TEST_F(NotificationTest, FailedFlag_IsNoFailureOfTheNotification)
{
    const ORXIInstance_var instance = m_solver;
    const RecordingInstance_var listener = RecordingInstance_var::Adopt(new RecordingInstance);
    instance->AddInstanceListener(listener);
    Plant("AddAttribute", "iterations_isset");
    EXPECT_EQ(instance->AdviseAttributeChanged("iterations", True()), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("pAttr", "VYRCfdDefaultManagementAdp::SetIsSet")}));
    EXPECT_EQ(instance->AdviseAttributeChanged("", True()), S_OK);
    EXPECT_EQ(listener->told, (Lines{"changed iterations = true", "changed  = true"}));
    instance->RemoveInstanceListener(listener);
}

TEST_F(NotificationTest, WithoutDefaultManagement_OnlyTheListenersAreTold)
{
    const ORXIInstance_var instance = m_solver;
    const RecordingInstance_var listener = RecordingInstance_var::Adopt(new RecordingInstance);
    instance->AddInstanceListener(listener);
    Plant("QueryInterface", "VYRIMpaDefaultManagementProtected", "Solver.1");
    EXPECT_EQ(instance->AdviseAttributeChanged("iterations", NULL_var), S_OK) << "the value is not looked at";
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
    EXPECT_EQ(listener->told, (Lines{"changed iterations = (null)"}));
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "absent");
    instance->RemoveInstanceListener(listener);
}

TEST_F(NotificationTest, NullValue_RaisesTheHostsErrorOnANullHandle)
{
    const ORXIInstance_var values = m_solver;
    EXPECT_THROW(values->AdviseAttributeChanged("iterations", NULL_var), VYRStandalone::NullHandleError);
    const ORXIInstance_var flags = SubFeature();
    EXPECT_THROW(flags->AdviseAttributeChanged("iterations_isauto", NULL_var), VYRStandalone::NullHandleError);
    EXPECT_EQ(flags->AdviseAttributeChanged("iterations_isset", NULL_var), S_OK);
}

// ---- default-management sub-features --------------------------------------------------------------------------------

TEST_F(NotificationTest, AutoFlagTrue_ResetsTheAttributeOfTheFeatureAbove)
{
    Write(m_solver, "iterations", "40");
    WriteFlag(SubFeature(), "iterations_isauto", true);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "false");
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");
}

TEST_F(NotificationTest, AutoFlagFalse_LeavesTheAttribute)
{
    Write(m_solver, "iterations", "40");
    WriteFlag(SubFeature(), "iterations_isauto", false);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "40");
    EXPECT_EQ(SetFlagOf(m_solver, "iterations"), "true");
}

TEST_F(NotificationTest, AutoInTheMiddleOfTheName_IsTheFlagOfTheNameWithoutIt)
{
    WriteFlag(SubFeature(), "a_isauto_b", true);
    EXPECT_EQ(AutoFlagOf(m_solver, "a_b"), "true");
    EXPECT_EQ(AutoFlagOf(m_solver, "a"), "absent");
}

TEST_F(NotificationTest, OtherAttributesOfTheSubFeature_ReachNobody)
{
    VYRStandalone::CallRecorder calls;
    WriteFlag(SubFeature(), "iterations_isset", true);
    WriteFlag(SubFeature(), "iterations_Isauto", true);
    EXPECT_EQ(calls.Take().size(), 8U) << "the two additions, writes and notifications themselves";
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "absent");
}

TEST_F(NotificationTest, NearestValuesFeatureAbove_IsReached)
{
    const ORXISpecObject_var zone = At(m_solver, "zone");
    Write(zone, "layers", "4");
    WriteFlag(At(zone, "defaultManagement"), "layers_isauto", true);
    EXPECT_EQ(ValueOf(zone, "layers"), "3");
    EXPECT_EQ(AutoFlagOf(m_solver, "layers"), "absent");
}

TEST_F(NotificationTest, ChoiceInBetween_IsPassedOver)
{
    const ORXISpecObject_var flags = At(m_solver, "choice/defaultManagement");
    ASSERT_FALSE(!flags);
    Write(m_solver, "iterations", "40");
    WriteFlag(SubFeature(), "iterations_isauto", false);
    WriteFlag(flags, "iterations_isauto", true);
    EXPECT_EQ(ValueOf(m_solver, "iterations"), "500");
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true") << "the flag of the feature is written as well";
}

TEST_F(NotificationTest, OwnerThatIsManagedButNoValuesFeature_IsPassedOver)
{
    ForeignManager::Register();
    const ORXISpecObject_var foreign = Create("FlowTestForeign", "Foreign.1");
    ASSERT_FALSE(!DefaultManagementOf(foreign));
    const ORXISpecAttrAccess_var access = AccessOf(m_solver);
    ASSERT_EQ(access->InsertAtPosition(ORXISpecAttrKey_var::Adopt(access->GetAttrKey("zones")), foreign, 1), S_OK);
    WriteFlag(At(foreign, "flags"), "iterations_isauto", true);
    EXPECT_EQ(AutoFlagOf(m_solver, "iterations"), "true");
}

TEST_F(NotificationTest, WithoutAValuesFeatureAbove_FailsInSilenceAndTellsNobody)
{
    const ORXISpecObject_var group = Create("FlowTestGroup", "Group.1");
    for (const ORXISpecObject_var& flags : {At(group, "flags"), Create("VYRCfdDefaultManagement", "Alone")})
    {
        const ORXIInstance_var instance = flags;
        const RecordingInstance_var listener = RecordingInstance_var::Adopt(new RecordingInstance);
        ASSERT_EQ(instance->AddInstanceListener(listener), S_OK);
        EXPECT_EQ(instance->AdviseAttributeChanged("x_isauto", True()), E_FAIL);
        EXPECT_EQ(instance->AdviseAttributeChanged("x_isauto", NULL_var), E_FAIL) << "the value is not looked at";
        EXPECT_EQ(listener->told, Lines{});
        // The write itself succeeds: its status is not the listener's.
        WriteFlag(flags, "x_isauto", true);
        EXPECT_EQ(listener->told, Lines{});
        EXPECT_EQ(instance->AdviseAttributeChanged("x_isset", True()), S_OK);
        EXPECT_EQ(listener->told, (Lines{"changed x_isset = true"}));
        instance->RemoveInstanceListener(listener);
    }
}

TEST_F(NotificationTest, FailedAutoFlag_IsNoFailureOfTheNotification)
{
    const ORXIInstance_var instance = SubFeature();
    const RecordingInstance_var listener = RecordingInstance_var::Adopt(new RecordingInstance);
    instance->AddInstanceListener(listener);
    Plant("AddAttribute", "x_isauto");
    EXPECT_EQ(instance->AdviseAttributeChanged("x_isauto", True()), S_OK);
    EXPECT_EQ(Reported(), (Records{Assertion("pAttr", "VYRCfdDefaultManagementAdp::SetIsAuto")}));
    EXPECT_EQ(listener->told, (Lines{"changed x_isauto = true"}));
    instance->RemoveInstanceListener(listener);
}

TEST_F(NotificationTest, Notifications_DoNotResetTheErrorStatusByThemselves)
{
    const ORXIInstance_var instance = SubFeature();
    VYRStandalone::SetErrorStatus(3);
    instance->AdviseAttributeChanged("x_isset", True());
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 3);
}
} // namespace
