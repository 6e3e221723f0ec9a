/**
 * @file
 * How a library gives a feature type a Choice of its own.
 *
 * A fan runs at a fixed speed or along a curve. Its drive is a Choice between the two, with a data object for each. The
 * library wants to name these objects itself, to decide what becomes of a drive that is no choice, and to know when
 * the drive has changed.
 *
 * The program says what the Choice did, and exits with 0 when that is what it should have done.
 */

#include <cstdio>
#include <string>
#include <vector>

#include "ORXFillDictionary.h"
#include "ORXIParmPublisher.h"
#include "VYRCfdChoiceInstanceAdp.h"
#include "VYRCfdExtension.h"
#include "VYRCfdTie.h"
#include "VYRStandaloneHost.h"

namespace
{
std::vector<std::string> seen;

void See(const std::string& iLine)
{
    std::printf("%s\n", iLine.c_str());
    seen.push_back(iLine);
}

std::string operator+(const std::string& iText, const ORXUnicodeString& iMore)
{
    return iText + iMore.CastToCharPtr();
}

/// Internal name of the object at which a cursor stands.
ORXUnicodeString NameOf(const VYRCfdObjectAccess& iAccess)
{
    const ORXISpecObject_var object = iAccess.Self();
    return !object ? ORXUnicodeString() : object->GetName();
}

/// 1. The Choice derives from the module's. It names itself, and the feature type that it extends.
class FanDriveInstance final : public VYRCfdExtension<FanDriveInstance, VYRCfdChoiceInstanceAdp>
{
public:
    static constexpr const char* ClassName = "FanDriveInstance";
    static constexpr const char* LateType = "FanDrive";
    static constexpr const char* Framework = "Fans";
    static ORXMetaClass* BaseMeta() { return ORXIParmPublisher::MetaObject(); }

protected:
    /// Data objects are called after the fan, as in "Fan.1 FanCurve".
    HRESULT GetInstanceName(const VYRCfdObjectAccess& iObjectAccess, const ORXUnicodeString& iStartup,
                            ORXUnicodeString& oInstanceName) override
    {
        oInstanceName = NameOf(iObjectAccess.GetParent()) + " " + iStartup;
        return S_OK;
    }

    /// What the module does is as it should be; this library only looks on.
    HRESULT UpdateDataForStartup(const ORXUnicodeString& iStartup, bool& dataChange) override
    {
        See(std::string("the data object is to be a ") + iStartup);
        return VYRCfdChoiceInstanceAdp::UpdateDataForStartup(iStartup, dataChange);
    }

    /// A drive that is no choice goes back to the default.
    ORXBoolean FixInvalidChoice() override
    {
        See("the drive is no choice and is repaired");
        return ORXTrue;
    }

    HRESULT CompleteUpdate(bool wasValueChange, bool dataChange) override
    {
        ORXUnicodeString drive;
        GetChoice(drive);
        See(std::string("up to date with ") + drive + (wasValueChange ? ", written" : "") +
            (dataChange ? ", with other data" : ""));
        return S_OK;
    }
};

/// 2. Its interfaces are entered into the dictionary. The object model runs the entries when it needs them.
ORXOMModule* EnterChoice();
ORXOMModule* EnterConfigurable();
ORXOMModule* EnterInstance();
constexpr ORXOMModuleEntry entries[] = {&EnterChoice, &EnterConfigurable, &EnterInstance};
ORXOMModule fans(ORXOMModuleInfo{std::begin(entries), std::end(entries)});

template <class Interface, class Tie> ORXOMModule* Enter()
{
    ORXFillDictionary::Register(FanDriveInstance::MetaObject(), Interface::MetaObject(), &Tie::Create, nullptr, 1);
    return &fans;
}

ORXOMModule* EnterChoice()
{
    return Enter<VYRICfdChoice, TIEVYRICfdChoice<FanDriveInstance>>();
}

ORXOMModule* EnterConfigurable()
{
    return Enter<VYRICfdConfigurable, TIEVYRICfdConfigurable<FanDriveInstance>>();
}

ORXOMModule* EnterInstance()
{
    return Enter<ORXIInstance, TIEORXIInstance<FanDriveInstance>>();
}

/// 3. The feature type derives from "VYRCfdChoice", and a fan has one.
constexpr const char* catalog = R"({ "catalog": "Fans", "uses": ["VYRCfdBase"], "types": [
    { "name": "FanSpeed", "attributes": [ { "name": "speed", "kind": "real", "default": 25.0 } ] },
    { "name": "FanCurve", "attributes": [ { "name": "speeds", "kind": "list", "of": "real" } ] },
    { "name": "FanDrive", "base": "VYRCfdChoice",
      "startup": { "choices": ["fixed", "curve"], "Startups": ["FanSpeed", "FanCurve"], "value": "fixed" } },
    { "name": "Fan", "attributes": [ { "name": "drive", "kind": "component", "type": "FanDrive" } ] } ] })";

/// 4. A user of the model then meets it by the interfaces of any Choice.
void DriveAFan()
{
    VYRStandalone::DeclareCatalog(catalog, "Fans");
    VYRStandalone::Model model;
    const VYRCfdObjectAccess fan{ORXBaseUnknown_var(model.Create("Fan", "Fan.1"))};
    const VYRCfdObjectAccess drive = fan["drive"];
    const VYRICfdChoice_var choice = drive.Self();
    const VYRStandalone::Subscription panel(drive.Self(), [](ORXNotification&) { See("a panel is told"); });

    See("* a new fan");
    choice->Update();
    See("* along a curve");
    choice->SetChoice("curve");
    // The value of a Choice leads to its data object.
    See(std::string("drive/curve is ") + NameOf(fan.GetByPath("drive/curve")));
    See("* by hand, which the drive does not offer");
    choice->SetChoice("manual");
}

const std::vector<std::string> expected = {
    "* a new fan",
    "the data object is to be a FanSpeed",
    "up to date with fixed, with other data",
    "a panel is told",
    "* along a curve",
    "the data object is to be a FanCurve",
    "up to date with curve, written, with other data",
    "a panel is told",
    "drive/curve is Fan.1 FanCurve",
    "* by hand, which the drive does not offer",
    "the drive is no choice and is repaired",
    // The repair writes the default, and that write is an update of its own inside this one.
    "the data object is to be a FanSpeed",
    "up to date with fixed, written, with other data",
    "a panel is told",
    "up to date with fixed",
};
} // namespace

int main()
{
    DriveAFan();
    if (seen != expected || !VYRStandalone::Reports().empty() || VYRStandalone::LiveComponents() != 0)
    {
        std::fprintf(stderr, "own_choice: this is not what the Choice should have done (%zu reports, %d left alive)\n",
                     VYRStandalone::Reports().size(), VYRStandalone::LiveComponents());
        return 1;
    }
    return 0;
}
