#include "EntryList.h"

#include <charconv>

#include "AttributeReader.h"
#include "Failure.h"
#include "ORXTypeCode.h"
#include "Snapshot.h"
#include "Wording.h"

namespace Tool
{
VYRStandalone::AttributeInfo InfoOf(const Target& iTarget)
{
    for (const VYRStandalone::AttributeInfo& attribute : VYRStandalone::Attributes(iTarget.object))
        if (attribute.name == iTarget.attribute)
            return attribute;
    throw Failure("no attribute " + Quoted(iTarget.attribute));
}

EntryList::EntryList(const Target& iTarget, std::string iPath)
    : m_path(std::move(iPath)), m_access(iTarget.object),
      m_key(ORXISpecAttrKey_var::Adopt(m_access->GetAttrKey(iTarget.attribute.c_str()))), m_info(InfoOf(iTarget))
{
    if (m_info.type != tk_list)
        throw Failure(Quoted(m_path) + " is a " + AttributeSnapshot{m_info, {}, {}, {}}.KindText() + ", no list");
}

VYRStandalone::AttributeInfo EntryList::EntryInfo() const
{
    VYRStandalone::AttributeInfo info = m_info;
    info.type = info.listType;
    return info;
}

bool EntryList::HoldsObjects() const
{
    return !IsScalar(m_info.listType);
}

bool EntryList::HoldsParts() const
{
    return m_info.listType == tk_component;
}

int EntryList::Position(const std::string& iText, int iLast) const
{
    int position = 0;
    const std::from_chars_result end = std::from_chars(iText.data(), iText.data() + iText.size(), position);
    const bool isNumber = end.ec == std::errc() && end.ptr == iText.data() + iText.size();
    if (isNumber && position >= 1 && position <= iLast)
        return position;
    if (iLast == 0)
        throw Failure(Quoted(m_path) + " has no entries");
    throw Failure(Quoted(iText) + " is no position from 1 to " + std::to_string(iLast) + " in " + Quoted(m_path));
}

ORXISpecObject_var EntryList::At(int iPosition) const
{
    return ORXISpecObject_var::Adopt(m_access->GetSpecObject(m_key, iPosition));
}

int EntryList::Count(const ORXISpecObject_var& iObject) const
{
    int count = 0;
    for (const ORXISpecObject_var& entry : ReadObjects(m_access, m_info.name))
        count += !!entry && entry->IsEqual(iObject.Pointer()) != 0 ? 1 : 0;
    return count;
}

void EntryList::Insert(const ORXISpecObject_var& iObject, int iPosition) const
{
    if (m_access->InsertAtPosition(m_key, iObject, iPosition) < 0)
        throw Failure(Quoted(m_path) + " did not take the object" +
                      (HoldsParts() ? ", which must not come to stand inside of itself" : ""));
}

void EntryList::Insert(const std::string& iText, int iPosition) const
{
    ORXListValORXUnicodeString texts;
    for (int position = 1; position <= Size() + 1; ++position)
        if (position == iPosition)
            texts.Append(ORXUnicodeString(iText.data(), iText.size()));
        else
            texts.Append(m_access->GetString(m_key, position < iPosition ? position : position - 1));
    if (m_access->SetStringList(m_key, texts) < 0)
        throw Failure(Quoted(m_path) + " did not take the entry");
}

void EntryList::Touch(int iPosition) const
{
    long status = E_FAIL;
    if (m_info.listType == tk_double)
        status = m_access->SetDouble(m_key, m_access->GetDouble(m_key, iPosition), iPosition);
    else if (m_info.listType == tk_boolean)
        status = m_access->SetBoolean(m_key, m_access->GetBoolean(m_key, iPosition), iPosition);
    else
        status = m_access->SetInteger(m_key, m_access->GetInteger(m_key, iPosition), iPosition);
    if (status < 0)
        throw Failure(Quoted(m_path) + " did not take the entry");
}

void EntryList::Remove(int iPosition) const
{
    if (m_access->RemovePosition(m_key, iPosition) < 0)
        throw Failure(Quoted(m_path) + " did not give up its entry " + std::to_string(iPosition));
}
} // namespace Tool
