// A script language: an expression over tables.

#include <benchmark/benchmark.h>
#include <memory>
#include <stdexcept>

extern "C"
{
#include <lauxlib.h>
#include <lua.h>
#include <lualib.h>
}

#include "Peers.h"
#include "Tree.h"

namespace
{
using namespace Bench;

void Push(lua_State* ioState, const Level& iLevel)
{
    lua_newtable(ioState);
    for (const Entry& entry : iLevel.entries)
    {
        switch (entry.kind)
        {
        case Entry::Kind::Real:
            lua_pushnumber(ioState, entry.number);
            break;
        case Entry::Kind::Integer:
            lua_pushinteger(ioState, static_cast<lua_Integer>(entry.number));
            break;
        case Entry::Kind::Boolean:
            lua_pushboolean(ioState, entry.number != 0);
            break;
        case Entry::Kind::String:
            lua_pushlstring(ioState, entry.text.data(), entry.text.size());
            break;
        case Entry::Kind::Level:
            Push(ioState, *entry.level);
            break;
        }
        lua_setfield(ioState, -2, entry.name.c_str());
    }
}

// The chunk is compiled once, as our condition is parsed once. Does less than ours: a table entry is a plain value, and
// nothing is checked or reported on the way.
const PeerEntry evaluate("Lua", "evaluate", [](const std::string&) {
    const std::shared_ptr<lua_State> state(luaL_newstate(), [](lua_State* ioState) { lua_close(ioState); });
    luaL_openlibs(state.get());
    Push(state.get(), ConditionTree());
    lua_setglobal(state.get(), "t");
    if (luaL_loadstring(state.get(), "return t.a.b==1.5") != LUA_OK)
        throw std::runtime_error("Lua: the expression does not compile");
    const int chunk = luaL_ref(state.get(), LUA_REGISTRYINDEX);
    return Work{[=](std::size_t iTimes) {
        lua_State* const lua = state.get();
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            lua_rawgeti(lua, LUA_REGISTRYINDEX, chunk);
            if (lua_pcall(lua, 0, 1, 0) != LUA_OK)
                throw std::runtime_error("Lua: the expression fails");
            int holds = lua_toboolean(lua, -1);
            lua_pop(lua, 1);
            benchmark::DoNotOptimize(holds);
        }
    }};
});
} // namespace
