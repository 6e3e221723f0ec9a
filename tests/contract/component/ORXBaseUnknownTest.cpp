/**
 * @file
 * The root of all components: interfaces by name, identity, classes, allocation.
 */

#include <new>

#include "ContractExtensions.h"
#include "ContractTest.h"
#include "ORXCkeGlobalFunctions.h"
#include "ORXIAlias.h"
#include "ORXIComponentIdentity.h"
#include "ORXISamAnalysisEntityInit.h"
#include "ORXISimBCDataTableColumn.h"
#include "ORXMetaClass.h"
#include "OwnComponent.h"
#include "VYRICfdChoice.h"
#include "VYRICfdChoiceMgr.h"
#include "VYRICfdConfigurable.h"
#include "VYRIFldIdentifier.h"
#include "VYRIMpaDefaultManagement.h"
#include "VYRIMpaDefaultManagementProtected.h"

namespace
{
/// Keeps the identifier that it was asked for.
class Asked : public ORXBaseUnknown
{
public:
    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override
    {
        wasAsked = true;
        identifier = iInterface;
        *oInterface = nullptr;
        return E_NOINTERFACE;
    }

    bool wasAsked = false;
    IID identifier{};
};

struct NamedInterface
{
    const char* name;
    const IID& identifier;
};

class InterfaceNames : public ContractTest, public testing::WithParamInterface<NamedInterface>
{
};

TEST_P(InterfaceNames, NameAsksAsTheIdentifierDoes)
{
    const ORXHandle<Asked> component = ORXHandle<Asked>::Adopt(new Asked);
    void* answer = &answer;
    EXPECT_EQ(component->QueryInterface(GetParam().name, &answer), E_NOINTERFACE);
    EXPECT_EQ(answer, nullptr);
    ASSERT_TRUE(component->wasAsked);
    EXPECT_TRUE(component->identifier == GetParam().identifier);
}

const NamedInterface interfaces[] = {
    {"ORXBaseUnknown", ORXBaseUnknown::ClassId()},
    {"ORXIComponentIdentity", ORXIComponentIdentity::ClassId()},
    {"ORXISpecObject", ORXISpecObject::ClassId()},
    {"ORXISpecAttrAccess", ORXISpecAttrAccess::ClassId()},
    {"ORXISpecAttrKey", ORXISpecAttrKey::ClassId()},
    {"ORXISpecAttribute", ORXISpecAttribute::ClassId()},
    {"ORXIContainer", ORXIContainer::ClassId()},
    {"ORXIAlias", ORXIAlias::ClassId()},
    {"ORXICkeParm", ORXICkeParm::ClassId()},
    {"ORXICkeInst", ORXICkeInst::ClassId()},
    {"ORXIValue", ORXIValue::ClassId()},
    {"ORXICkeType", ORXICkeType::ClassId()},
    {"ORXIParmDictionary", ORXIParmDictionary::ClassId()},
    {"ORXICkeParmFactory", ORXICkeParmFactory::ClassId()},
    {"ORXICkeManipulator", ORXICkeManipulator::ClassId()},
    {"ORXIInstance", ORXIInstance::ClassId()},
    {"ORXISimBCDataTableColumn", ORXISimBCDataTableColumn::ClassId()},
    {"ORXISamAnalysisEntityInit", ORXISamAnalysisEntityInit::ClassId()},
    {"VYRIFldIdentifier", VYRIFldIdentifier::ClassId()},
    {"VYRIMpaDefaultManagement", VYRIMpaDefaultManagement::ClassId()},
    {"VYRIMpaDefaultManagementProtected", VYRIMpaDefaultManagementProtected::ClassId()},
    {"VYRICfdChoice", VYRICfdChoice::ClassId()},
    {"VYRICfdChoiceMgr", VYRICfdChoiceMgr::ClassId()},
    {"VYRICfdConfigurable", VYRICfdConfigurable::ClassId()},
};

INSTANTIATE_TEST_SUITE_P(BaseUnknown, InterfaceNames, testing::ValuesIn(interfaces),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

using BaseUnknown = ContractTest;

TEST_F(BaseUnknown, QueryInterfaceByName_GivesTheInterface)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const unsigned int before = CountOf(object);
    void* access = nullptr;
    EXPECT_EQ(object->QueryInterface("ORXISpecAttrAccess", &access), S_OK);
    const ORXISpecAttrAccess_var held = ORXISpecAttrAccess_var::Adopt(static_cast<ORXISpecAttrAccess*>(access));
    EXPECT_TRUE(held == object);
    EXPECT_EQ(CountOf(object), before + 1);
}

TEST_F(BaseUnknown, QueryInterfaceByName_FindsInterfacesOfRegisteredExtensions)
{
    const ORXISpecObject_var object = Make("ContractListening", "A");
    void* found = nullptr;
    EXPECT_EQ(object->QueryInterface("ContractINumber", &found), S_OK);
    EXPECT_EQ(ContractINumber_var::Adopt(static_cast<ContractINumber*>(found))->Number(), 42);
}

TEST_F(BaseUnknown, QueryInterfaceByAnUnknownName_AsksNobody)
{
    const ORXHandle<Asked> component = ORXHandle<Asked>::Adopt(new Asked);
    for (const char* name :
         {"VYRICfdChoices", "vyricfdchoice", "", "VYRICfdChoice ", static_cast<const char*>(nullptr)})
    {
        void* answer = &answer;
        EXPECT_EQ(component->QueryInterface(name, &answer), E_NOINTERFACE);
        EXPECT_EQ(answer, nullptr);
    }
    EXPECT_FALSE(component->wasAsked);
}

TEST_F(BaseUnknown, GetImpl_GivesOneRootForZeroOnly)
{
    const ORXISpecObject_var object = Make("ContractListening", "A");
    HostUnderTest::GiveAlias(object, "alias");
    const ORXBaseUnknown* const root = object->GetImpl(0);
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->GetImpl(0), root);
    const ORXBaseUnknown_var facets[] = {ORXISpecAttrAccess_var(object), ORXIAlias_var(object),
                                         ORXIInstance_var(object), ContractINumber_var(object),
                                         ContractIGreeting_var(object)};
    for (const ORXBaseUnknown_var& facet : facets)
    {
        ASSERT_FALSE(!facet);
        EXPECT_EQ(facet->GetImpl(0), root);
        EXPECT_EQ(facet->GetImpl(1), nullptr);
        EXPECT_EQ(facet->GetImpl(-1), nullptr);
    }
    const unsigned int before = CountOf(object);
    object->GetImpl(0);
    EXPECT_EQ(CountOf(object), before) << "it is borrowed";
}

TEST_F(BaseUnknown, IsEqual_ComparesComponentsAcrossFacets)
{
    const ORXISpecObject_var object = Make("ContractListening", "A");
    const ORXISpecObject_var other = Make("ContractListening", "A");
    HostUnderTest::GiveAlias(object, "alias");
    HostUnderTest::GiveIdentifier(object, "identifier");
    const ORXBaseUnknown_var facets[] = {object,
                                         ORXISpecAttrAccess_var(object),
                                         ORXIAlias_var(object),
                                         VYRIFldIdentifier_var(object),
                                         ORXIInstance_var(object),
                                         ContractINumber_var(object),
                                         ContractINumber_var(object),
                                         ContractIGreeting_var(object)};
    for (const ORXBaseUnknown_var& left : facets)
    {
        for (const ORXBaseUnknown_var& right : facets)
            EXPECT_NE(left->IsEqual(right), 0);
        EXPECT_EQ(left->IsEqual(other.Pointer()), 0);
        EXPECT_EQ(left->IsEqual(nullptr), 0);
        EXPECT_EQ(other->IsEqual(left), 0);
        EXPECT_EQ(left->IsNull(), 0);
    }
}

TEST_F(BaseUnknown, OwnComponent_IsItsOwnRootAndOffersOnlyTheRootInterface)
{
    int alive = 0;
    const ORXBaseUnknown_var component = ORXBaseUnknown_var::Adopt(new OwnComponent(alive));
    const ORXBaseUnknown_var other = ORXBaseUnknown_var::Adopt(new OwnComponent(alive));
    EXPECT_EQ(component->GetImpl(0), component.Pointer());
    EXPECT_EQ(component->GetImpl(1), nullptr);
    EXPECT_TRUE(ORXBaseUnknown_var::Cast(component) == component);
    EXPECT_TRUE(!ORXISpecObject_var::Cast(component));
    EXPECT_NE(component->IsEqual(component), 0);
    EXPECT_EQ(component->IsEqual(other), 0);
    EXPECT_EQ(component->IsNull(), 0);
}

TEST_F(BaseUnknown, ClassWithoutAMetaClass_IsTheRootClass)
{
    int alive = 0;
    const ORXBaseUnknown_var component = ORXBaseUnknown_var::Adopt(new OwnComponent(alive));
    EXPECT_EQ(component->GetMetaObject(), nullptr);
    EXPECT_STREQ(component->IsA(), "ORXBaseUnknown");
    EXPECT_NE(component->IsAKindOf("ORXBaseUnknown"), 0);
    EXPECT_EQ(component->IsAKindOf("ORXISpecObject"), 0);
    EXPECT_EQ(component->IsAKindOf(""), 0);
    EXPECT_EQ(component->IsAKindOf(nullptr), 0);
}

/// A class with a meta class that has a base.
class Described : public ORXBaseUnknown
{
public:
    ORXMetaClass* GetMetaObject() const override
    {
        static ORXMetaClass base("DescribedBase", ORXExtensionClass, IID{}, nullptr, nullptr);
        static ORXMetaClass meta("Described", ORXExtensionClass, IID{}, &base, nullptr);
        return &meta;
    }
};

TEST_F(BaseUnknown, ClassWithAMetaClass_AnswersFromIt)
{
    const ORXBaseUnknown_var component = ORXBaseUnknown_var::Adopt(new Described);
    EXPECT_STREQ(component->IsA(), "Described");
    for (const char* name : {"Described", "DescribedBase", "ORXBaseUnknown"})
        EXPECT_NE(component->IsAKindOf(name), 0) << name;
    EXPECT_EQ(component->IsAKindOf("OwnComponent"), 0);
}

TEST_F(BaseUnknown, AutomationAndChangesOfState_AreNotOffered)
{
    int alive = 0;
    const ORXBaseUnknown_var own = ORXBaseUnknown_var::Adopt(new OwnComponent(alive));
    const ORXBaseUnknown_var object = Make("ContractPlain", "A");
    for (const ORXBaseUnknown_var& component : {own, object})
    {
        unsigned int count = 7;
        void* info = nullptr;
        int identifier = 7;
        const char* name = "name";
        EXPECT_EQ(component->GetTypeInfoCount(&count), E_NOTIMPL);
        EXPECT_EQ(component->GetTypeInfo(0, 0, &info), E_NOTIMPL);
        EXPECT_EQ(component->GetIDsOfNames(IID{}, &name, 1, 0, &identifier), E_NOTIMPL);
        EXPECT_EQ(component->Invoke(0, IID{}, 0, nullptr), E_NOTIMPL);
        EXPECT_EQ(component->ChangeComponentState(0, 0, nullptr), E_NOTIMPL);
    }
}

TEST_F(BaseUnknown, AllocationWithoutExceptions_IsOfTheSameKind)
{
    int alive = 0;
    const int before = HostUnderTest::LiveComponents();
    OwnComponent* const component = new (std::nothrow) OwnComponent(alive);
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(HostUnderTest::LiveComponents(), before + 1);
    component->Release();
    EXPECT_EQ(HostUnderTest::LiveComponents(), before);
    EXPECT_EQ(alive, 0);
}
} // namespace
