/**
 * @file
 * Conditions. The first line of the input is the condition, the second one a text from which the attributes get their
 * values.
 *
 * The verdict is that of an evaluator that is built on the standard streams, and a condition that cannot be parsed is
 * told so.
 */

#include <limits>

#include "FuzzTarget.h"
#include "FuzzTypes.h"
#include "NaiveText.h"
#include "NaiveWalk.h"
#include "ORXISimBCDataTableColumn.h"
#include "VYRCfdObjectCondition.h"
#include "VYRStandaloneErrors.h"

namespace
{
using VYRStandalone::Model;

struct Parsed
{
    bool isGood = false;
    std::string path;
    std::string sign;
    std::string right;
};

/// The first operator that stands anywhere behind the first character, in this order.
Parsed Parse(const std::string& iCondition)
{
    Parsed parsed;
    const Naive::Characters text = Naive::CharactersOf(iCondition);
    for (const char* sign : {"==", "!=", "<=", ">=", "<", ">", "="})
    {
        const Naive::Characters wanted = Naive::CharactersOf(sign);
        const int at = Naive::Find(text, wanted, 0);
        if (at <= 0)
            continue;
        const auto position = static_cast<std::size_t>(at);
        parsed.path = Naive::TextOf(text, 0, position);
        parsed.right = Naive::TextOf(text, position + wanted.size(), text.size());
        parsed.sign = wanted.size() == 1 && wanted[0] == "=" ? "==" : sign;
        parsed.isGood = !parsed.right.empty();
        break;
    }
    return parsed;
}

template <class Number> bool Compare(Number iLeft, const std::string& iSign, Number iRight)
{
    if (iSign == "==")
        return iLeft == iRight;
    if (iSign == "!=")
        return iLeft != iRight;
    if (iSign == "<=")
        return iLeft <= iRight;
    if (iSign == ">=")
        return iLeft >= iRight;
    return iSign == "<" ? iLeft < iRight : iLeft > iRight;
}

bool CompareReal(double iLeft, const Parsed& iParsed)
{
    double right = 0.0;
    return Naive::Extract(iParsed.right, right) && Compare(iLeft, iParsed.sign, right);
}

bool CompareInteger(int iLeft, const Parsed& iParsed)
{
    int right = 0;
    // The smallest integer stands for none.
    return Naive::Extract(iParsed.right, right) && right != std::numeric_limits<int>::min() &&
           Compare(iLeft, iParsed.sign, right);
}

/// An object is compared only when it is a table column with rows.
bool EvaluateColumn(const ORXISpecObject_var& iObject, const Parsed& iParsed)
{
    const ORXISimBCDataTableColumn_var column = iObject;
    double value = 0.0;
    return column && column->GetRowCount() > 0 && column->GetValue(0, value) >= 0 && CompareReal(value, iParsed);
}

bool Evaluate(const Naive::Place& iPlace, const Parsed& iParsed)
{
    if (!iPlace.error.empty())
        return false;
    if (!iPlace.key)
        return EvaluateColumn(iPlace.object, iParsed);
    const ORXISpecAttrAccess_var access = iPlace.object;
    if (access->HasAttribute(iPlace.key) == ORXFalse)
        return false;
    switch (iPlace.key->GetType())
    {
    case tk_double:
        return CompareReal(access->GetDouble(iPlace.key), iParsed);
    case tk_integer:
    case tk_enum:
        return CompareInteger(access->GetInteger(iPlace.key), iParsed);
    case tk_string:
        return (iParsed.sign == "==" && access->GetString(iPlace.key).View() == iParsed.right) ||
               (iParsed.sign == "!=" && access->GetString(iPlace.key).View() != iParsed.right);
    case tk_boolean:
        return access->GetBoolean(iPlace.key) != ORXFalse;
    default:
        return false;
    }
}

void Write(const ORXISpecObject_var& iObject, const std::string& iText)
{
    const ORXISpecAttrAccess_var access = iObject;
    const auto key = [&](const char* iName) { return ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iName)); };
    double real = 0.0;
    int integer = 0;
    Naive::Extract(iText, real);
    Naive::Extract(iText, integer);
    access->SetDouble(key("real"), real);
    access->SetInteger(key("integer"), integer);
    access->SetInteger(key("enumeration"), 1 + static_cast<int>(iText.size() % 3));
    access->SetBoolean(key("boolean"), iText.size() % 2 != 0 ? ORXTrue : ORXFalse);
    access->SetString(key("string"), ORXUnicodeString(iText.data(), iText.size()));
}

const Model& SampleModel()
{
    static const Model* const model = [] {
        FuzzTypes::Declare();
        UseForeignNumbers();
        return new Model(Model::Parse(FuzzTypes::SampleModel(), "sample"));
    }();
    return *model;
}
} // namespace

void RunInput(std::string_view iInput)
{
    const TwoTexts texts = SplitInput(iInput);
    const ORXISpecObject_var object = SampleModel().Objects().front();
    Write(object, texts.second);

    const Parsed parsed = Parse(texts.first);
    const Naive::Place place = parsed.isGood ? Naive::ByPath(Naive::PlaceOf(object), parsed.path) : Naive::Place();
    const bool expected = texts.first.empty() || (parsed.isGood && !place.isFatal && Evaluate(place, parsed));

    const ORXUnicodeString text(texts.first.data(), texts.first.size());
    const VYRCfdObjectAccess access{ORXBaseUnknown_var(object)};
    const VYRCfdObjectCondition condition(access, text);
    const bool isBad = !texts.first.empty() && !parsed.isGood;
    DemandSame(condition.GetError().View(), isBad ? "Bad condition: " + texts.first : "", "a bad condition is told");
    try
    {
        Demand(static_cast<bool>(condition) == expected, "the verdict is the same", JsonText(texts.first));
        DemandSame(access.ApplyCondition(text).GetError().View(), expected ? "" : "Condition not met",
                   "the cursor goes on when the condition holds");
        Demand(!place.isFatal, "a list with an empty entry is fatal to a search by name");
    }
    catch (const VYRStandalone::NullPointerError&)
    {
        Demand(place.isFatal, "only an empty entry of a list is fatal");
    }
}
