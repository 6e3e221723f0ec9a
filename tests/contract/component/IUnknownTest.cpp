/**
 * @file
 * Counting and asking for interfaces, on components of the host and on components of somebody else's.
 */

#include "ContractTest.h"
#include "OwnComponent.h"

namespace
{
using Counting = ContractTest;

TEST_F(Counting, AddRefAndRelease_TellTheReferencesThatAreThen)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const unsigned int before = CountOf(object);
    EXPECT_EQ(object->AddRef(), before + 1);
    EXPECT_EQ(object->AddRef(), before + 2);
    EXPECT_EQ(object->Release(), before + 1);
    EXPECT_EQ(object->Release(), before);
    EXPECT_EQ(CountOf(object), before);
}

TEST_F(Counting, Facets_CountOnOneComponent)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const unsigned int before = CountOf(object);
    const ORXISpecAttrAccess_var access = object;
    EXPECT_EQ(access->AddRef(), before + 2);
    EXPECT_EQ(object->Release(), before + 1);
    EXPECT_EQ(CountOf(access), CountOf(object));
}

TEST_F(Counting, OwnComponent_StartsWithOneReferenceAndDiesWithItsLast)
{
    int alive = 0;
    OwnComponent* const component = new OwnComponent(alive);
    EXPECT_EQ(CountOf(component), 1u);
    EXPECT_EQ(component->AddRef(), 2u);
    EXPECT_EQ(component->Release(), 1u);
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(component->Release(), 0u);
    EXPECT_EQ(alive, 0);
}

TEST_F(Counting, OwnComponent_MayHandItselfOutWhileItEnds)
{
    int alive = 0;
    OwnComponent* const component = new OwnComponent(alive);
    component->onEnd = [](OwnComponent& iSelf) { const ORXBaseUnknown_var self = ORXBaseUnknown_var::Share(&iSelf); };
    EXPECT_EQ(component->Release(), 0u);
    EXPECT_EQ(alive, 0);
}

TEST_F(Counting, QueryInterface_GivesANewReference)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const unsigned int before = CountOf(object);
    void* answer = nullptr;
    EXPECT_EQ(object->QueryInterface(IID_ORXISpecAttrAccess, &answer), S_OK);
    ASSERT_NE(answer, nullptr);
    EXPECT_EQ(CountOf(object), before + 1);
    const ORXISpecAttrAccess_var access = ORXISpecAttrAccess_var::Adopt(static_cast<ORXISpecAttrAccess*>(answer));
    EXPECT_TRUE(access == object);
}

TEST_F(Counting, QueryInterface_OfWhatIsNotOffered_GivesNullAndNoReference)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const unsigned int before = CountOf(object);
    // An identifier that differs behind its first field is another one.
    IID other = IID_ORXISpecAttrAccess;
    other.Data4[7] ^= 1;
    for (const IID& interfaceId : {IID_ORXICkeParm, IID_ORXIContainer, other, IID{}})
    {
        void* answer = &answer;
        EXPECT_EQ(object->QueryInterface(interfaceId, &answer), E_NOINTERFACE);
        EXPECT_EQ(answer, nullptr);
    }
    EXPECT_EQ(CountOf(object), before);
}

TEST_F(Counting, QueryInterface_AnswersTheSameFromEveryFacet)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXISpecAttrAccess_var access = object;
    for (const IID& interfaceId : {IID_ORXBaseUnknown, IID_ORXISpecObject, IID_ORXISpecAttrAccess})
    {
        void* first = nullptr;
        void* second = nullptr;
        EXPECT_EQ(object->QueryInterface(interfaceId, &first), S_OK);
        EXPECT_EQ(access->QueryInterface(interfaceId, &second), S_OK);
        EXPECT_EQ(first, second);
        object->Release();
        object->Release();
    }
}
} // namespace
