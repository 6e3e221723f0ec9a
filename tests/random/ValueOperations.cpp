/**
 * @file
 * Writes of scalar values and of entries of lists, by every road.
 */

#include "ORXCkeGlobalFunctions.h"
#include "ORXISpecAttribute.h"
#include "Operation.h"
#include "RealAccess.h"

namespace
{
using Twin::Attribute;
using Twin::Configurator;
using Twin::Of;
using Twin::Value;

constexpr const char* NoParameter = "no parameter";
constexpr const char* NoAttribute = "no attribute";

bool IsScalar(const Attribute* iAttribute)
{
    return iAttribute != nullptr && iAttribute->kind != Twin::Kind::List && !Twin::HoldsObjects(iAttribute->kind);
}

Value Given(char iKind, const TwinArguments& iArguments)
{
    switch (iKind)
    {
    case 'i':
        return Of(iArguments.integers[0]);
    case 'r':
        return Of(iArguments.real);
    case 'b':
        return Of(iArguments.integers[0] != 0);
    default:
        return Of(iArguments.texts[1]);
    }
}

OperationKind Valuation(const char* iVerb, const char* iSignature)
{
    const char kind = iSignature[2];
    return {iVerb, iSignature, 30,
            [kind](Configurator& ioTwin, const TwinArguments& iArguments) -> std::string {
                Attribute* attribute = Twin::Host::Find(iArguments.Self(), iArguments.Name());
                if (!IsScalar(attribute))
                    return NoParameter;
                ioTwin.Valuate(*iArguments.Self(), *attribute, Given(kind, iArguments));
                return "";
            },
            [kind](const RealArguments& iArguments) -> std::string {
                const ORXICkeParm_var parameter = RealAttribute(iArguments.Self(), iArguments.Name()).Parameter();
                if (!parameter)
                    return NoParameter;
                if (kind == 'i')
                    parameter->Valuate(iArguments.integers[0]);
                else if (kind == 'r')
                    parameter->Valuate(iArguments.real);
                else if (kind == 'b')
                    parameter->Valuate(ORXCke::Boolean::Of(iArguments.integers[0] != 0));
                else
                    parameter->Valuate(ORXUnicodeString(iArguments.texts[1].c_str()));
                return "";
            }};
}

/// By the attribute store; the position is the last word, and also addresses entries of lists.
OperationKind Storing(const char* iVerb, const char* iSignature)
{
    const char kind = iSignature[2];
    const std::size_t position = kind == 'i' || kind == 'b' ? 1 : 0;
    return {iVerb, iSignature, 15,
            [kind, position](Configurator& ioTwin, const TwinArguments& iArguments) -> std::string {
                Attribute* attribute = Twin::Host::Find(iArguments.Self(), iArguments.Name());
                if (attribute == nullptr)
                    return NoAttribute;
                return StatusText(ioTwin.Store(*iArguments.Self(), *attribute, Given(kind, iArguments),
                                               iArguments.integers[position]));
            },
            [kind, position](const RealArguments& iArguments) -> std::string {
                const RealAttribute attribute(iArguments.Self(), iArguments.Name());
                if (!attribute.key)
                    return NoAttribute;
                ORXISpecAttrAccess& access = *attribute.access.Pointer();
                const int index = iArguments.integers[position];
                if (kind == 'i')
                    return StatusText(access.SetInteger(attribute.key, iArguments.integers[0], index));
                if (kind == 'r')
                    return StatusText(access.SetDouble(attribute.key, iArguments.real, index));
                if (kind == 'b')
                    return StatusText(access.SetBoolean(attribute.key, iArguments.integers[0] != 0, index));
                return StatusText(access.SetString(attribute.key, iArguments.texts[1].c_str(), index));
            }};
}

/// By a cursor, as the application's modules write.
OperationKind CursorWrite(const char* iVerb, const char* iSignature)
{
    const char kind = iSignature[2];
    return {iVerb, iSignature, 15,
            [kind](Configurator& ioTwin, const TwinArguments& iArguments) -> std::string {
                const Twin::Place place = ioTwin.Get(Twin::Cursor::At(iArguments.Self()), iArguments.Name());
                if (kind == 'i')
                    return StatusText(ioTwin.SetInteger(place, iArguments.integers[0]));
                if (kind == 'r')
                    return StatusText(ioTwin.SetDouble(place, iArguments.real));
                if (kind == 'b')
                    return StatusText(ioTwin.SetBoolean(place, iArguments.integers[0] != 0));
                return StatusText(ioTwin.SetString(place, iArguments.texts[1]));
            },
            [kind](const RealArguments& iArguments) -> std::string {
                const VYRCfdObjectAccess place = VYRCfdObjectAccess(
                    ORXBaseUnknown_var(iArguments.Self()))[ORXUnicodeString(iArguments.Name().c_str())];
                if (kind == 'i')
                    return StatusText(place.SetInteger(iArguments.integers[0]));
                if (kind == 'r')
                    return StatusText(place.SetDouble(iArguments.real));
                if (kind == 'b')
                    return StatusText(place.SetBoolean(iArguments.integers[0] != 0));
                return StatusText(place.SetString(iArguments.texts[1].c_str()));
            }};
}

/// One entry of a list by a cursor.
OperationKind EntryWrite(const char* iVerb, const char* iSignature)
{
    const char kind = iSignature[2];
    const std::size_t position = kind == 'i' || kind == 'b' ? 1 : 0;
    return {iVerb, iSignature, 6,
            [kind, position](Configurator& ioTwin, const TwinArguments& iArguments) -> std::string {
                const Twin::Place place = ioTwin.Get(Twin::Cursor::At(iArguments.Self()), iArguments.Name());
                return StatusText(ioTwin.SetEntry(place, Given(kind, iArguments), iArguments.integers[position]));
            },
            [kind, position](const RealArguments& iArguments) -> std::string {
                const VYRCfdObjectAccess place = VYRCfdObjectAccess(
                    ORXBaseUnknown_var(iArguments.Self()))[ORXUnicodeString(iArguments.Name().c_str())];
                const int index = iArguments.integers[position];
                if (kind == 'i')
                    return StatusText(place.SetInteger(iArguments.integers[0], index));
                if (kind == 'r')
                    return StatusText(place.SetDouble(iArguments.real, index));
                if (kind == 'b')
                    return StatusText(place.SetBoolean(iArguments.integers[0] != 0, index));
                return StatusText(place.SetString(iArguments.texts[1].c_str(), index));
            }};
}

std::string TakeAwayFromTwin(Configurator& ioTwin, const TwinArguments& iArguments)
{
    Attribute* attribute = Twin::Host::Find(iArguments.Self(), iArguments.Name());
    if (!IsScalar(attribute))
        return NoParameter;
    ioTwin.ValuateFromValue(*iArguments.Self(), *attribute, Twin::Host::Volatile(*attribute, std::nullopt));
    return "";
}

std::string TakeAwayFromReal(const RealArguments& iArguments)
{
    const ORXICkeParm_var parameter = RealAttribute(iArguments.Self(), iArguments.Name()).Parameter();
    if (!parameter)
        return NoParameter;
    parameter->ValuateFromValue(
        ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(parameter->GetType(), "unset")->GetValue());
    return "";
}

std::string CopyOnTwin(Configurator& ioTwin, const TwinArguments& iArguments)
{
    Attribute* target = Twin::Host::Find(iArguments.objects[0], iArguments.texts[0]);
    Attribute* source = Twin::Host::Find(iArguments.objects[1], iArguments.texts[1]);
    if (!IsScalar(target) || !IsScalar(source))
        return NoParameter;
    const Value value = source->value;
    ioTwin.ValuateFromValue(*iArguments.Self(), *target, value);
    return "";
}

std::string CopyOnReal(const RealArguments& iArguments)
{
    const ORXICkeParm_var target = RealAttribute(iArguments.objects[0], iArguments.texts[0]).Parameter();
    const ORXICkeParm_var source = RealAttribute(iArguments.objects[1], iArguments.texts[1]).Parameter();
    if (!target || !source)
        return NoParameter;
    target->ValuateFromValue(source->GetValue());
    return "";
}

std::string FromStringOnTwin(Configurator& ioTwin, const TwinArguments& iArguments)
{
    Attribute* attribute = Twin::Host::Find(iArguments.Self(), iArguments.Name());
    if (!IsScalar(attribute))
        return NoParameter;
    ioTwin.ValuateFromString(*iArguments.Self(), *attribute, iArguments.texts[1]);
    return "";
}

std::string FromStringOnReal(const RealArguments& iArguments)
{
    const ORXICkeParm_var parameter = RealAttribute(iArguments.Self(), iArguments.Name()).Parameter();
    if (!parameter)
        return NoParameter;
    parameter->ValuateFromString(iArguments.texts[1].c_str());
    return "";
}

constexpr struct
{
    const char* name;
    Twin::Kind kind;
    int code;
} AddedKinds[] = {{"boolean", Twin::Kind::Boolean, tk_boolean},
                  {"integer", Twin::Kind::Integer, tk_integer},
                  {"real", Twin::Kind::Real, tk_double},
                  {"string", Twin::Kind::String, tk_string},
                  {"reference", Twin::Kind::Reference, tk_specobject},
                  {"component", Twin::Kind::Component, tk_component}};

const auto& AddedKind(const std::string& iName)
{
    for (const auto& kind : AddedKinds)
        if (iName == kind.name)
            return kind;
    return AddedKinds[0];
}

std::string AddOnTwin(Configurator& ioTwin, const TwinArguments& iArguments)
{
    return ioTwin.AddAttribute(*iArguments.Self(), iArguments.Name(), AddedKind(iArguments.texts[1]).kind) ? "added"
                                                                                                           : "refused";
}

std::string AddOnReal(const RealArguments& iArguments)
{
    const ORXISpecAttribute_var added = ORXISpecAttribute_var::Adopt(
        iArguments.Self()->AddAttribute(iArguments.Name().c_str(), AddedKind(iArguments.texts[1]).code, 0));
    return !added ? "refused" : "added";
}

/// What a panel offers, changed behind the module's back.
std::string AllowOnTwin(Configurator& ioTwin, const TwinArguments& iArguments)
{
    Attribute* attribute = Twin::Host::Find(iArguments.Self(), iArguments.Name());
    if (!IsScalar(attribute))
        return NoParameter;
    ioTwin.Allow(*iArguments.Self(), *attribute, iArguments.list);
    return "";
}

std::string AllowOnReal(const RealArguments& iArguments)
{
    const ORXICkeParm_var parameter = RealAttribute(iArguments.Self(), iArguments.Name()).Parameter();
    if (!parameter)
        return NoParameter;
    ORXICkeManipulator_var manipulator = parameter->GetManipulator();
    if (!manipulator)
        manipulator = parameter->CreateManipulator();
    ORXListValORXUnicodeString list;
    for (const std::string& text : iArguments.list)
        list.Append(text.c_str());
    manipulator->SetAllowedValues(list);
    return "";
}
} // namespace

std::vector<OperationKind> ValueOperations()
{
    return {
        Valuation("valuate.int", "osi"),
        Valuation("valuate.real", "osr"),
        Valuation("valuate.bool", "osb"),
        Valuation("valuate.text", "ost"),
        Storing("store.int", "osin"),
        Storing("store.real", "osrn"),
        Storing("store.bool", "osbn"),
        Storing("store.text", "ostn"),
        Storing("entry.int", "ovin"),
        Storing("entry.real", "ovrn"),
        Storing("entry.bool", "ovbn"),
        Storing("entry.text", "ovtn"),
        CursorWrite("cursor.int", "osi"),
        CursorWrite("cursor.real", "osr"),
        CursorWrite("cursor.bool", "osb"),
        CursorWrite("cursor.text", "ost"),
        EntryWrite("place.int", "ovin"),
        EntryWrite("place.real", "ovrn"),
        EntryWrite("place.bool", "ovbn"),
        EntryWrite("place.text", "ovtn"),
        {"add", "oNK", 8, AddOnTwin, AddOnReal},
        {"takeaway", "os", 40, TakeAwayFromTwin, TakeAwayFromReal},
        {"copy", "osos", 20, CopyOnTwin, CopyOnReal},
        {"fromstring", "ost", 10, FromStringOnTwin, FromStringOnReal},
        {"allow", "csz", 4, AllowOnTwin, AllowOnReal},
    };
}
