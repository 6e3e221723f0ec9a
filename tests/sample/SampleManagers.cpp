#include "SampleManagers.h"

#include <algorithm>

#include "ORXFillDictionary.h"
#include "ORXTie.h"
#include "VYRCfdChoiceMgrAdp.h"
#include "VYRCfdExtension.h"

namespace
{
/// A text as a parameter of a template.
template <std::size_t Size> struct TypeName
{
    // Made from a literal, so not explicit.
    consteval TypeName(const char (&iText)[Size]) { std::copy_n(iText, Size, text); }
    char text[Size] = {};
};

/// The class of each type is its own, so that each has its own entry in the dictionary.
template <TypeName Type> class SampleManager final : public VYRCfdExtension<SampleManager<Type>, VYRCfdChoiceMgrAdp>
{
public:
    static constexpr const char* ClassName = Type.text;
    static constexpr const char* LateType = Type.text;
    static constexpr const char* Framework = "Test";
    static ORXMetaClass* BaseMeta() { return VYRICfdChoiceMgr::MetaObject(); }

    static std::string Register()
    {
        ORXFillDictionary::Register(SampleManager::MetaObject(), VYRICfdChoiceMgr::MetaObject(), &Create, nullptr, 1);
        return LateType;
    }

private:
    static ORXBaseUnknown* Create(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
    {
        return ToCreateBOA(iExtended, iExtension, SampleManager::MetaObject(), VYRICfdChoiceMgr::ClassId(),
                           &SampleManager::Construct);
    }
};
} // namespace

std::vector<std::string> RegisterSampleManagers()
{
    return {SampleManager<"LinearSolverChoice">::Register(), SampleManager<"TransitionModelChoice">::Register(),
            SampleManager<"SolverKindChoice">::Register(), SampleManager<"WallKindChoice">::Register()};
}
