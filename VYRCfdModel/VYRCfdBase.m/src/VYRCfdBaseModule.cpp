/**
 * @file
 * The library's load and its entries in the dictionary of the object model.
 */

#include "ORXFillDictionary.h"
#include "ORXTie.h"
#include "VYRCfdBaseExport.h"
#include "VYRCfdConfigurator.h"
#include "VYRCfdTie.h"
#include "VYRCfdTraceManager.h"
#include "VYRECfdChoiceDefaultManagement.h"
#include "VYRECfdChoiceInstance.h"
#include "VYRECfdDefaultManagementInstance.h"
#include "VYRECfdValuesDefaultManagement.h"
#include "VYRECfdValuesInstance.h"

namespace
{
template <class Extension, class Interface>
ORXBaseUnknown* CreateDirect(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension)
{
    return ToCreateBOA(iExtended, iExtension, Extension::MetaObject(), Interface::ClassId(), &Extension::Construct);
}
} // namespace

// The creators are known to the object model by these names.
extern "C"
{
    VYRCfdBaseExport ORXBaseUnknown*
    CreateBOAVYRIMpaDefaultManagementProtectedVYRECfdChoiceDefaultManagement(ORXBaseUnknown* iExtended,
                                                                             ORXBaseUnknown* iExtension)
    {
        return CreateDirect<VYRECfdChoiceDefaultManagement, VYRIMpaDefaultManagementProtected>(iExtended, iExtension);
    }

    VYRCfdBaseExport ORXBaseUnknown*
    CreateTIEVYRIMpaDefaultManagementVYRECfdChoiceDefaultManagement(ORXBaseUnknown* iExtended,
                                                                    ORXBaseUnknown* iExtension)
    {
        return TIEVYRIMpaDefaultManagement<VYRECfdChoiceDefaultManagement>::Create(iExtended, iExtension);
    }

    VYRCfdBaseExport ORXBaseUnknown* CreateTIEVYRICfdChoiceVYRECfdChoiceInstance(ORXBaseUnknown* iExtended,
                                                                                 ORXBaseUnknown* iExtension)
    {
        return TIEVYRICfdChoice<VYRECfdChoiceInstance>::Create(iExtended, iExtension);
    }

    VYRCfdBaseExport ORXBaseUnknown* CreateTIEORXIInstanceVYRECfdChoiceInstance(ORXBaseUnknown* iExtended,
                                                                                ORXBaseUnknown* iExtension)
    {
        return TIEORXIInstance<VYRECfdChoiceInstance>::Create(iExtended, iExtension);
    }

    VYRCfdBaseExport ORXBaseUnknown* CreateTIEVYRICfdConfigurableVYRECfdChoiceInstance(ORXBaseUnknown* iExtended,
                                                                                       ORXBaseUnknown* iExtension)
    {
        return TIEVYRICfdConfigurable<VYRECfdChoiceInstance>::Create(iExtended, iExtension);
    }

    VYRCfdBaseExport ORXBaseUnknown* CreateTIEORXIInstanceVYRECfdDefaultManagementInstance(ORXBaseUnknown* iExtended,
                                                                                           ORXBaseUnknown* iExtension)
    {
        return TIEORXIInstance<VYRECfdDefaultManagementInstance>::Create(iExtended, iExtension);
    }

    VYRCfdBaseExport ORXBaseUnknown*
    CreateBOAVYRIMpaDefaultManagementProtectedVYRECfdValuesDefaultManagement(ORXBaseUnknown* iExtended,
                                                                             ORXBaseUnknown* iExtension)
    {
        return CreateDirect<VYRECfdValuesDefaultManagement, VYRIMpaDefaultManagementProtected>(iExtended, iExtension);
    }

    VYRCfdBaseExport ORXBaseUnknown*
    CreateTIEVYRIMpaDefaultManagementVYRECfdValuesDefaultManagement(ORXBaseUnknown* iExtended,
                                                                    ORXBaseUnknown* iExtension)
    {
        return TIEVYRIMpaDefaultManagement<VYRECfdValuesDefaultManagement>::Create(iExtended, iExtension);
    }

    VYRCfdBaseExport ORXBaseUnknown* CreateTIEORXIInstanceVYRECfdValuesInstance(ORXBaseUnknown* iExtended,
                                                                                ORXBaseUnknown* iExtension)
    {
        return TIEORXIInstance<VYRECfdValuesInstance>::Create(iExtended, iExtension);
    }

    /// Marks the library for its loader. @return 1
    VYRCfdBaseExport int TESSEL_WORKS_TOOLKIT2_INTERNAL_VYRCfdBase()
    {
        return 1;
    }
}

namespace
{
extern ORXOMModule moduleObject;

template <class Extension, class Interface, ORXInterfaceCreator Creator> ORXOMModule* Enter()
{
    ORXFillDictionary::Register(Extension::MetaObject(), Interface::MetaObject(), Creator, nullptr, 1);
    return &moduleObject;
}

constexpr ORXOMModuleEntry Entries[] = {
    &Enter<VYRECfdChoiceDefaultManagement, VYRIMpaDefaultManagementProtected,
           &CreateBOAVYRIMpaDefaultManagementProtectedVYRECfdChoiceDefaultManagement>,
    &Enter<VYRECfdChoiceDefaultManagement, VYRIMpaDefaultManagement,
           &CreateTIEVYRIMpaDefaultManagementVYRECfdChoiceDefaultManagement>,
    &Enter<VYRECfdChoiceInstance, VYRICfdChoice, &CreateTIEVYRICfdChoiceVYRECfdChoiceInstance>,
    &Enter<VYRECfdChoiceInstance, ORXIInstance, &CreateTIEORXIInstanceVYRECfdChoiceInstance>,
    &Enter<VYRECfdChoiceInstance, VYRICfdConfigurable, &CreateTIEVYRICfdConfigurableVYRECfdChoiceInstance>,
    &Enter<VYRECfdDefaultManagementInstance, ORXIInstance, &CreateTIEORXIInstanceVYRECfdDefaultManagementInstance>,
    &Enter<VYRECfdValuesDefaultManagement, VYRIMpaDefaultManagementProtected,
           &CreateBOAVYRIMpaDefaultManagementProtectedVYRECfdValuesDefaultManagement>,
    &Enter<VYRECfdValuesDefaultManagement, VYRIMpaDefaultManagement,
           &CreateTIEVYRIMpaDefaultManagementVYRECfdValuesDefaultManagement>,
    &Enter<VYRECfdValuesInstance, ORXIInstance, &CreateTIEORXIInstanceVYRECfdValuesInstance>,
};
} // namespace

// The load, in this order: the configurations' clean-up is registered, the channels stand before any other code of the
// module runs, and the dictionary comes last. All three stand in one file, since only that fixes their order.
std::unique_ptr<VYRCfdConfigurator> VYRCfdConfigurator::spConfigurator;

namespace
{
[[maybe_unused]] const int traceInitialization = VYRCfdTraceManager::Initialize();

ORXOMModule moduleObject(ORXOMModuleInfo{std::begin(Entries), std::end(Entries)});
} // namespace
