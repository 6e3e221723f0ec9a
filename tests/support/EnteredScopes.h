#ifndef EnteredScopes_H
#define EnteredScopes_H

/**
 * @file
 * The function scopes that an action enters, for comparison as a whole.
 */

#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "ChannelSwap.h"
#include "VYRCfdTraceManager.h"

/// Lines such as "> VYRCfdObjectAccess::List [30]", in their order, indented by two blanks a level, without line ends.
/// @param iDeepest scopes of greater levels are left out
inline std::vector<std::string> EnteredScopes(int iDeepest, const std::function<void()>& iAction)
{
    ChannelSwap features(VYRCfdTraceManager::_Features);
    iAction();
    std::vector<std::string> lines;
    for (const std::string& text : features.Take())
    {
        const std::size_t start = text.find_first_not_of(' ');
        if (start == std::string::npos || text[start] != '>')
            continue;
        if (std::atoi(text.c_str() + text.find('[') + 1) <= iDeepest)
            lines.push_back(text.substr(0, text.find('\n')));
    }
    return lines;
}

#endif
