#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "mirolen/core/GlobalFunctions.h"
#include "mirolen/core/wafer.h"
#include "plain_wafer.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

constexpr int kThrew = -1;

/// The result of a call, or that it failed; anything else thrown ends the test.
template <class Failure>
int outcome_of(const std::function<int()>& call) {
  try {
    return call();
  } catch (const Failure&) {
    return kThrew;
  }
}

/// Random calls, each made to the real wafer and to the plain one.
class RandomStoreCalls : public RandomInput {
 protected:
  static constexpr double kDiameter = 200;

  void begin() {
    real = wafer();
    plain = PlainWafer();
    set_test_diameter(190);
    set_diameters(real, kDiameter, 190);
    plain.WafDiam = kDiameter, plain.WaferOrigRad = kDiameter / 2;
  }

  void set_test_diameter(double diameter) { real.test_diam = plain.test_diam = diameter; }

  void expect_same_outcome(const std::function<int()>& on_real, const std::function<int()>& on_plain) {
    EXPECT_EQ(outcome_of<RunTimeError>(on_real), outcome_of<PlainFailure>(on_plain));
  }

  void expect_both(const std::function<void()>& on_real, const std::function<void()>& on_plain) {
    expect_same_outcome([&] { return on_real(), 0; }, [&] { return on_plain(), 0; });
  }

  double some_number(double low, double high) {
    if (chance(random, 0.01)) return one_of<double>(random, {kNaN, kInfinity, -kInfinity, 1e300, -1e300});
    if (chance(random, 0.05)) return one_of<double>(random, {0, 1e-15, -1e-15, 1e-16, -1e-16});
    return between(random, low, high);
  }

  Site some_site() { return {some_number(-90, 90), some_number(-90, 90), some_number(-1, 50)}; }

  double some_count() {
    if (chance(random, 0.2))
      return one_of<double>(random,
                            {0, -1, -2.6, 2.5, 1.4, 12.25, 12.75, 32768, 1e9, 1e300, kNaN, kInfinity});
    return between(random, 1, 30);
  }

  std::int16_t some_site_number() {
    if (chance(random, 0.1)) return one_of<std::int16_t>(random, {0, -1, 32767, -32768});
    return static_cast<std::int16_t>(between(random, 1, 30));
  }

  void call_reset() { real.reset(), plain.reset(); }

  void call_SetNop() {
    const double count = some_count();
    expect_both([&] { real.SetNop(count); }, [&] { plain.SetNop(count); });
  }

  void call_SetGridValue() {
    for (int i = between(random, 1, 12); i > 0; --i) {
      const Site site = some_site();
      // What comes first of a surplus site and a number that is not finite is left open.
      if (!std::isfinite(site.x + site.y + site.z)) continue;
      expect_both([&] { real.SetGridValue(site.x, site.y, site.z); }, [&] { plain.SetGridValue(site); });
    }
  }

  void call_SetGridValueD() {
    const std::int16_t number = some_site_number();
    const Site site = some_site();
    if (number > plain.GetNop() && !std::isfinite(site.x + site.y + site.z)) return;
    expect_both([&] { real.SetGridValueD(number, site.x, site.y, site.z); },
                [&] { plain.SetGridValueD(number, site); });
  }

  void call_OverwriteGridValue() {
    const std::int16_t number = some_site_number();
    const Site site = some_site();
    expect_both([&] { real.OverwriteGridValue(number, site.x, site.y, site.z); },
                [&] { plain.OverwriteGridValue(number, site); });
  }

  void call_GetGridValue() {
    const std::int16_t number = some_site_number();
    const bool there = number >= 1 && number <= static_cast<int>(plain.sites().size());
    Array position(1, chance(random, 0.1) ? 1 : 2);
    const int expected = there && position.UBound() == 2 ? 0 : kThrew;
    EXPECT_EQ(outcome_of<RunTimeError>([&] { return real.GetGridValue(number, position), 0; }), expected);
  }

  void call_MaxMin() {
    expect_both([&] { real.MaxMin(); }, [&] { plain.MaxMin(); });
  }

  void call_setMaximalMinial() {
    const double high = between(random, -10.0, 60.0);
    const double low = chance(random, 0.2) ? high : between(random, -10.0, 60.0);
    expect_both([&] { real.setMaximalMinial(high, low); }, [&] { plain.setMaximalMinial(high, low); });
  }

  Array some_array(int lower, int upper, double low, double high) {
    Array array(lower, upper);
    for (int index = lower; index <= upper; ++index) array(index) = between(random, low, high);
    return array;
  }

  void call_LoadSiteArrays() {
    const int lower = chance(random, 0.8) ? 1 : between(random, -3, 3);
    const int upper = lower + between(random, -1, 25);
    const auto odd = [&](int bound) { return chance(random, 0.1) ? bound + 1 : bound; };
    Array x = some_array(lower, odd(upper), -90, 90);
    Array y = some_array(lower, odd(upper), -90, 90);
    Array z = some_array(chance(random, 0.05) ? lower - 1 : lower, odd(upper), -1, 50);
    // Element 1 is the one that is always to be loaded, if anything is.
    Array& spoilt = one_of<std::reference_wrapper<Array>>(random, {x, y, z}).get();
    if (chance(random, 0.1) && spoilt.LBound() <= 1 && spoilt.UBound() >= 1) {
      spoilt(1) = one_of<double>(random, {kNaN, kInfinity, 1e300});
    }
    const bool keep = chance(random, 0.5);
    expect_same_outcome([&] { return GlobalFunctions::LoadSiteArrays(keep, real, x, y, z); },
                        [&] { return plain.LoadSiteArrays(keep, x, y, z); });
  }

  void call_LoadSiteFile() {
    SiteList sites(static_cast<std::size_t>(between(random, 1, 30)));
    const bool right_count = chance(random, 0.7);
    const double count = right_count ? static_cast<double>(sites.size()) : some_count();
    for (Site& site : sites) {
      site = {between(random, -70.0, 70.0), between(random, -70.0, 70.0), between(random, -1.0, 50.0)};
      // Which of two faults is found first is left open.
      if (right_count) site.z = some_number(-1, 50);
    }
    std::string bytes = file_bytes(sites);
    if (chance(random, 0.2)) bytes.resize(static_cast<std::size_t>(between(random, 0, 800)));
    const bool missing = chance(random, 0.1);
    const bool keep = chance(random, 0.5);
    const TemporaryFile file;
    if (!missing) file.write(bytes);
    int result = kThrew;
    EXPECT_NO_THROW(result = GlobalFunctions::LoadSiteFile(keep, real, file.name(), count));
    EXPECT_EQ(result, plain.LoadSiteFile(keep, missing ? nullptr : &bytes, count));
  }

  void call_ClipToTestDiameter() {
    const double diameter = chance(random, 0.1) ? 0 : between(random, 80.0, 220.0);
    const bool keep = chance(random, 0.5);
    expect_both([&] { GlobalFunctions::ClipToTestDiameter(keep, real, diameter); },
                [&] { plain.ClipToTestDiameter(keep, diameter); });
  }

  void call_Interpolation() {
    for (int i = 0; i < 10; ++i) {
      const double x = some_number(-150, 150), y = some_number(-150, 150);
      const double result = real.Interpolation(x, y);
      EXPECT_TRUE(std::isfinite(result));
      if (!plain.interpolates() || !(std::abs(x) < 1000 && std::abs(y) < 1000)) continue;
      EXPECT_EQ(std::bit_cast<std::uint64_t>(result),
                std::bit_cast<std::uint64_t>(plain.Interpolation(x, y)));
    }
  }

  struct NamedCall {
    const char* name;
    void (RandomStoreCalls::*make)();
  };

  const NamedCall& some_call() {
    static const std::vector<NamedCall> calls{
        {"reset", &RandomStoreCalls::call_reset},
        {"SetNop", &RandomStoreCalls::call_SetNop},
        {"SetGridValue", &RandomStoreCalls::call_SetGridValue},
        {"SetGridValue", &RandomStoreCalls::call_SetGridValue},
        {"SetGridValueD", &RandomStoreCalls::call_SetGridValueD},
        {"OverwriteGridValue", &RandomStoreCalls::call_OverwriteGridValue},
        {"GetGridValue", &RandomStoreCalls::call_GetGridValue},
        {"MaxMin", &RandomStoreCalls::call_MaxMin},
        {"setMaximalMinial", &RandomStoreCalls::call_setMaximalMinial},
        {"LoadSiteArrays", &RandomStoreCalls::call_LoadSiteArrays},
        {"LoadSiteFile", &RandomStoreCalls::call_LoadSiteFile},
        {"ClipToTestDiameter", &RandomStoreCalls::call_ClipToTestDiameter},
        {"Interpolation", &RandomStoreCalls::call_Interpolation},
    };
    return one_of(random, calls);
  }

  void expect_same_sites() const {
    ASSERT_EQ(real.GetNop(), plain.GetNop());
    EXPECT_EQ(real.FW_NUll, plain.FW_NUll);
    EXPECT_EQ(real.FW_Negativ, plain.FW_Negativ);
    EXPECT_EQ(real.test_diam, plain.test_diam);
    const int last = static_cast<int>(plain.sites().size());
    for (int number = 1; number <= last && number <= 32; ++number) {
      EXPECT_EQ(site_of(real, number), plain.sites()[static_cast<std::size_t>(number - 1)]) << number;
    }
    if (last < 32767) {
      EXPECT_THROW(site_of(real, last + 1), SubscriptOutOfRange);
    }
    EXPECT_THROW(site_of(real, 0), SubscriptOutOfRange);
  }

  void expect_same_statistics() const {
    EXPECT_EQ(real.maxi, plain.maxi);
    EXPECT_EQ(real.mini, plain.mini);
    EXPECT_EQ(real.maximal, plain.maximal);
    EXPECT_EQ(real.minimal, plain.minimal);
    EXPECT_EQ(real.mean, plain.mean);
    EXPECT_EQ(real.StdDev, plain.StdDev);
    EXPECT_EQ(real.HiLo, plain.HiLo);
    EXPECT_EQ(real.Low, plain.Low);
    EXPECT_EQ(real.range, plain.range);
    EXPECT_EQ(real.Summe_Value, plain.Summe_Value);
  }

  wafer real;
  PlainWafer plain;
};

TEST_F(RandomStoreCalls, LeaveTheSameStoreAsThePlainOne) {
  for (int sequence = 0; sequence < 300; ++sequence) {
    begin();
    for (int i = 0; i < 80; ++i) {
      const NamedCall& call = some_call();
      SCOPED_TRACE("sequence " + std::to_string(sequence) + ", call " + std::to_string(i) + ": " + call.name);
      (this->*call.make)();
      ASSERT_NO_FATAL_FAILURE(expect_same_sites());
      expect_same_statistics();
      if (HasFailure()) return;
    }
  }
}

}  // namespace
}  // namespace mirolen
