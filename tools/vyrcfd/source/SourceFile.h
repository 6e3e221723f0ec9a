#ifndef SourceFile_H
#define SourceFile_H

/**
 * @file
 * A JSON file with the places of everything in it.
 */

#include <deque>
#include <string>

#include "SourceValue.h"

namespace Tool
{
/// A step of a JSON pointer as the key that it stands for.
std::string KeyOfStep(std::string iStep);

/// Owns the values of a file. Their nesting may have any depth: none of it is held recursively.
class SourceFile
{
public:
    /// Reads a file of any shape, as strictly as the host does. @throws VYRStandalone::DocumentError
    explicit SourceFile(const std::string& iPath);

    /// Values refer to each other.
    SourceFile(SourceFile&&) noexcept = default;
    SourceFile& operator=(SourceFile&&) noexcept = default;
    SourceFile(const SourceFile&) = delete;
    SourceFile& operator=(const SourceFile&) = delete;
    ~SourceFile() = default;

    const std::string& Path() const noexcept { return m_path; }
    const SourceValue& Root() const noexcept { return m_values.front(); }

    /// What stands at a path such as "/types/0/name", a JSON pointer; where something of the path is not there, what is
    /// there last. Without key for an element of an array and for the whole.
    SourceMember MemberAt(const std::string& iPath) const;
    /// Of the value there.
    SourcePosition PositionAt(const std::string& iPath) const { return MemberAt(iPath).value->position; }

private:
    std::string m_path;
    /// In the order in which they begin; entries stay where they are.
    std::deque<SourceValue> m_values;
};
} // namespace Tool

#endif
