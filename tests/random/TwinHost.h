#ifndef TwinHost_H
#define TwinHost_H

/**
 * @file
 * A second host, as plain structs: objects with their attributes, and nothing else. It is slow and obvious on purpose,
 * and knows nothing of the real one but what it is said to do.
 */

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ORXStatus.h"

namespace Twin
{
using Texts = std::vector<std::string>;

enum class Kind
{
    Real,
    Integer,
    Boolean,
    Enumeration,
    String,
    Component,
    Reference,
    List
};

bool HoldsObjects(Kind iKind);

/// A value of a scalar attribute. Without a value it reads as nothing.
struct Value
{
    Kind kind = Kind::String;
    bool isThere = false;
    double real = 0.0;
    /// Also the number of an enumeration's text, from 1, and 0 or 1 of a boolean.
    int integer = 0;
    /// Of a string and of an enumeration.
    std::string text;
    /// SI unit of a real that measures something.
    std::string unit;

    std::string AsString() const;
    bool operator==(const Value&) const = default;
};

Value Of(double iValue);
Value Of(int iValue);
Value Of(bool iValue);
Value Of(const std::string& iValue);

/// The number at the head of a text, as a scan reads it.
std::optional<int> ScannedInteger(const std::string& iText);
std::optional<double> ScannedReal(const std::string& iText);

struct Object;

struct Attribute
{
    std::string name;
    Kind kind = Kind::String;
    /// Kind of the entries of a list.
    Kind entry = Kind::String;
    Texts texts;
    std::string unit;
    bool isAdded = false;

    Value value;
    std::vector<Value> values;
    Object* object = nullptr;
    std::vector<Object*> objects;

    /// What a panel offers; no manipulator is something else than an empty list.
    std::optional<Texts> allowed;
};

/// What default management keeps about one object in memory. `isMade` is whether it has been asked for yet: it takes
/// the sub-feature that stands there at that moment, and keeps it.
struct Defaults
{
    bool isMade = false;
    Object* flags = nullptr;
    /// Null handles may be kept, too.
    std::map<std::string, std::optional<Value>> custom;
    bool isUpdating = false;
};

struct Object
{
    int number = 0;
    std::string type;
    std::string name;
    std::map<std::string, Attribute> attributes;
    Object* owner = nullptr;
    /// The owner's attribute that holds it.
    std::string place;
    /// The prototype; null for a prototype.
    const Object* startup = nullptr;
    /// An object that was in the model at its beginning, or made by an operation, is known by this number; 0 otherwise.
    int known = 0;

    Defaults defaults;
    bool isInConfiguration = false;
    bool wasValueChange = false;
};

class Host
{
public:
    Host();
    virtual ~Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    // ---- objects ----------------------------------------------------------------------------------------------------

    /// Makes a top-level object. Null for an unknown type.
    Object* Create(const std::string& iType, const std::string& iName);
    bool IsInModel(const Object& iObject) const;
    bool IsKindOf(const Object& iObject, const std::string& iType) const;
    static std::string PathOf(const Object& iObject);
    static Attribute* Find(Object* iObject, const std::string& iName);
    static const Attribute* Find(const Object* iObject, const std::string& iName);
    const std::vector<Object*>& TopLevel() const { return m_top; }
    bool RefersToStrays() const;
    /// Lets go of what is in no model and held by nobody: its components, if they are held, have no owner any more.
    void Bury();
    /// Whether an object was held by anything when the dead were last buried.
    bool IsLiving(const Object& iObject) const;

    /// An attribute for one object alone. False when it carries one of the name and another kind.
    bool AddAttribute(Object& ioObject, const std::string& iName, Kind iKind);

    // ---- values -----------------------------------------------------------------------------------------------------

    /// The parameter's road: by kind of what is given, texts are read. Null for an attribute without a parameter.
    void Valuate(Object& ioObject, Attribute& ioAttribute, const Value& iGiven);
    void ValuateFromString(Object& ioObject, Attribute& ioAttribute, const std::string& iText);
    void ValuateFromValue(Object& ioObject, Attribute& ioAttribute, const std::optional<Value>& iValue);
    /// The attribute store's road.
    HRESULT Store(Object& ioObject, Attribute& ioAttribute, const Value& iGiven, int iIndex);
    /// What a free-standing parameter of the attribute's type holds once that was written to it.
    static Value Volatile(const Attribute& iAttribute, const std::optional<Value>& iGiven);

    /// What a panel offers; it restricts nothing, and nobody is told.
    void Allow(Object& ioObject, Attribute& ioAttribute, const Texts& iTexts);

    // ---- objects as values, and lists -------------------------------------------------------------------------------

    HRESULT SetObject(Object& ioObject, Attribute& ioAttribute, Object* iValue, int iIndex);
    HRESULT Insert(Object& ioObject, Attribute& ioAttribute, Object* iValue, int iIndex);
    HRESULT Move(Object& ioObject, Attribute& ioAttribute, Object* iValue, int iIndex);
    HRESULT RemovePosition(Object& ioObject, Attribute& ioAttribute, int iIndex);
    HRESULT RemoveAll(Object& ioObject, Attribute& ioAttribute);
    void RemoveObject(Object& ioObject, Attribute& ioAttribute, Object* iValue);
    HRESULT SetTexts(Object& ioObject, Attribute& ioAttribute, const Texts& iTexts);

    // ---- what is compared -------------------------------------------------------------------------------------------

    Texts TakeLines() { return std::exchange(m_lines, {}); }
    Texts TakeReports() { return std::exchange(m_reports, {}); }
    /// Objects that were written, made or told since the last take.
    std::set<Object*> TakeTouched() { return std::exchange(m_touched, {}); }

    /// As if the model had been saved, closed and read again: what lives in memory only goes.
    void Reload();
    void DropExtensions();

protected:
    /// The written object's notification. @param iIsThere false when the value was taken away
    virtual void Advise(Object& ioObject, const std::string& iName, bool iIsThere, bool iIsTrue) = 0;
    /// Whether the object has an extension that is told.
    virtual bool Listens(const Object& iObject) const = 0;

    HRESULT SetFlag(Object& ioObject, const std::string& iName, bool iValue);
    void Line(const std::string& iLine) { m_lines.push_back(iLine); }
    void Report(const std::string& iText) { m_reports.push_back(iText); }
    HRESULT Fail(const std::string& iText);
    void Touch(Object& ioObject) { m_touched.insert(&ioObject); }

private:
    struct Declared
    {
        std::string base;
        std::unique_ptr<Object> startup;
    };

    void DeclareBuiltIn();
    void DeclareTypes();
    Object& Declare(const std::string& iName, const std::string& iBase);
    static Attribute& Scalar(Object& ioType, const std::string& iName, Kind iKind);
    static Attribute& ListOf(Object& ioType, const std::string& iName, Kind iEntry);
    void Part(Object& ioType, const std::string& iName, const std::string& iPartType);
    static void Offer(Object& ioType, const Texts& iChoices, const Texts& iStartups, const std::string& iValue,
                      const std::string& iDisplay);
    /// A copy of a prototype, with its components. @param iIsObject false for one that is a prototype itself
    Object* Copy(const Object& iFrom, Object* iOwner, const std::string& iPlace, bool iIsObject);
    void Relate(Object& ioObject, const Object* iStartup);

    void Told(Object& ioObject, const Attribute& iAttribute);
    void Write(Object& ioObject, Attribute& ioAttribute, const Value& iValue);
    bool MayOwn(const Object& iOwner, const Object& iPart) const;
    void Gain(Object& ioOwner, Attribute& ioAttribute, Object* iPart);
    void LoseIfGone(Object& ioOwner, Attribute& ioAttribute, Object* iPart);

    std::map<std::string, Declared> m_types;
    std::vector<std::unique_ptr<Object>> m_objects;
    std::vector<Object*> m_top;
    Texts m_lines;
    Texts m_reports;
    std::set<Object*> m_touched;
    /// By number, since the last burial; what has come later lives.
    std::vector<bool> m_living;
    /// Something has been let go of since then.
    bool m_hasLetGo = false;
};
} // namespace Twin

#endif
