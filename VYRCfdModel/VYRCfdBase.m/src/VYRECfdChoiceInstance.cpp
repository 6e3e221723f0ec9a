#include "VYRECfdChoiceInstance.h"

VYRECfdChoiceInstance::VYRECfdChoiceInstance() = default;

VYRECfdChoiceInstance::~VYRECfdChoiceInstance() = default;
