#ifndef TwinCursor_H
#define TwinCursor_H

/**
 * @file
 * What the twin needs of cursors: places, the moves that configurations and conditions make, and the checked
 * operations on values and lists. The texts are those that the module reports.
 */

#include "TwinHost.h"

namespace Twin
{
/// An object, one attribute of it, or a failed move.
struct Place
{
    Object* object = nullptr;
    Attribute* attribute = nullptr;
    std::string error;
};

class Cursor : public Host
{
public:
    static Place At(Object* iObject);
    Place Get(const Place& iPlace, const std::string& iName) const;
    Place GetByPath(const Place& iPlace, const std::string& iPath) const;
    /// Whether a condition holds, with what is reported on the way.
    bool Holds(const Place& iPlace, const std::string& iCondition);
    Place ApplyCondition(const Place& iPlace, const std::string& iCondition);

    HRESULT SetString(const Place& iPlace, const std::string& iValue);
    HRESULT SetInteger(const Place& iPlace, int iValue);
    HRESULT SetDouble(const Place& iPlace, double iValue);
    HRESULT SetBoolean(const Place& iPlace, bool iValue);
    HRESULT GetString(const Place& iPlace, std::string& oValue);
    HRESULT GetPlainString(const Place& iPlace, std::string& oValue);
    /// One entry of a list of values.
    HRESULT SetEntry(const Place& iPlace, const Value& iValue, int iIndex);

    HRESULT GetStrings(const Place& iPlace, Texts& oTexts);
    HRESULT SetStrings(const Place& iPlace, const Texts& iTexts);
    virtual HRESULT SetList(const Place& iPlace, const std::vector<Object*>& iObjects);
    HRESULT SetObjectAt(const Place& iPlace, Object* iValue, int iIndex);
    HRESULT Remove(const Place& iPlace, Object* iValue);
    HRESULT RemoveEntry(const Place& iPlace, int iIndex);
    HRESULT ClearList(const Place& iPlace);

protected:
    static bool HasParameter(const Place& iPlace);

private:
    bool IsOfKind(const Place& iPlace, std::initializer_list<Kind> iKinds);
    bool Compare(const Place& iPlace, const std::string& iOperator, const std::string& iRight);
};

constexpr const char* ObjectListCheck = "listType == tk_component || listType == tk_specobject";
} // namespace Twin

#endif
