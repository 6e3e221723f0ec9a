#ifndef Types_H
#define Types_H

#include <string>
#include <vector>

#include "Component.h"
#include "ORXISpecAttrKey.h"

namespace SecondHost
{
/// One attribute of a type and of the types that derive from it. It is never released by its type, so it never dies.
class Key final : public Component<ORXISpecAttrKey>
{
public:
    Key(const char* iName, int iType, int iListType, std::size_t iSlot)
        : m_name(iName), m_type(iType), m_listType(iListType), m_slot(iSlot)
    {
    }

    int GetListType() override { return m_listType; }
    int GetType() override { return m_type; }
    ORXUnicodeString GetName() override { return m_name; }

    const ORXUnicodeString& Name() const { return m_name; }
    std::size_t Slot() const { return m_slot; }

private:
    ORXUnicodeString m_name;
    int m_type;
    int m_listType;
    std::size_t m_slot;
};

struct Type
{
    std::string name;
    const Type* base;
    /// The base's first, so that a key has one slot on all types.
    std::vector<Key*> keys;
};

/// Null for a type that was not declared. Valid until the process ends.
const Type* FindType(const std::string& iName);
} // namespace SecondHost

#endif
