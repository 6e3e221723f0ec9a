/**
 * @file
 * Default management.
 */

#include "Operation.h"
#include "RealAccess.h"
#include "VYRIMpaDefaultManagementProtected.h"

namespace
{
using Twin::Configurator;

using OnTwin = std::function<std::string(Configurator&, Twin::Object&, const TwinArguments&)>;
using OnReal =
    std::function<std::string(VYRIMpaDefaultManagementProtected&, const ORXUnicodeString&, const RealArguments&)>;

OperationKind Of(const char* iVerb, const char* iSignature, int iWeight, OnTwin iOnTwin, OnReal iOnReal)
{
    return {iVerb, iSignature, iWeight,
            [iOnTwin](Configurator& ioTwin, const TwinArguments& iArguments) -> std::string {
                if (!ioTwin.HasDefaults(*iArguments.Self()))
                    return "no default management";
                return iOnTwin(ioTwin, *iArguments.Self(), iArguments);
            },
            [iOnReal](const RealArguments& iArguments) -> std::string {
                const VYRIMpaDefaultManagementProtected_var defaults = iArguments.Self();
                if (!defaults)
                    return "no default management";
                const ORXUnicodeString name = iArguments.texts.empty() ? "" : iArguments.Name().c_str();
                return iOnReal(*defaults.Pointer(), name, iArguments);
            }};
}

/// A query with a flag; what is left alone shows as 7.
using TwinQuery = HRESULT (Configurator::*)(Twin::Object&, const std::string&, bool&);
using RealQuery = HRESULT (VYRIMpaDefaultManagementProtected::*)(const ORXUnicodeString&, unsigned char&);

OperationKind Query(const char* iVerb, TwinQuery iOnTwin, RealQuery iOnReal)
{
    return Of(
        iVerb, "ds", 6,
        [iOnTwin](Configurator& t, Twin::Object& o, const TwinArguments& w) -> std::string {
            bool flag = false;
            const HRESULT status = (t.*iOnTwin)(o, w.Name(), flag);
            return StatusText(status) + (flag ? " true" : " false");
        },
        [iOnReal](auto& d, auto& n, auto&) -> std::string {
            unsigned char flag = 0;
            const HRESULT status = (d.*iOnReal)(n, flag);
            return StatusText(status) + (flag != 0 ? " true" : " false");
        });
}

std::string Shown(HRESULT iStatus, const std::optional<Twin::Value>& iValue)
{
    if (!iValue.has_value())
        return StatusText(iStatus) + " (null)";
    return StatusText(iStatus) + (iValue->isThere ? " " + iValue->AsString() : " (none)");
}

std::string Shown(HRESULT iStatus, const ORXICkeInst_var& iValue)
{
    if (!iValue)
        return StatusText(iStatus) + " (null)";
    return StatusText(iStatus) +
           (iValue->IsValuated() != 0 ? std::string(" ") + iValue->AsString().CastToCharPtr() : " (none)");
}

std::string GetDefaultOfTwin(Configurator& ioTwin, Twin::Object& ioObject, const TwinArguments& iArguments)
{
    std::optional<Twin::Value> value;
    const HRESULT status = ioTwin.GetDefault(ioObject, iArguments.Name(), value);
    return Shown(status, value);
}

std::string GetDefaultOfReal(VYRIMpaDefaultManagementProtected& ioDefaults, const ORXUnicodeString& iName,
                             const RealArguments&)
{
    ORXICkeInst_var value;
    const HRESULT status = ioDefaults.GetDefault(iName, value);
    return Shown(status, value);
}

/// The value form, with the value of any attribute; one without a parameter gives null.
std::string KeepValueOnTwin(Configurator& ioTwin, Twin::Object& ioObject, const TwinArguments& iArguments)
{
    const Twin::Attribute* source = Twin::Host::Find(iArguments.objects[1], iArguments.texts[1]);
    std::optional<Twin::Value> value;
    if (source != nullptr && source->kind != Twin::Kind::List && !Twin::HoldsObjects(source->kind))
        value = source->value;
    return StatusText(ioTwin.SetCustomDefaultValue(ioObject, iArguments.Name(), value));
}

std::string KeepValueOnReal(VYRIMpaDefaultManagementProtected& ioDefaults, const ORXUnicodeString& iName,
                            const RealArguments& iArguments)
{
    const ORXICkeParm_var source = RealAttribute(iArguments.objects[1], iArguments.texts[1]).Parameter();
    ORXICkeInst_var value;
    if (!!source)
        value = source->GetValue();
    return StatusText(ioDefaults.SetCustomDefault(iName, value));
}

std::string KeepTextOnReal(VYRIMpaDefaultManagementProtected& ioDefaults, const ORXUnicodeString& iName,
                           const RealArguments& iArguments)
{
    ORXUnicodeString text = iArguments.texts[1].c_str();
    return StatusText(ioDefaults.SetCustomDefault(iName, text));
}
} // namespace

std::vector<OperationKind> DefaultOperations()
{
    return {
        Query("isset", &Configurator::IsSet, &VYRIMpaDefaultManagementProtected::IsSet),
        Query("hasauto", &Configurator::HasAuto, &VYRIMpaDefaultManagementProtected::HasAuto),
        Query("isauto", &Configurator::GetIsAuto, &VYRIMpaDefaultManagementProtected::GetIsAuto),
        Query("hasdefault", &Configurator::HasCustomDefault, &VYRIMpaDefaultManagementProtected::HasCustomDefault),
        Of(
            "setisset", "dsb", 20,
            [](auto& t, auto& o, auto& w) { return StatusText(t.SetIsSet(o, w.Name(), w.integers[0] != 0)); },
            [](auto& d, auto& n, auto& w) {
                return StatusText(d.SetIsSet(n, static_cast<unsigned char>(w.integers[0])));
            }),
        Of(
            "setauto", "dsb", 30,
            [](auto& t, auto& o, auto& w) { return StatusText(t.SetIsAuto(o, w.Name(), w.integers[0] != 0)); },
            [](auto& d, auto& n, auto& w) {
                return StatusText(d.SetIsAuto(n, static_cast<unsigned char>(w.integers[0])));
            }),
        Of(
            "unset", "ds", 30, [](auto& t, auto& o, auto& w) { return StatusText(t.Unset(o, w.Name())); },
            [](auto& d, auto& n, auto&) { return StatusText(d.Unset(n)); }),
        Of("getdefault", "ds", 10, GetDefaultOfTwin, GetDefaultOfReal),
        Of(
            "setdefault", "dst", 40,
            [](auto& t, auto& o, auto& w) { return StatusText(t.SetCustomDefault(o, w.Name(), w.texts[1])); },
            KeepTextOnReal),
        Of("keepvalue", "dsoq", 10, KeepValueOnTwin, KeepValueOnReal),
        Of(
            "removedefault", "ds", 10,
            [](auto& t, auto& o, auto& w) { return StatusText(t.RemoveCustomDefault(o, w.Name())); },
            [](auto& d, auto& n, auto&) { return StatusText(d.RemoveCustomDefault(n)); }),
        Of(
            "removedefaults", "d", 4, [](auto& t, auto& o, auto&) { return StatusText(t.RemoveAllCustomDefaults(o)); },
            [](auto& d, auto&, auto&) { return StatusText(d.RemoveAllCustomDefaults()); }),
    };
}
