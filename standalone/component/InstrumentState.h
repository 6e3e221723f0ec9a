#ifndef InstrumentState_H
#define InstrumentState_H

#include "Instruments.h"

namespace VYRStandalone
{
/// The flags behind `Instruments::Active`, for those who steer them.
class InstrumentState
{
public:
    static void SetFaults(bool iPlanted) noexcept { Instruments::s_faults = iPlanted; }
    static void* Recorder() noexcept { return Instruments::s_recorder; }
    static void SetRecorder(void* iRecorder) noexcept { Instruments::s_recorder = iRecorder; }
};
} // namespace VYRStandalone

#endif
