#include <gtest/gtest.h>

#include <limits>

#include "fast_math_host.h"
#include "mirolen/core/GlobalFunctions.h"
#include "mirolen/core/sse.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

TEST(FastMathHost, FindsWhatIsNotFinite) {
  for (const double odd : {kNaN, -kNaN, kInfinity, -kInfinity}) {
    EXPECT_FALSE(fast_math_host::finds_finite(odd));
    EXPECT_THROW(fast_math_host::to_16_bits(odd), OverflowError) << odd;
    EXPECT_THROW(fast_math_host::to_32_bits(odd), OverflowError) << odd;
    EXPECT_THROW(fast_math_host::color_of(odd), InvalidArgument) << odd;
    EXPECT_THROW(fast_math_host::checked_value(odd), OverflowError) << odd;
    EXPECT_THROW(fast_math_host::refuse_what_is_not_finite(odd), InvalidArgument) << odd;
  }
  EXPECT_THROW(fast_math_host::quotient(1e300, 1e-300), OverflowError);
  EXPECT_THROW(fast_math_host::quotient(kNaN, 1), OverflowError);
  EXPECT_THROW(fast_math_host::root(kNaN), OverflowError);
  EXPECT_THROW(fast_math_host::root(kInfinity), OverflowError);
}

TEST(FastMathHost, LetsEveryFiniteNumberPass) {
  using Limits = std::numeric_limits<double>;
  for (const double number : {0.0, -0.0, 1.5, Limits::max(), Limits::lowest(), Limits::denorm_min()}) {
    EXPECT_TRUE(fast_math_host::finds_finite(number)) << number;
    EXPECT_EQ(fast_math_host::checked_value(number), number);
    EXPECT_NO_THROW(fast_math_host::refuse_what_is_not_finite(number)) << number;
  }
  EXPECT_EQ(fast_math_host::to_16_bits(-32768.5), -32768);
  EXPECT_EQ(fast_math_host::to_32_bits(2147483647.4), 2147483647);
  EXPECT_THROW(fast_math_host::to_16_bits(32767.5), OverflowError);
  EXPECT_THROW(fast_math_host::to_32_bits(2147483647.5), OverflowError);
  EXPECT_EQ(fast_math_host::color_of(-1), 0xFFFFFFFFu);
}

#ifdef MIROLEN_SSE
/// The processor as the start-up code of a program that is linked with -ffast-math leaves it.
class FlushedDenormals {
 public:
  FlushedDenormals() { _mm_setcsr(before_ | flush_to_zero | denormals_are_zeros); }
  ~FlushedDenormals() { _mm_setcsr(before_); }

 private:
  static constexpr unsigned flush_to_zero = 0x8000, denormals_are_zeros = 0x0040;
  const unsigned before_ = _mm_getcsr();
};

TEST(FastMathHost, IsRefusedSitesThatAreNotFinite) {
  const FlushedDenormals as_in_the_host;
  wafer sample;
  set_diameters(sample, 200, 200);
  const Array good({1, 2, 3});
  EXPECT_EQ(GlobalFunctions::LoadSiteArrays(false, sample, good, good, good), 0);
  for (const double odd : {kNaN, kInfinity, -kInfinity}) {
    const Array bad({1, odd, 3});
    EXPECT_THROW(GlobalFunctions::LoadSiteArrays(false, sample, bad, good, good), InvalidArgument) << odd;
    EXPECT_THROW(GlobalFunctions::LoadSiteArrays(false, sample, good, good, bad), InvalidArgument) << odd;
    EXPECT_THROW(sample.OverwriteGridValue(1, odd, 0, 0), InvalidArgument) << odd;
    EXPECT_EQ(sample.Interpolation(odd, 0), 0) << odd;
  }
  EXPECT_EQ(sample.mean, 2);
}
#endif

}  // namespace
}  // namespace mirolen
