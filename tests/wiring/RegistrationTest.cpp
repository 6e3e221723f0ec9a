/**
 * @file
 * What the library enters into the dictionary, and the meta classes that it makes. This program stands in for the host
 * where they are handed over, looks at them, and hands them on.
 */

#include <algorithm>

#include <dlfcn.h>

#include "FlowTest.h"
#include "ORXFillDictionary.h"
#include "ORXIInstance.h"
#include "ORXMetaClass.h"
#include "VYRICfdChoice.h"
#include "VYRICfdConfigurable.h"
#include "VYRIMpaDefaultManagement.h"

namespace
{
/// One line a call, in its order.
struct Handed
{
    Lines rows;
    std::vector<ORXInterfaceCreator> creators;
    Lines classes;
    Lines ties;
};

/// Made on first use, since libraries call before this program's own statics stand.
Handed& Seen()
{
    static Handed handed;
    return handed;
}

template <class Function> Function* TheHosts(const char* iSymbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, iSymbol));
}
} // namespace

void ORXFillDictionary::Register(ORXMetaClass* iClass, ORXMetaClass* iInterface, ORXInterfaceCreator iCreator,
                                 void* iReserved, int iMode)
{
    Seen().rows.push_back(std::string(iClass->ClassName()) + " " + iInterface->ClassName() +
                          (iReserved == nullptr ? " null " : " something ") + std::to_string(iMode));
    Seen().creators.push_back(iCreator);
    static auto* const real = TheHosts<void(ORXMetaClass*, ORXMetaClass*, ORXInterfaceCreator, void*, int)>(
        "_ZN17ORXFillDictionary8RegisterEP12ORXMetaClassS1_PFP14ORXBaseUnknownS3_S3_EPvi");
    real(iClass, iInterface, iCreator, iReserved, iMode);
}

ORXMetaClass* qlx::internal::fct_RetrieveMetaObject(const char* iClassName, ENUMTypeOfClass iKind, ORXMetaClass* iBase,
                                                    const char* iLateType, const char* iFramework, std::size_t iSize)
{
    Seen().classes.push_back(std::string(iClassName) + " " + std::to_string(iKind) + " " + iBase->ClassName() + " " +
                             iLateType + " " + iFramework + (iSize > sizeof(ORXBaseUnknown) ? " sized" : " empty"));
    static auto* const real =
        TheHosts<ORXMetaClass*(const char*, ENUMTypeOfClass, ORXMetaClass*, const char*, const char*, std::size_t)>(
            "_ZN3qlx8internal22fct_RetrieveMetaObjectEPKc15ENUMTypeOfClassP12ORXMetaClassS2_S2_m");
    return real(iClassName, iKind, iBase, iLateType, iFramework, iSize);
}

ORXMetaClass* qlx::internal::Tie_InitMetaObject(const GUID& iInterfaceId, const char* iInterfaceName,
                                                ORXMetaClass* iInterface, ORXMetaClass* iClass, ENUMTypeOfClass iKind)
{
    Seen().ties.push_back(std::string(iInterfaceName) + " " + iInterface->ClassName() + " " + iClass->ClassName() +
                          " " + std::to_string(iKind) +
                          (iInterfaceId == iInterface->InterfaceId() ? "" : " of another identifier"));
    static auto* const real =
        TheHosts<ORXMetaClass*(const GUID&, const char*, ORXMetaClass*, ORXMetaClass*, ENUMTypeOfClass)>(
            "_ZN3qlx8internal18Tie_InitMetaObjectERK4GUIDPKcP12ORXMetaClassS7_15ENUMTypeOfClass");
    return real(iInterfaceId, iInterfaceName, iInterface, iClass, iKind);
}

namespace
{
/// Asks for everything that the module offers, which makes all of its meta classes.
class RegistrationTest : public FlowTest
{
protected:
    void SetUp() override
    {
        FlowTest::SetUp();
        // Of whoever comes first: the load of the library alone has handed nothing over.
        static const Lines atFirst = Seen().rows;
        EXPECT_EQ(atFirst, Lines{});
        const ORXISpecObject_var choice = At(m_solver, "choice");
        for (const ORXISpecObject_var& object : {choice, m_solver, SubFeature()})
        {
            // Each request twice, and each meta class once.
            for (int i = 0; i < 2; ++i)
            {
                ORXIInstance_var instance = object;
                EXPECT_FALSE(!instance);
                VYRIMpaDefaultManagement_var management = object;
                VYRICfdConfigurable_var configurable = object;
                VYRICfdChoice_var offered = object;
                EXPECT_EQ(!offered, !configurable);
            }
        }
    }
};

TEST_F(RegistrationTest, Table_HasNineRowsInTheirOrder)
{
    EXPECT_EQ(Seen().rows,
              (Lines{"VYRECfdChoiceDefaultManagement VYRIMpaDefaultManagementProtected null 1",
                     "VYRECfdChoiceDefaultManagement VYRIMpaDefaultManagement null 1",
                     "VYRECfdChoiceInstance VYRICfdChoice null 1", "VYRECfdChoiceInstance ORXIInstance null 1",
                     "VYRECfdChoiceInstance VYRICfdConfigurable null 1",
                     "VYRECfdDefaultManagementInstance ORXIInstance null 1",
                     "VYRECfdValuesDefaultManagement VYRIMpaDefaultManagementProtected null 1",
                     "VYRECfdValuesDefaultManagement VYRIMpaDefaultManagement null 1",
                     "VYRECfdValuesInstance ORXIInstance null 1"}));
}

TEST_F(RegistrationTest, Creators_AreTheExportedFunctions)
{
    const Lines names = {"CreateBOAVYRIMpaDefaultManagementProtectedVYRECfdChoiceDefaultManagement",
                         "CreateTIEVYRIMpaDefaultManagementVYRECfdChoiceDefaultManagement",
                         "CreateTIEVYRICfdChoiceVYRECfdChoiceInstance",
                         "CreateTIEORXIInstanceVYRECfdChoiceInstance",
                         "CreateTIEVYRICfdConfigurableVYRECfdChoiceInstance",
                         "CreateTIEORXIInstanceVYRECfdDefaultManagementInstance",
                         "CreateBOAVYRIMpaDefaultManagementProtectedVYRECfdValuesDefaultManagement",
                         "CreateTIEVYRIMpaDefaultManagementVYRECfdValuesDefaultManagement",
                         "CreateTIEORXIInstanceVYRECfdValuesInstance"};
    ASSERT_EQ(Seen().creators.size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        const auto exported = reinterpret_cast<ORXInterfaceCreator>(dlsym(RTLD_DEFAULT, names[i].c_str()));
        ASSERT_NE(exported, nullptr) << names[i];
        EXPECT_EQ(Seen().creators[i], exported) << names[i];
    }
}

TEST_F(RegistrationTest, MetaClasses_AreMadeOnceForEachClassInTheOrderOfTheTable)
{
    EXPECT_EQ(
        Seen().classes,
        (Lines{"VYRECfdChoiceDefaultManagement 2 VYRIMpaDefaultManagementProtected VYRCfdChoice VYRCfdModel sized",
               "VYRECfdChoiceInstance 2 ORXIParmPublisher VYRCfdChoice VYRCfdModel sized",
               "VYRECfdDefaultManagementInstance 2 ORXIParmPublisher VYRCfdDefaultManagement VYRCfdModel sized",
               "VYRECfdValuesDefaultManagement 2 VYRIMpaDefaultManagementProtected VYRCfdValues VYRCfdModel sized",
               "VYRECfdValuesInstance 2 ORXIParmPublisher VYRCfdValues VYRCfdModel sized"}));
}

TEST_F(RegistrationTest, MetaClassesOfTies_AreMadeOnceForEachPair)
{
    Lines ties = Seen().ties;
    std::sort(ties.begin(), ties.end());
    EXPECT_EQ(ties, (Lines{"ORXIInstance ORXIInstance VYRECfdChoiceInstance 7",
                           "ORXIInstance ORXIInstance VYRECfdDefaultManagementInstance 7",
                           "ORXIInstance ORXIInstance VYRECfdValuesInstance 7",
                           "VYRICfdChoice VYRICfdChoice VYRECfdChoiceInstance 7",
                           "VYRICfdConfigurable VYRICfdConfigurable VYRECfdChoiceInstance 7",
                           "VYRIMpaDefaultManagement VYRIMpaDefaultManagement VYRECfdChoiceDefaultManagement 6",
                           "VYRIMpaDefaultManagement VYRIMpaDefaultManagement VYRECfdValuesDefaultManagement 6"}));
}
} // namespace
