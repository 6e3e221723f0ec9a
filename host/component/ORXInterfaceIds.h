#ifndef ORXInterfaceIds_H
#define ORXInterfaceIds_H

/**
 * @file
 * The fixed identifiers of all interfaces, in one place. Each interface gives its own by the static function
 * `ClassId()`. No two share their first field, so a host may decide most casts by that field alone.
 */

#include "ORXGuid.h"

namespace ORXInterfaceIds
{
/// All identifiers of the application share everything but the first field.
constexpr GUID Make(std::uint32_t iFirst) noexcept
{
    return GUID{iFirst, 0x6b1d, 0x4c52, {0x91, 0x0e, 0x3a, 0x7f, 0x52, 0xd4, 0x08, 0xc6}};
}
} // namespace ORXInterfaceIds

inline constexpr IID IID_ORXBaseUnknown = ORXInterfaceIds::Make(0x00000001);
inline constexpr IID IID_ORXIComponentIdentity = ORXInterfaceIds::Make(0x00000002);

inline constexpr IID IID_ORXISpecObject = ORXInterfaceIds::Make(0x00000101);
inline constexpr IID IID_ORXISpecAttrAccess = ORXInterfaceIds::Make(0x00000102);
inline constexpr IID IID_ORXISpecAttrKey = ORXInterfaceIds::Make(0x00000103);
inline constexpr IID IID_ORXISpecAttribute = ORXInterfaceIds::Make(0x00000104);
inline constexpr IID IID_ORXIContainer = ORXInterfaceIds::Make(0x00000105);
inline constexpr IID IID_ORXIAlias = ORXInterfaceIds::Make(0x00000106);

inline constexpr IID IID_ORXICkeParm = ORXInterfaceIds::Make(0x00000201);
inline constexpr IID IID_ORXICkeInst = ORXInterfaceIds::Make(0x00000202);
inline constexpr IID IID_ORXIValue = ORXInterfaceIds::Make(0x00000203);
inline constexpr IID IID_ORXICkeType = ORXInterfaceIds::Make(0x00000204);
inline constexpr IID IID_ORXIParmDictionary = ORXInterfaceIds::Make(0x00000205);
inline constexpr IID IID_ORXICkeParmFactory = ORXInterfaceIds::Make(0x00000206);
inline constexpr IID IID_ORXICkeManipulator = ORXInterfaceIds::Make(0x00000207);
inline constexpr IID IID_ORXIInstance = ORXInterfaceIds::Make(0x00000208);
inline constexpr IID IID_ORXIParmPublisher = ORXInterfaceIds::Make(0x00000209);

inline constexpr IID IID_ORXISimBCDataTableColumn = ORXInterfaceIds::Make(0x00000301);
inline constexpr IID IID_ORXISamAnalysisEntityInit = ORXInterfaceIds::Make(0x00000302);

inline constexpr IID IID_VYRIFldIdentifier = ORXInterfaceIds::Make(0x00000401);
inline constexpr IID IID_VYRIMpaDefaultManagement = ORXInterfaceIds::Make(0x00000402);
inline constexpr IID IID_VYRIMpaDefaultManagementProtected = ORXInterfaceIds::Make(0x00000403);
inline constexpr IID IID_VYRICfdChoice = ORXInterfaceIds::Make(0x00000404);
inline constexpr IID IID_VYRICfdChoiceMgr = ORXInterfaceIds::Make(0x00000405);
inline constexpr IID IID_VYRICfdConfigurable = ORXInterfaceIds::Make(0x00000406);

#endif
