#include "VYRCfdShortcuts.h"

ORXSpecAttrShortcuts* const VYRCfdShortcuts::s_ofHost =
    ORXGetSpecAttrShortcuts != nullptr ? ORXGetSpecAttrShortcuts() : nullptr;
