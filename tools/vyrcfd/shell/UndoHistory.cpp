#include "UndoHistory.h"

#include <algorithm>
#include <utility>

namespace Tool
{
void UndoHistory::Add(std::string iCommand, const std::string& iBefore, const std::string& iAfter)
{
    Step step;
    step.command = std::move(iCommand);
    const std::size_t shorter = std::min(iBefore.size(), iAfter.size());
    const auto begin =
        std::mismatch(iBefore.begin(), iBefore.begin() + static_cast<std::ptrdiff_t>(shorter), iAfter.begin());
    step.sameBegin = static_cast<std::size_t>(begin.first - iBefore.begin());
    const auto rest = static_cast<std::ptrdiff_t>(shorter - step.sameBegin);
    const auto end = std::mismatch(iBefore.rbegin(), iBefore.rbegin() + rest, iAfter.rbegin());
    step.sameEnd = static_cast<std::size_t>(end.first - iBefore.rbegin());
    step.former = iBefore.substr(step.sameBegin, iBefore.size() - step.sameBegin - step.sameEnd);
    m_bytes += step.former.size();
    m_steps.push_back(std::move(step));
    Forget();
}

std::string UndoHistory::TextBefore(const std::string& iAfter) const
{
    const Step& step = m_steps.back();
    return iAfter.substr(0, step.sameBegin) + step.former + iAfter.substr(iAfter.size() - step.sameEnd);
}

void UndoHistory::DropLast()
{
    m_bytes -= m_steps.back().former.size();
    m_steps.pop_back();
}

void UndoHistory::Forget()
{
    while (m_steps.size() > 1 && (m_steps.size() > MostSteps || m_bytes > MostBytes))
    {
        m_bytes -= m_steps.front().former.size();
        m_steps.pop_front();
        m_hasForgotten = true;
    }
}
} // namespace Tool
