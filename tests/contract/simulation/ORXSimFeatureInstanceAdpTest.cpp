/**
 * @file
 * The base of the knowledge side of simulation features: it hands every change on to the listeners.
 */

#include "ORXSimFeatureInstanceAdp.h"
#include "ContractTest.h"
#include "EventListener.h"

namespace
{
/// An adapter without an object.
class Adapter final : public ORXSimFeatureInstanceAdp
{
};

using SimFeatureInstances = ContractTest;

TEST_F(SimFeatureInstances, HandChangesOnToTheirListeners)
{
    const ORXHandle<Adapter> adapter = ORXHandle<Adapter>::Adopt(new Adapter);
    const EventListener_var listener = EventListener_var::Adopt(new EventListener);
    const ORXIValue_var value = ParmOf(Make("ContractPlain", "A"), "count")->GetValue();
    EXPECT_EQ(adapter->AdviseAttributeChanged("count", value), S_OK) << "nobody listens yet";
    EXPECT_EQ(adapter->AddInstanceListener(listener), S_OK);
    EXPECT_EQ(adapter->AdviseAttributeChanged("count", value), S_OK);
    EXPECT_EQ(listener->Told(), (std::vector<std::string>{"changed count=3"}));
}

TEST_F(SimFeatureInstances, WithoutAnObject_AnswerWithoutIt)
{
    const ORXHandle<Adapter> adapter = ORXHandle<Adapter>::Adopt(new Adapter);
    EXPECT_TRUE(!adapter->GetOwner());
    EXPECT_TRUE(!adapter->GetValue("count"));
    EXPECT_EQ(adapter->SetValue("count", NULL_var), E_FAIL);
    ORXUnicodeString name;
    EXPECT_EQ(adapter->SetLogicalName("own"), S_OK);
    EXPECT_EQ(adapter->GetLogicalName(name), S_OK);
    EXPECT_EQ(Narrow(name), "own");
}
} // namespace
