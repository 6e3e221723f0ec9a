/**
 * @file
 * What the object model and a loader find in the library by name.
 */

#include <ostream>

#include <dlfcn.h>

#include "FlowTest.h"
#include "ORXFillDictionary.h"
#include "ORXIInstance.h"
#include "VYRIMpaDefaultManagement.h"

namespace
{
class ExportsTest : public FlowTest
{
protected:
    static ORXInterfaceCreator Creator(const char* iName)
    {
        return reinterpret_cast<ORXInterfaceCreator>(dlsym(RTLD_DEFAULT, iName));
    }
};

TEST_F(ExportsTest, Marker_Answers1)
{
    const auto marker = reinterpret_cast<int (*)()>(dlsym(RTLD_DEFAULT, "TESSEL_WORKS_TOOLKIT2_INTERNAL_VYRCfdBase"));
    ASSERT_NE(marker, nullptr);
    EXPECT_EQ(marker(), 1);
}

struct Export
{
    const char* name;
    /// Path below the solver of the object that is extended.
    const char* path;
    const char* interfaceName;
    /// Whether two calls give one pointer.
    bool isShared;
};

void PrintTo(const Export& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class CreatorTest : public ExportsTest, public testing::WithParamInterface<Export>
{
};

TEST_P(CreatorTest, Creator_GivesTheInterfaceAsANewReference)
{
    const ORXInterfaceCreator create = Creator(GetParam().name);
    ASSERT_NE(create, nullptr);
    const ORXISpecObject_var object = At(m_solver, GetParam().path);
    const ORXBaseUnknown_var first = ORXBaseUnknown_var::Adopt(create(object->GetImpl(0), nullptr));
    const ORXBaseUnknown_var second = ORXBaseUnknown_var::Adopt(create(object->GetImpl(0), nullptr));
    ASSERT_FALSE(!first);
    ASSERT_FALSE(!second);
    EXPECT_EQ(first.Pointer() == second.Pointer(), GetParam().isShared);
    EXPECT_TRUE(first == second);
    EXPECT_TRUE(first == object);

    void* asked = nullptr;
    EXPECT_EQ(first->QueryInterface(GetParam().interfaceName, &asked), S_OK);
    const ORXBaseUnknown_var answer = ORXBaseUnknown_var::Adopt(static_cast<ORXBaseUnknown*>(asked));
    EXPECT_EQ(answer.Pointer(), first.Pointer()) << "what was created is the interface";
}

const Export exports[] = {
    {"CreateBOAVYRIMpaDefaultManagementProtectedVYRECfdChoiceDefaultManagement", "choice",
     "VYRIMpaDefaultManagementProtected", true},
    {"CreateTIEVYRIMpaDefaultManagementVYRECfdChoiceDefaultManagement", "choice", "VYRIMpaDefaultManagement", false},
    {"CreateTIEVYRICfdChoiceVYRECfdChoiceInstance", "choice", "VYRICfdChoice", true},
    {"CreateTIEORXIInstanceVYRECfdChoiceInstance", "choice", "ORXIInstance", true},
    {"CreateTIEVYRICfdConfigurableVYRECfdChoiceInstance", "choice", "VYRICfdConfigurable", true},
    {"CreateTIEORXIInstanceVYRECfdDefaultManagementInstance", "defaultManagement", "ORXIInstance", true},
    {"CreateBOAVYRIMpaDefaultManagementProtectedVYRECfdValuesDefaultManagement", "",
     "VYRIMpaDefaultManagementProtected", true},
    {"CreateTIEVYRIMpaDefaultManagementVYRECfdValuesDefaultManagement", "", "VYRIMpaDefaultManagement", false},
    {"CreateTIEORXIInstanceVYRECfdValuesInstance", "", "ORXIInstance", true},
};

INSTANTIATE_TEST_SUITE_P(Creators, CreatorTest, testing::ValuesIn(exports),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });
} // namespace
