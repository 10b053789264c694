#include "mirolen/qt/FullSpeed.h"

#if defined(__GNUC__) && defined(__x86_64__)

#include <immintrin.h>

namespace {

__attribute__((target("avx"))) void clear_upper_halves() { _mm256_zeroupper(); }

}  // namespace

mirolen::qt::FullSpeedAfterPainting::~FullSpeedAfterPainting() {
  if (__builtin_cpu_supports("avx")) clear_upper_halves();
}

#else

mirolen::qt::FullSpeedAfterPainting::~FullSpeedAfterPainting() = default;

#endif
