#ifndef DocumentNode_H
#define DocumentNode_H

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <rapidjson/document.h>

#include "Scalar.h"

namespace VYRStandalone
{
/**
 * One place in a JSON document that is read strictly: every expectation that does not hold throws a DocumentError with
 * the file and the path of the place.
 *
 * A node refers to the one that it was reached from, which therefore has to stay; the operations that give nodes
 * cannot be called on temporaries.
 */
class DocumentNode
{
public:
    /// The root of a document. Both arguments must outlive all nodes.
    DocumentNode(const std::string& iFile, const rapidjson::Value& iValue) : m_file(&iFile), m_value(&iValue) {}

    /// Parses a text. @throws DocumentError for wrong syntax
    static void Parse(std::string_view iJson, const std::string& iFile, rapidjson::Document& oDocument);

    const std::string& File() const noexcept { return *m_file; }
    /// Such as "/objects/3/values/relaxation"; the root's is "".
    std::string Path() const;
    [[noreturn]] void Fail(const std::string& iMessage) const;
    /// At a member that is missing or must not be there.
    [[noreturn]] void FailAt(std::string_view iKey, const std::string& iMessage) const;

    bool IsNull() const { return m_value->IsNull(); }
    bool IsObject() const { return m_value->IsObject(); }
    bool IsArray() const { return m_value->IsArray(); }
    bool IsText() const { return m_value->IsString(); }
    /// A whole number, also one that no attribute can hold.
    bool IsWhole() const { return m_value->IsInt64() || m_value->IsUint64(); }

    /// @name Objects
    /// @{
    /// An object whose keys are all different.
    void ExpectObject() const;
    /// The same with no other keys than these.
    void ExpectKeys(std::initializer_list<std::string_view> iAllowed) const;
    std::optional<DocumentNode> Find(std::string_view iKey) const&;
    std::optional<DocumentNode> Find(std::string_view iKey) const&& = delete;
    DocumentNode Require(std::string_view iKey) const&;
    DocumentNode Require(std::string_view iKey) const&& = delete;
    /// All members in their order.
    std::vector<DocumentNode> Members() const&;
    std::vector<DocumentNode> Members() const&& = delete;
    /// The key under which this member was found.
    std::string_view Key() const noexcept { return m_key; }
    /// @}

    /// @name Arrays
    /// @{
    /// The elements of what must be an array.
    std::vector<DocumentNode> Elements() const&;
    std::vector<DocumentNode> Elements() const&& = delete;
    /// @}

    /// @name Values
    /// @{
    std::string Text() const;
    std::string NonEmptyText() const;
    ORXUnicodeString UnicodeText() const;
    bool Boolean() const;
    std::int64_t Whole() const;
    double Number() const;
    /// Texts of an array, none empty.
    std::vector<std::string> Texts() const;
    /// A number, a text, a boolean or null. A whole number that does not fit into an integer is a real.
    DeclaredScalar Single() const;
    /// @}

private:
    DocumentNode(const DocumentNode& iParent, const rapidjson::Value& iValue, std::string_view iKey, std::size_t iIndex)
        : m_file(iParent.m_file), m_parent(&iParent), m_value(&iValue), m_key(iKey), m_index(iIndex)
    {
    }

    [[noreturn]] void FailKind(const char* iWanted) const;
    const char* KindText() const;

    const std::string* m_file;
    const DocumentNode* m_parent = nullptr;
    const rapidjson::Value* m_value;
    std::string_view m_key;
    /// Of an array's element; its key has no data.
    std::size_t m_index = 0;
};
} // namespace VYRStandalone

#endif
