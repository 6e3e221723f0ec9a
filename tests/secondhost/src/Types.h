#ifndef Types_H
#define Types_H

#include <string>
#include <vector>

#include "Component.h"
#include "ORXISpecAttrKey.h"
#include "SecondHost.h"

namespace SecondHost
{
/// One attribute of a type and of the types that derive from it. Its type never releases it, so it never dies, and is
/// not counted among what can die.
class Key final : public Component<ORXISpecAttrKey>
{
public:
    Key(const Attribute& iAttribute, std::size_t iSlot)
        : m_name(iAttribute.name), m_part(iAttribute.part), m_type(iAttribute.type), m_listType(iAttribute.listType),
          m_slot(iSlot)
    {
    }

    int GetListType() override { return m_listType; }
    int GetType() override { return m_type; }
    ORXUnicodeString GetName() override { return m_name; }

    const ORXUnicodeString& Name() const { return m_name; }
    /// Type of the component that comes with its owner; empty for none.
    const std::string& Part() const { return m_part; }
    std::size_t Slot() const { return m_slot; }

private:
    ORXUnicodeString m_name;
    std::string m_part;
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
