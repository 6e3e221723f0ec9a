#include "VYRStandaloneErrors.h"

namespace VYRStandalone
{
NullHandleError::NullHandleError() : std::logic_error("call through a null handle") {}

NullPointerError::NullPointerError() : std::logic_error("unexpected null pointer") {}
} // namespace VYRStandalone
