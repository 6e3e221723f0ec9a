// Objects with properties that tell their listeners.

#include <benchmark/benchmark.h>
#include <glib-object.h>
#include <memory>
#include <vector>

#include "Peers.h"
#include "Tree.h"

namespace
{
using namespace Bench;

struct BenchSolver
{
    GObject parent;
    double numbers[32];
    char* texts[32];
};

struct BenchSolverClass
{
    GObjectClass parent;
};

const std::vector<Entry>& Entries()
{
    static const std::vector<Entry>& entries = *new std::vector<Entry>(ValuesLevel().entries);
    return entries;
}

void Set(GObject* ioObject, guint iProperty, const GValue* iValue, GParamSpec* iSpec)
{
    BenchSolver& solver = *reinterpret_cast<BenchSolver*>(ioObject);
    switch (G_PARAM_SPEC_VALUE_TYPE(iSpec))
    {
    case G_TYPE_DOUBLE:
        solver.numbers[iProperty] = g_value_get_double(iValue);
        break;
    case G_TYPE_INT:
        solver.numbers[iProperty] = g_value_get_int(iValue);
        break;
    case G_TYPE_BOOLEAN:
        solver.numbers[iProperty] = g_value_get_boolean(iValue);
        break;
    default:
        g_free(solver.texts[iProperty]);
        solver.texts[iProperty] = g_value_dup_string(iValue);
    }
}

void Get(GObject* iObject, guint iProperty, GValue* oValue, GParamSpec* iSpec)
{
    const BenchSolver& solver = *reinterpret_cast<const BenchSolver*>(iObject);
    switch (G_PARAM_SPEC_VALUE_TYPE(iSpec))
    {
    case G_TYPE_DOUBLE:
        g_value_set_double(oValue, solver.numbers[iProperty]);
        break;
    case G_TYPE_INT:
        g_value_set_int(oValue, static_cast<int>(solver.numbers[iProperty]));
        break;
    case G_TYPE_BOOLEAN:
        g_value_set_boolean(oValue, solver.numbers[iProperty] != 0);
        break;
    default:
        g_value_set_string(oValue, solver.texts[iProperty]);
    }
}

GParamSpec* SpecOf(const Entry& iEntry)
{
    const char* name = iEntry.name.c_str();
    const auto flags = static_cast<GParamFlags>(G_PARAM_READWRITE | G_PARAM_STATIC_STRINGS);
    switch (iEntry.kind)
    {
    case Entry::Kind::Real:
        return g_param_spec_double(name, nullptr, nullptr, -1e9, 1e9, 0, flags);
    case Entry::Kind::Integer:
        return g_param_spec_int(name, nullptr, nullptr, -1000000, 1000000, 0, flags);
    case Entry::Kind::Boolean:
        return g_param_spec_boolean(name, nullptr, nullptr, FALSE, flags);
    default:
        return g_param_spec_string(name, nullptr, nullptr, "", flags);
    }
}

void InitializeClass(gpointer ioClass, gpointer)
{
    auto* const object = static_cast<GObjectClass*>(ioClass);
    object->set_property = Set;
    object->get_property = Get;
    guint number = 0;
    for (const Entry& entry : Entries())
        g_object_class_install_property(object, ++number, SpecOf(entry));
}

GType SolverType()
{
    static const GType type =
        g_type_register_static_simple(G_TYPE_OBJECT, "BenchSolver", sizeof(BenchSolverClass), InitializeClass,
                                      sizeof(BenchSolver), nullptr, GTypeFlags(0));
    return type;
}

void Notified(GObject*, GParamSpec*, gpointer ioCount)
{
    ++*static_cast<std::size_t*>(ioCount);
}

// Does less than ours: it keeps no flag that the value was set on purpose.
const PeerEntry write("GObject", "write", [](const std::string&) {
    const std::shared_ptr<GObject> solver(static_cast<GObject*>(g_object_new(SolverType(), nullptr)),
                                          [](GObject* ioObject) { g_object_unref(ioObject); });
    auto count = std::make_shared<std::size_t>(0);
    g_signal_connect(solver.get(), "notify::intensity", G_CALLBACK(Notified), count.get());
    return Work{[=](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
            g_object_set(solver.get(), "intensity", static_cast<double>(i & 1023) * 0.001, nullptr);
        benchmark::DoNotOptimize(*count);
    }};
});
} // namespace
