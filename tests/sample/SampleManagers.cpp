#include "SampleManagers.h"

#include "ORXFillDictionary.h"
#include "ORXTie.h"
#include "VYRCfdChoiceMgrAdp.h"
#include "VYRCfdExtension.h"

namespace
{
template <class Class> class SampleManager : public VYRCfdExtension<Class, VYRCfdChoiceMgrAdp>
{
public:
    static constexpr const char* Framework = "Test";
    static ORXMetaClass* BaseMeta() { return VYRICfdChoiceMgr::MetaObject(); }

    static void Register()
    {
        ORXFillDictionary::Register(Class::MetaObject(), VYRICfdChoiceMgr::MetaObject(), &Create, nullptr, 1);
    }

private:
    static ORXBaseUnknown* Create(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
    {
        return ToCreateBOA(iExtended, iExtension, Class::MetaObject(), VYRICfdChoiceMgr::ClassId(), &Class::Construct);
    }
};

class LinearSolverManager final : public SampleManager<LinearSolverManager>
{
public:
    static constexpr const char* ClassName = "LinearSolverManager";
    static constexpr const char* LateType = "LinearSolverChoice";
};

class TransitionModelManager final : public SampleManager<TransitionModelManager>
{
public:
    static constexpr const char* ClassName = "TransitionModelManager";
    static constexpr const char* LateType = "TransitionModelChoice";
};
} // namespace

std::vector<std::string> RegisterSampleManagers()
{
    LinearSolverManager::Register();
    TransitionModelManager::Register();
    return {LinearSolverManager::LateType, TransitionModelManager::LateType};
}
