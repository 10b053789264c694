#pragma once

// MIROLEN_SSE: whether the processor surely works on four single-precision numbers, or two double-precision
// ones, side by side.
#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define MIROLEN_SSE
#endif
