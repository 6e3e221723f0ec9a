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

    /// Of the value at a path such as "/types/0/name"; where something of the path is not there, of what is there last.
    SourcePosition PositionAt(const std::string& iPath) const;

private:
    std::string m_path;
    /// In the order in which they begin; entries stay where they are.
    std::deque<SourceValue> m_values;
};
} // namespace Tool

#endif
