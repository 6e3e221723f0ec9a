#include "TerminalWidth.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace Tool
{
std::size_t TerminalWidth()
{
    winsize size = {};
    return isatty(STDOUT_FILENO) == 1 && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}
} // namespace Tool
