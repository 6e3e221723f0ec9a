#ifndef UndoHistory_H
#define UndoHistory_H

/**
 * @file
 * How a model has come to be what it is, so that it can be taken back.
 */

#include <cstddef>
#include <deque>
#include <string>

namespace Tool
{
/**
 * Keeps what each command has changed of the model's text. Of two texts only what lies between their common beginning
 * and their common end is kept, so that a step on a large model is small. The oldest steps are forgotten when there
 * are too many of them, or when together they are too long; the last one is always kept.
 */
class UndoHistory
{
public:
    static constexpr std::size_t MostSteps = 100;
    static constexpr std::size_t MostBytes = std::size_t{64} << 20U;

    void Add(std::string iCommand, const std::string& iBefore, const std::string& iAfter);

    bool IsEmpty() const noexcept { return m_steps.empty(); }
    /// Whether steps have been forgotten.
    bool HasForgotten() const noexcept { return m_hasForgotten; }

    /// The last command.
    const std::string& Command() const { return m_steps.back().command; }
    /// What the last command has found. @param iAfter what it has left
    std::string TextBefore(const std::string& iAfter) const;
    void DropLast();

private:
    struct Step
    {
        std::string command;
        /// Bytes that both texts begin and end with.
        std::size_t sameBegin = 0;
        std::size_t sameEnd = 0;
        /// What lies between in the text before.
        std::string former;
    };

    void Forget();

    std::deque<Step> m_steps;
    std::size_t m_bytes = 0;
    bool m_hasForgotten = false;
};
} // namespace Tool

#endif
