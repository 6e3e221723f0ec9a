/**
 * @file
 * Parameters, their types and their values: the road on which the cursor reads and writes scalars.
 */

#include <charconv>

#include "Component.h"
#include "ORXCkeGlobalFunctions.h"
#include "ORXICkeParm.h"
#include "ORXISpecAttrAccess.h"
#include "SecondHost.h"

namespace SecondHost
{
namespace
{
class KnowledgeType final : public Component<ORXICkeType>
{
public:
    KnowledgeType(const char* iName, int iCode) : m_name(iName), m_code(iCode) {}

    ORXCke::Boolean IsaKindOf(const ORXUnicodeString& iTypeName) override
    {
        return ORXCke::Boolean::Of(iTypeName == m_name);
    }
    ORXCke::Boolean IsaKindOf(const ORXICkeType_var& iType) override
    {
        return ORXCke::Boolean::Of(IsEqual(iType) != 0);
    }
    ORXCke::Boolean IsaReal() override { return ORXCke::Boolean::Of(m_code == tk_double); }
    ORXCke::Boolean IsaBoolean() override { return ORXCke::Boolean::Of(m_code == tk_boolean); }
    ORXCke::Boolean IsaInteger() override { return ORXCke::Boolean::Of(m_code == tk_integer); }
    ORXCke::Boolean IsaString() override { return ORXCke::Boolean::Of(m_code == tk_string); }

private:
    const char* m_name;
    int m_code;
};

/// Types live until the process ends, and are not counted among the components that can die.
ORXICkeType_var TypeOf(int iCode)
{
    static auto* const real = ::new KnowledgeType("Real", tk_double);
    static auto* const integer = ::new KnowledgeType("Integer", tk_integer);
    static auto* const boolean = ::new KnowledgeType("Boolean", tk_boolean);
    static auto* const string = ::new KnowledgeType("String", tk_string);
    return ORXICkeType_var::Share(iCode == tk_double    ? real
                                  : iCode == tk_integer ? integer
                                  : iCode == tk_boolean ? boolean
                                                        : string);
}

class Snapshot final : public Component<ORXIValue>
{
public:
    Snapshot(double iNumber, const ORXUnicodeString& iText) : m_number(iNumber), m_text(iText) {}

    /// Nobody here asks whether an attribute has a value.
    int IsValuated() override { return 1; }
    int AsInteger() override { return static_cast<int>(m_number); }
    double AsReal() override { return m_number; }
    ORXUnicodeString AsString() override { return m_text; }
    ORXCke::Boolean AsBoolean() override { return ORXCke::Boolean::Of(IsTrue()); }
    bool IsTrue() override { return m_number != 0.0; }

private:
    double m_number;
    ORXUnicodeString m_text;
};

ORXUnicodeString TextOf(double iNumber)
{
    char text[32];
    const std::to_chars_result end = std::to_chars(std::begin(text), std::end(text), iNumber);
    return ORXUnicodeString(text, static_cast<std::size_t>(end.ptr - text));
}

/// A write of the wrong kind is one that the attribute store refuses.
class Parameter final : public Component<ORXICkeParm>
{
public:
    Parameter(ORXISpecAttrAccess* iAccess, ORXISpecAttrKey* iKey)
        : m_access(ORXISpecAttrAccess_var::Share(iAccess)), m_key(ORXISpecAttrKey_var::Share(iKey))
    {
    }

    ORXICkeType_var GetType() override { return TypeOf(m_key->GetType()); }

    ORXIValue_var GetValue() override
    {
        const int type = m_key->GetType();
        const double number = type == tk_double    ? m_access->GetDouble(m_key)
                              : type == tk_integer ? m_access->GetInteger(m_key)
                                                   : m_access->GetBoolean(m_key);
        const ORXUnicodeString text = type == tk_string    ? m_access->GetString(m_key)
                                      : type == tk_boolean ? ORXUnicodeString(number != 0.0 ? "true" : "false")
                                                           : TextOf(number);
        return ORXIValue_var::Adopt(new Snapshot(number, text));
    }

    void Valuate(const ORXCke::Boolean& iValue) override
    {
        m_access->SetBoolean(m_key, iValue != 0 ? ORXTrue : ORXFalse);
    }
    void Valuate(const ORXUnicodeString& iText) override
    {
        double number = 0.0;
        if (m_key->GetType() == tk_string)
            m_access->SetString(m_key, iText);
        else if (m_key->GetType() == tk_double && iText.ConvertToNum(&number) != 0)
            m_access->SetDouble(m_key, number);
    }
    void Valuate(double iValue) override { m_access->SetDouble(m_key, iValue); }
    void Valuate(int iValue) override
    {
        m_access->SetInteger(m_key, iValue);
        m_access->SetDouble(m_key, iValue);
    }
    void ValuateFromString(const ORXUnicodeString& iText) override { Valuate(iText); }

    void ValuateFromValue(const ORXIValue_var&) override { NotOffered("ORXICkeParm::ValuateFromValue"); }
    ORXICkeManipulator_var CreateManipulator() override { NotOffered("ORXICkeParm::CreateManipulator"); }
    ORXICkeManipulator_var GetManipulator() override { return NULL_var; }

private:
    ORXISpecAttrAccess_var m_access;
    ORXISpecAttrKey_var m_key;
};
} // namespace
} // namespace SecondHost

ORXICkeParm_var ORXCke_GetParm(ORXISpecAttrAccess* iAccess, ORXISpecAttrKey* iKey, int)
{
    if (iAccess == nullptr || iKey == nullptr || iAccess->HasAttribute(iKey) == ORXFalse)
        return NULL_var;
    switch (iKey->GetType())
    {
    case tk_double:
    case tk_integer:
    case tk_boolean:
    case tk_string:
        return ORXICkeParm_var::Adopt(new SecondHost::Parameter(iAccess, iKey));
    default:
        return NULL_var;
    }
}

// Both may be null; types are then told by their own questions.
ORXIParmDictionary_var ORXCkeGlobalFunctions::GetParmDictionary()
{
    return NULL_var;
}

ORXICkeParmFactory_var ORXCkeGlobalFunctions::GetVolatileFactory()
{
    return NULL_var;
}
