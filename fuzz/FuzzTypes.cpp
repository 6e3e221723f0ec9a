#include "FuzzTypes.h"

#include <cstdint>
#include <cstring>

#include "FuzzTarget.h"
#include "ORXISpecAttrAccess.h"
#include "VYRStandaloneCatalog.h"

namespace FuzzTypes
{
namespace
{
constexpr char Catalog[] = R"({"catalog": "Fuzz", "uses": ["VYRCfdBase"], "types": [
    {"name": "FuzzPart", "base": "VYRCfdValues", "attributes": [
        {"name": "size", "kind": "real", "default": 2.5},
        {"name": "length", "kind": "real", "unit": "m", "default": "5 mm"},
        {"name": "count", "kind": "integer", "default": 3},
        {"name": "label", "kind": "string"},
        {"name": "on", "kind": "boolean"},
        {"name": "mode", "kind": "enumeration", "values": ["low", "high"], "default": "low"},
        {"name": "inside", "kind": "component"}]},
    {"name": "FuzzSubPart", "base": "FuzzPart", "attributes": [{"name": "extra", "kind": "integer", "default": 3}]},
    {"name": "FuzzChoice", "base": "VYRCfdChoice",
     "startup": {"choices": ["none", "part", "sub"], "Startups": ["", "FuzzPart", "FuzzSubPart"], "value": "none",
                 "display": "A choice"}},
    {"name": "FuzzManaged", "base": "FuzzChoice", "manager": true},
    {"name": "FuzzSolver", "base": "VYRCfdValues", "attributes": [
        {"name": "real", "kind": "real"},
        {"name": "pressure", "kind": "real", "unit": "Pa"},
        {"name": "temperature", "kind": "real", "unit": "K"},
        {"name": "integer", "kind": "integer"},
        {"name": "boolean", "kind": "boolean"},
        {"name": "enumeration", "kind": "enumeration", "values": ["low", "high", "1"]},
        {"name": "string", "kind": "string"},
        {"name": "preset", "kind": "string", "default": "given"},
        {"name": "perhaps", "kind": "real", "optional": true},
        {"name": "maybe", "kind": "list", "of": "string", "optional": true},
        {"name": "reals", "kind": "list", "of": "real", "unit": "m", "default": [1, "2.5 mm"]},
        {"name": "integers", "kind": "list", "of": "integer"},
        {"name": "booleans", "kind": "list", "of": "boolean"},
        {"name": "enumerations", "kind": "list", "of": "enumeration", "values": ["low", "high"]},
        {"name": "strings", "kind": "list", "of": "string", "default": ["a", ""]},
        {"name": "choice", "kind": "component", "type": "FuzzChoice"},
        {"name": "managed", "kind": "component", "type": "FuzzManaged"},
        {"name": "part", "kind": "component", "type": "FuzzPart"},
        {"name": "anything", "kind": "component"},
        {"name": "parts", "kind": "list", "of": "component"},
        {"name": "SonsList", "kind": "list", "of": "component"},
        {"name": "other", "kind": "reference"},
        {"name": "others", "kind": "list", "of": "reference"}],
     "startup": {"part": {"label": "of the owner"}, "managed": {"value": "part"}}}]})";

constexpr char Sample[] = R"({"model": 1, "catalogs": ["Fuzz"], "objects": [
    {"type": "FuzzSolver", "name": "S", "id": 1, "values": {
        "real": 0.5, "pressure": "1 bar", "integer": -3, "boolean": true, "enumeration": "high", "string": "text",
        "choice": {"values": {"value": "part", "Data": {"type": "FuzzPart", "name": "PartInst"}}},
        "anything": {"column": [1.5, 2.5]},
        "parts": [{"type": "FuzzPart", "name": "A", "alias": "2", "identifier": "I-1", "id": 2},
                  {"type": "FuzzSubPart", "name": "FuzzPart", "id": 3},
                  {"type": "FuzzPart", "name": "A", "alias": "FuzzSubPart"},
                  {"type": "FuzzPart", "name": "\u00e9/t\u00e9", "alias": "\u4e2d"}],
        "SonsList": [{"type": "FuzzSolver", "name": "Son", "id": 4, "values": {"other": {"ref": 1}}},
                     {"type": "FuzzPart", "name": "real"}],
        "other": {"ref": 1}, "others": [{"ref": 2}, null, {"ref": 4}]}},
    {"type": "FuzzSolver", "name": "T", "alias": "Second", "values": {"others": [{"ref": 3}]}}]})";

void Add(const ORXISpecObject_var& iObject, std::vector<ORXISpecObject_var>& oObjects)
{
    const ORXISpecAttrAccess_var access = iObject;
    oObjects.push_back(iObject);
    for (const VYRStandalone::AttributeInfo& attribute : VYRStandalone::Attributes(iObject))
    {
        const bool isList = attribute.type == tk_list;
        if ((isList ? attribute.listType : attribute.type) != tk_component)
            continue;
        const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey(attribute.name.c_str()));
        const int size = isList ? access->GetListSize(key) : 0;
        for (int index = isList ? 1 : 0; index <= size; ++index)
            if (const auto part = ORXISpecObject_var::Adopt(access->GetSpecObject(key, index)))
                Add(part, oObjects);
    }
}

std::string Scalar(const ORXISpecAttrAccess_var& iAccess, ORXISpecAttrKey* iKey, int iType, int iIndex)
{
    if (iType == tk_double)
    {
        // Bit by bit: -0.0 is another value than 0.0.
        const double real = iAccess->GetDouble(iKey, iIndex);
        std::uint64_t bits = 0;
        std::memcpy(&bits, &real, sizeof bits);
        return std::to_string(bits);
    }
    if (iType == tk_string)
        return std::string(iAccess->GetString(iKey, iIndex).View());
    if (iType == tk_boolean)
        return std::to_string(static_cast<int>(iAccess->GetBoolean(iKey, iIndex)));
    if (iType == tk_integer || iType == tk_enum)
        return std::to_string(iAccess->GetInteger(iKey, iIndex));
    const auto object = ORXISpecObject_var::Adopt(iAccess->GetSpecObject(iKey, iIndex));
    return object ? VYRStandalone::PathOf(object) : "null";
}

/// What the host's interfaces tell of an object, without the code that writes documents.
std::string Told(const ORXISpecObject_var& iObject)
{
    const ORXISpecAttrAccess_var access = iObject;
    std::string text = VYRStandalone::PathOf(iObject) + " " + std::string(iObject->GetType().View()) + "\n";
    for (const VYRStandalone::AttributeInfo& attribute : VYRStandalone::Attributes(iObject))
    {
        const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey(attribute.name.c_str()));
        text += attribute.name + (attribute.added ? " added" : "") + " " + std::to_string(attribute.type);
        if (attribute.type != tk_list)
            text += " = " + Scalar(access, key, attribute.type, 0);
        for (int index = 1; attribute.type == tk_list && index <= access->GetListSize(key); ++index)
            text += "\n  " + Scalar(access, key, attribute.listType, index);
        text += "\n";
    }
    return text;
}
} // namespace

void Declare()
{
    static const bool isDeclared = [] {
        VYRStandalone::DeclareCatalog(Catalog, "Fuzz");
        return true;
    }();
    static_cast<void>(isDeclared);
}

std::string SampleModel()
{
    return Sample;
}

std::vector<ORXISpecObject_var> AllObjects(const VYRStandalone::Model& iModel)
{
    std::vector<ORXISpecObject_var> objects;
    for (const ORXISpecObject_var& object : iModel.Objects())
        Add(object, objects);
    return objects;
}

void DemandRoundTrip(const VYRStandalone::Model& iModel)
{
    const std::string text = iModel.Text();
    const VYRStandalone::Model again = VYRStandalone::Model::Parse(text, "saved");
    DemandSame(again.Text(), text, "a loaded model saves as the one that it was saved from");
    std::string told;
    std::string toldAgain;
    for (const ORXISpecObject_var& object : AllObjects(iModel))
        told += Told(object);
    for (const ORXISpecObject_var& object : AllObjects(again))
        toldAgain += Told(object);
    DemandSame(toldAgain, told, "a loaded model is the one that was saved");
}
} // namespace FuzzTypes
