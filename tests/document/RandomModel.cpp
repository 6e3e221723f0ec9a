#include "RandomModel.h"

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>

#include "ORXCkeGlobalFunctions.h"
#include "ORXICkeParm.h"
#include "ORXISimBCDataTableColumn.h"
#include "ORXISpecAttribute.h"
#include "ORXTypeCode.h"
#include "VYRStandaloneCatalog.h"

namespace
{
constexpr std::array Codes = {tk_double, tk_boolean, tk_enum, tk_string, tk_specobject, tk_component, tk_integer};

ORXISpecAttrKey_var KeyOf(const ORXISpecObject_var& iObject, const std::string& iName)
{
    const ORXISpecAttrAccess_var access = iObject;
    return ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iName.c_str()));
}

bool HoldsObjects(int iCode)
{
    return iCode == tk_component || iCode == tk_specobject;
}
} // namespace

VYRStandalone::Model RandomModel::Make()
{
    static const char* const types[] = {"Part", "SubPart",      "Everything",   "Rich",
                                        "Rich", "VYRCfdChoice", "VYRCfdValues", "VYRCfdConfigItem"};
    const int count = Below(5);
    for (int i = 0; i < count; ++i)
        Know(m_model.Create(types[Below(8)], Text()));
    // Changed objects may bring new ones, which are changed in their turn.
    for (int steps = 4 * count; steps > 0; --steps)
    {
        // A copy, since the list may grow meanwhile.
        const ORXISpecObject_var object =
            m_objects[static_cast<std::size_t>(Below(static_cast<int>(m_objects.size())))];
        Change(object);
    }
    for (const ORXISpecObject_var& object : m_objects)
        ForgetWhatLeft(object);
    m_objects.clear();
    return std::move(m_model);
}

void RandomModel::ForgetWhatLeft(const ORXISpecObject_var& iObject)
{
    const ORXISpecAttrAccess_var access = iObject;
    for (const VYRStandalone::AttributeInfo& info : VYRStandalone::Attributes(iObject))
    {
        if (info.type != tk_specobject && info.listType != tk_specobject)
            continue;
        const ORXISpecAttrKey_var key = KeyOf(iObject, info.name);
        const int first = info.type == tk_list ? 1 : 0;
        const int last = info.type == tk_list ? access->GetListSize(key) : 0;
        for (int i = first; key != NULL_var && i <= last; ++i)
        {
            const ORXISpecObject_var target = ORXISpecObject_var::Adopt(access->GetSpecObject(key, i));
            if (target != NULL_var && target->GetContainer() == NULL_var)
                access->SetSpecObject(key, NULL_var, i);
        }
    }
}

ORXUnicodeString RandomModel::Text()
{
    static const std::string pieces[] = {"",
                                         "a",
                                         "B.1",
                                         " ",
                                         "\"",
                                         "\\",
                                         "/",
                                         "\n",
                                         "\t",
                                         "\xC3\xA4",
                                         "\xE6\xB0\xB4",
                                         "\xF0\x9F\x8C\x8A",
                                         "\x7F",
                                         "null",
                                         "1",
                                         std::string(1, '\0'),
                                         std::string(40, 'x')};
    std::string text;
    for (int i = Below(4); i > 0; --i)
        text += pieces[Below(17)];
    return ORXUnicodeString(text.data(), text.size());
}

double RandomModel::Real()
{
    static constexpr double special[] = {0.0,
                                         -0.0,
                                         1.0,
                                         0.1,
                                         -1e22,
                                         5e-324,
                                         std::numeric_limits<double>::max(),
                                         1e-7,
                                         1e15,
                                         1e16,
                                         1.0 / 3,
                                         std::numeric_limits<double>::min()};
    if (Below(2) == 0)
        return special[Below(12)];
    std::uint64_t bits = m_random();
    bits = bits << 32 | m_random();
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof(value));
    return std::isfinite(value) ? value : 0.5;
}

int RandomModel::Integer()
{
    static constexpr int special[] = {0, 1, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    return Below(2) == 0 ? special[Below(5)] : static_cast<int>(m_random());
}

ORXISpecObject_var RandomModel::Anyone()
{
    const auto index = static_cast<std::size_t>(Below(static_cast<int>(m_objects.size()) + 1));
    return index < m_objects.size() ? m_objects[index] : ORXISpecObject_var();
}

ORXISpecObject_var RandomModel::NewComponent()
{
    ORXISpecObject_var component;
    if (Below(4) == 0)
    {
        component = VYRStandalone::MakeTableColumn();
        const ORXISimBCDataTableColumn_var column = component;
        for (int row = Below(4); row > 0; --row)
            column->SetValue(column->GetRowCount() + 1, Real());
    }
    else
        // Never of the type of what comes with an owner: see ChangeObject.
        component = m_model.Create(Below(2) == 0 ? "SubPart" : "Everything", Text());
    return component;
}

void RandomModel::Know(const ORXISpecObject_var& iObject)
{
    m_objects.push_back(iObject);
    for (const VYRStandalone::AttributeInfo& info : VYRStandalone::Attributes(iObject))
    {
        if (info.type != tk_component)
            continue;
        const ORXISpecAttrAccess_var access = iObject;
        const ORXISpecObject_var component =
            ORXISpecObject_var::Adopt(access->GetSpecObject(KeyOf(iObject, info.name)));
        if (component != NULL_var)
            Know(component);
    }
}

void RandomModel::Change(const ORXISpecObject_var& iObject)
{
    const int kind = Below(10);
    if (kind == 0)
        GiveNames(iObject);
    else if (kind <= 2)
        AddAttribute(iObject);
    else
    {
        const std::vector<VYRStandalone::AttributeInfo> infos = VYRStandalone::Attributes(iObject);
        for (int i = Below(6); i > 0 && !infos.empty(); --i)
        {
            const ORXISpecAttrKey_var key =
                KeyOf(iObject, infos[static_cast<std::size_t>(Below(static_cast<int>(infos.size())))].name);
            if (key != NULL_var)
                ChangeAttribute(iObject, key);
        }
    }
}

void RandomModel::ChangeAttribute(const ORXISpecObject_var& iObject, const ORXISpecAttrKey_var& iKey)
{
    if (HoldsObjects(iKey->GetType()))
        ChangeObject(iObject, iKey);
    else if (HoldsObjects(iKey->GetListType()))
        ChangeObjectList(iObject, iKey);
    else if (iKey->GetType() == tk_list)
        ChangeList(iObject, iKey);
    else
        ChangeScalar(iObject, iKey);
}

void RandomModel::ChangeScalar(const ORXISpecObject_var& iObject, const ORXISpecAttrKey_var& iKey)
{
    const ORXISpecAttrAccess_var access = iObject;
    if (Below(4) == 0)
    {
        const ORXICkeParm_var parameter = ORXCke_GetParm(access, iKey, 1);
        const ORXICkeType_var type = parameter->GetType();
        parameter->ValuateFromValue(ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(type, "none")->GetValue());
        return;
    }
    switch (iKey->GetType())
    {
    case tk_double:
        access->SetDouble(iKey, Real());
        break;
    case tk_boolean:
        access->SetBoolean(iKey, Below(2) == 0 ? ORXTrue : ORXFalse);
        break;
    case tk_string:
        access->SetString(iKey, Text());
        break;
    case tk_enum:
        access->SetInteger(iKey, 1 + Below(2));
        break;
    default:
        access->SetInteger(iKey, Integer());
        break;
    }
}

void RandomModel::ChangeObject(const ORXISpecObject_var& iObject, const ORXISpecAttrKey_var& iKey)
{
    const ORXISpecAttrAccess_var access = iObject;
    if (iKey->GetType() == tk_specobject)
    {
        access->SetSpecObject(iKey, Anyone());
        return;
    }
    // What leaves the model must not be referred to from it: only an empty place is filled, and nothing is moved.
    if (ORXISpecObject_var::Adopt(access->GetSpecObject(iKey)) != NULL_var || Below(3) == 0)
        return;
    const ORXISpecObject_var component = NewComponent();
    if (access->SetSpecObject(iKey, component) == S_OK)
        Know(component);
}

void RandomModel::ChangeList(const ORXISpecObject_var& iObject, const ORXISpecAttrKey_var& iKey)
{
    const ORXISpecAttrAccess_var access = iObject;
    const int size = access->GetListSize(iKey);
    if (iKey->GetListType() == tk_string)
    {
        ORXListValORXUnicodeString texts;
        for (int i = Below(4); i > 0; --i)
            texts.Append(Text());
        access->SetStringList(iKey, texts);
    }
    else if (size > 0 && Below(5) == 0)
        access->RemovePosition(iKey, 1 + Below(size));
    else if (size > 0 && iKey->GetListType() == tk_double)
        access->SetDouble(iKey, Real(), 1 + Below(size));
}

void RandomModel::ChangeObjectList(const ORXISpecObject_var& iObject, const ORXISpecAttrKey_var& iKey)
{
    const ORXISpecAttrAccess_var access = iObject;
    const int size = access->GetListSize(iKey);
    const int place = 1 + Below(size + 1);
    if (iKey->GetListType() == tk_specobject)
        access->InsertAtPosition(iKey, Anyone(), place);
    else if (size > 0 && Below(3) == 0)
        // Again, or an empty entry again.
        access->InsertAtPosition(iKey, ORXISpecObject_var::Adopt(access->GetSpecObject(iKey, 1 + Below(size))), place);
    else
    {
        const ORXISpecObject_var component = Below(4) == 0 ? ORXISpecObject_var() : NewComponent();
        if (access->InsertAtPosition(iKey, component, place) == S_OK && component != NULL_var)
            Know(component);
    }
}

void RandomModel::AddAttribute(const ORXISpecObject_var& iObject)
{
    static const char* const optional[] = {"mayReal",   "mayLength",    "mayInteger", "mayBoolean", "mayEnumeration",
                                           "mayString", "mayReference", "mayStrings", "mayOthers"};
    // Wrong kinds and names that are there already are refused.
    ORXUnicodeString name = Text();
    int code = Codes[static_cast<std::size_t>(Below(Codes.size()))];
    if (Below(2) == 0)
    {
        name = optional[Below(9)];
        const ORXISpecAttrKey_var key = KeyOf(iObject, name.CastToCharPtr());
        code = key != NULL_var ? key->GetType() : code;
    }
    if (ORXISpecAttribute* attribute = iObject->AddAttribute(name, code, Integer()))
        attribute->Release();
}

void RandomModel::GiveNames(const ORXISpecObject_var& iObject)
{
    if (Below(2) == 0)
        VYRStandalone::SetAlias(iObject, Text());
    else
        VYRStandalone::SetIdentifier(iObject, Text());
}
