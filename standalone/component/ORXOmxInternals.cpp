#include "ORXOmxInternals.h"

#include "VYRStandaloneErrors.h"

void ORXOmx::Internals::NullPointerAssertion()
{
    throw VYRStandalone::NullPointerError();
}
