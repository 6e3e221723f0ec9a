#ifndef ChoiceManager_H
#define ChoiceManager_H

/**
 * @file
 * The tool's manager of Choices, for the feature types whose catalog asks for one.
 */

#include "VYRCfdChoiceMgrAdp.h"

namespace Tool
{
/// Adds nothing to what managers do. One class, but a meta class for each feature type that it is registered for, since
/// a meta class names the type that it extends.
class ChoiceManager final : public VYRCfdChoiceMgrAdp
{
public:
    /// Makes it the manager of all types that are marked in the catalogs that have been read until now.
    static void Register();

    ORXMetaClass* GetMetaObject() const override;
    const char* IsA() const override;
    int IsAKindOf(const char* iClassName) const override;

private:
    static ORXBaseUnknown* Create(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension);
    static ORXBaseUnknown* Construct();
};
} // namespace Tool

#endif
