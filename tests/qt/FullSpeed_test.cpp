#include <gtest/gtest.h>

#include <functional>

#include "mirolen/qt/ImageSurface.h"
#include "qt/qt_support.h"

// Only there are the registers those that painting leaves in use.
#if defined(__GNUC__) && defined(__x86_64__)

namespace mirolen {
namespace {

using namespace qt_test;

/// Uses the upper half of a register that no call has to keep, as painting does.
void use_upper_half() {
  if (__builtin_cpu_supports("avx"))
    asm volatile(
        "vpcmpeqd %%xmm15, %%xmm15, %%xmm15\n\t"
        "vinsertf128 $1, %%xmm15, %%ymm15, %%ymm15"
        :
        :
        : "xmm15");
}

bool upper_half_is_clear() {
  unsigned long long upper = 0;
  if (__builtin_cpu_supports("avx"))
    asm volatile(
        "vextractf128 $1, %%ymm15, %%xmm15\n\t"
        "vmovq %%xmm15, %0"
        : "=r"(upper)
        :
        : "xmm15");
  return upper == 0;
}

TEST(ImageSurface, ClearsTheUpperHalvesOfTheVectorRegistersWhereItHasPainted) {
  qt::ImageSurface surface({60, 60}, 1);
  const PixelPoint corners[] = {{1, 1}, {50, 7}, {20, 40}};
  const std::shared_ptr<const Image> kept = surface.snapshot();
  const std::function<void()> calls[] = {
      [&] { surface.clear(white); },
      [&] {
        surface.line({red}, {1, 2}, {50, 40});
      },
      [&] {
        surface.line({red, 3, Pen::Style::dash}, {1, 2}, {50, 2});
      },
      [&] {
        surface.ellipse({red}, {blue}, {30, 30}, {20, 10});
      },
      [&] {
        surface.arc({red, 3}, {30, 30}, {20, 10}, 0, 2);
      },
      [&] { surface.polygon({red}, {blue}, corners); },
      [&] {
        surface.text({}, red, blue, {3, 3}, "Text");
      },
      [&] { surface.restore(*kept); },
      [&] { surface.refresh(); },
  };
  for (const auto& call : calls) {
    call();  // finds fonts and memory, in which the C library may clear them by itself
    use_upper_half();
    call();
    EXPECT_TRUE(upper_half_is_clear()) << "call " << &call - calls;
  }
}

}  // namespace
}  // namespace mirolen

#endif
