#pragma once

#include "mirolen/core/PlainLanes.h"
#include "mirolen/core/SseLanes.h"
#include "mirolen/core/VectorLanes.h"

namespace mirolen {

/// Four single-precision numbers worked on side by side, as fast as the compiler and the processor can.
#if defined(MIROLEN_SSE)
using Lanes = SseLanes;
#elif defined(MIROLEN_VECTOR_LANES)
using Lanes = VectorLanes;
#else
using Lanes = PlainLanes;
#endif

}  // namespace mirolen
