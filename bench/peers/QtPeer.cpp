// Properties of QObjects, reached through the meta object.

#include <QMetaObject>
#include <QMetaProperty>
#include <QVariant>
#include <benchmark/benchmark.h>
#include <memory>

#include "Peers.h"
#include "QtSolver.h"

namespace
{
using namespace Bench;

// The property is found once and held, as ours holds a cursor.
const PeerEntry readHeld("Qt", "read held", [](const std::string&) {
    auto solver = std::make_shared<QtSolver>();
    const QMetaProperty property = solver->metaObject()->property(solver->metaObject()->indexOfProperty("intensity"));
    return Work{[=](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            double value = property.read(solver.get()).toDouble();
            benchmark::DoNotOptimize(value);
        }
    }};
});
} // namespace
