#include "controls/print_members.h"
#include "controls/trial.h"
#include "failing_heap.h"

// What may leave a control where memory fails: nothing, but of what prints.

namespace mirolen {
namespace {

template <class Control>
class MemoryPromises : public testing::Test {
 protected:
  struct Bench {
    Bench() { set_up(control); }
    HeadlessToolkit toolkit;
    DeafContainer form;
    Open<Control> control{toolkit, form};
  };

  /// Runs an act while the nth `new` fails. @return whether there is an nth.
  static bool survives(const Act<Control>& act, int n, bool lasting) {
    Bench bench;
    bool reached = false, escaped = false;
    {
      const heap::Failing heap(n, lasting);
      try {
        act.run(bench.control);
      } catch (...) {
        escaped = true;
      }
      reached = heap.reached();
    }
    const std::string what =
        std::string(act.name) + ", new " + std::to_string(n) + (lasting ? " and all behind it" : "");
    EXPECT_FALSE(escaped) << what;
    EXPECT_EQ(bench.control.MousePointer(), 0) << what;
    if (reached) expect_right_plot(bench, what, act);
    return reached;
  }

  static void expect_right_plot(Bench& bench, const std::string& what, const Act<Control>& act) {
    if (act.loads) bench.control.load(sites_near_centre());
    if (bench.control.Plot() != 0) return;
    expect_looks_of_a_new_one(bench.control, what);
  }
};
TYPED_TEST_SUITE(MemoryPromises, AllControls, ControlNames);

TYPED_TEST(MemoryPromises, NoFailureGetsOut) {
  for (const Act<TypeParam>& act : all_acts<TypeParam>())
    for (const bool lasting : {false, true})
      for (int n = 1; this->survives(act, n, lasting); ++n)
        if (this->HasFailure()) return;
}

TYPED_TEST(MemoryPromises, WhatPrintsTellsIt) {
  const auto paper = std::make_shared<TestPrinter>();
  int told = 0;
  for (const bool lasting : {false, true})
    for (int n = 1, reached = 1; reached; ++n) {
      typename TestFixture::Bench bench;
      bench.control.PrinterObj = paper;
      bool foreign = false;
      {
        const heap::Failing heap(n, lasting);
        try {
          bench.control.PrintPlot(700, 900, 9000, 7000);
          bench.control.PrintWaferStatistic(700, 900, "a unit that is longer than a small text");
          bench.control.PrintWaferSize(700, 900);
        } catch (const std::bad_alloc&) {
          ++told;
        } catch (const RunTimeError&) {
          ++told;
        } catch (...) {
          foreign = true;
        }
        reached = heap.reached();
      }
      EXPECT_FALSE(foreign) << n;
      EXPECT_EQ(bench.control.MousePointer(), 0) << n;
      paper->forget();
    }
  EXPECT_GT(told, 0);
}

}  // namespace
}  // namespace mirolen
