#include "Peers.h"

#include <map>
#include <utility>

namespace Bench
{
namespace
{
/// Made on first use: the entries are statics of other source files.
std::map<std::pair<std::string, std::string>, WorkMaker>& Makers()
{
    static std::map<std::pair<std::string, std::string>, WorkMaker> makers;
    return makers;
}
} // namespace

Work PeerWork(const std::string& iLibrary, const std::string& iWork, const std::string& iInput)
{
    const auto found = Makers().find({iLibrary, iWork});
    return found != Makers().end() ? found->second(iInput) : Work{};
}

PeerEntry::PeerEntry(const char* iLibrary, const char* iWork, WorkMaker iMaker)
{
    Makers()[{iLibrary, iWork}] = std::move(iMaker);
}
} // namespace Bench
