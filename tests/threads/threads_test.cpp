#include <gtest/gtest.h>

#include <cmath>
#include <latch>
#include <string>
#include <thread>
#include <vector>

#include "mirolen/core/GlobalFunctions.h"
#include "mirolen/render/ControlLimits.h"
#include "mirolen/render/RecordingSurface.h"
#include "mirolen/render/Screen.h"
#include "mirolen/render/SurfaceCanvas.h"
#include "support/RecordingCompanions.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

/// What a wafer answered to everything that it was asked for.
struct Answers {
  std::vector<double> numbers;
  std::vector<std::string> texts;
  Recording drawn;
  friend bool operator==(const Answers&, const Answers&) = default;
};

/// All that a host does with a wafer of its own, from its making on; each number makes another wafer.
class WaferWork {
 public:
  explicit WaferWork(int number) : random_(static_cast<std::uint64_t>(number)) {}

  Answers run() {
    load_arrays();
    compute();
    write_texts();
    draw_maps();
    draw_charts();
    fail();
    load_a_file();
    return answers_;
  }

 private:
  void load_arrays() {
    set_diameters(wafer_, 200, 200);
    const SiteList sites = any_sites();
    GlobalFunctions::LoadSiteArrays(false, wafer_, column(sites, &Site::x), column(sites, &Site::y),
                                    column(sites, &Site::z));
  }

  void load_a_file() {
    const TemporaryFile file(file_bytes(any_sites()));
    answers_.numbers.push_back(GlobalFunctions::LoadSiteFile(false, wafer_, file.name(), site_count));
    compute();
  }

  void compute() {
    std::vector<double> x, y;
    for (int i = 0; i < 400; ++i) {
      x.push_back(between(random_, -110.0, 110.0));
      y.push_back(between(random_, -110.0, 110.0));
    }
    std::vector<double> z(x.size());
    wafer_.Interpolation(x, y, z);
    wafer_.Points_OutCL(2, 5);
    answers_.numbers.insert(answers_.numbers.end(), z.begin(), z.end());
    for (const double number : {wafer_.mean, wafer_.StdDev, wafer_.HiLo, wafer_.NptLCL,
                                wafer_.Interpolation_Einfach(1, 2), wafer_.Gauss(3)})
      answers_.numbers.push_back(number);
  }

  void write_texts() {
    RecordingLegend legend;
    wafer_.scale_colored(legend.boxes, legend.labels);
    for (int row = 1; row <= 10; ++row)
      answers_.texts.insert(answers_.texts.end(), {*legend.label(row).text, *legend.label(row).tip});
    wafer_.scale_sigma(legend.boxes, legend.labels, 1.5);
    answers_.texts.insert(answers_.texts.end(), {*legend.label(1).text, wafer_.FormatLbl(0.5)});
  }

  void draw_maps() {
    wafer_.D2Plot(canvas_, 10, 5, 0, 1, 0, 0, 0, 0, 0);
    keep_drawing();
    wafer_.D2Number(canvas_, 0, 0, 0, 0, 0);
    keep_drawing();
    wafer_.D2Contour(canvas_, 90, 10, 1, 0, 2, 0, 0, 0, 0, 0);
    wafer_.D2Contour(canvas_, 90, 1e-9, 1, 0, 2, 0, 0, 0, 0, 0);  // refused with a message
    keep_drawing();
    wafer_.D3Plot(canvas_, 10, 10, 40, 20, 30, 45, 1, 0, false, 0, 0, 0, 0, 0);
    keep_drawing();
    wafer_.D2BeamPlot(canvas_, 3, 3, 5, 20, 30, 45, false, 0, 0, 0, 0, 0);
    keep_drawing();
    double x0 = 0, y0 = 0;
    wafer_.FlatNotchShow(nullptr, canvas_, x0, y0, 30, 0, 90);
    keep_drawing();
  }

  void draw_charts() {
    wafer_.D1Plot(canvas_, 88, 30, true, 0, 0, 0, 0, QBColor(1), 0, 0, 0, 0, 0);
    wafer_.D1Plot_AdjustLines(canvas_, 0, 0, 100, 100);
    control_limits() = {true, between(random_, 0.0, 3.0), between(random_, 4.0, 8.0)};
    for (const std::int16_t type : {1, 2, 3, 4}) {
      double x0 = 20, y0 = 10, breite = 150, hoehe = 100, left = 0, top = 0;
      std::int16_t laenge = 4;
      wafer_.Statistic(type, canvas_, canvas_, x0, y0, breite, hoehe, 8, laenge, left, top, 0);
    }
    keep_drawing();
  }

  void fail() {
    try {
      wafer_.OverwriteGridValue(0, 1, 2, 3);
    } catch (const RunTimeError& error) {
      answers_.texts.emplace_back(error.what());
    }
  }

  SiteList any_sites() {
    SiteList sites;
    for (int i = 0; i < site_count; ++i) {
      const double angle = between(random_, 0.0, 6.3), radius = 95 * std::sqrt(between(random_, 0.0, 1.0));
      sites.push_back({radius * std::cos(angle), radius * std::sin(angle), between(random_, -1.0, 9.0)});
    }
    return sites;
  }

  void keep_drawing() {
    const Recording& drawn = surface_.recording();
    answers_.drawn.insert(answers_.drawn.end(), drawn.begin(), drawn.end());
    surface_.forget();
  }

  static constexpr int site_count = 300;
  Random random_;
  wafer wafer_;
  RecordingSurface surface_;
  SurfaceCanvas canvas_{CanvasKind::picture_box, &surface_};
  Answers answers_;
};

TEST(SeparateWafers, AnswerOnSeparateThreadsAsOnOne) {
  constexpr int threads = 4, wafers_each = 3;
  // A message of this thread's renderers, which is no other thread's.
  int messages = 0;
  screen().message = [&](const std::string&, const std::string&) { ++messages; };

  std::vector<Answers> answers(threads * wafers_each);
  {
    std::latch start(threads);
    std::vector<std::jthread> running;
    for (int thread = 0; thread < threads; ++thread)
      running.emplace_back([&, thread] {
        start.arrive_and_wait();
        for (int k = thread; k < threads * wafers_each; k += threads)
          answers[static_cast<std::size_t>(k)] = WaferWork(k).run();
      });
  }
  EXPECT_EQ(messages, 0);

  for (int k = 0; k < threads * wafers_each; ++k) {
    const Answers alone = WaferWork(k).run();
    EXPECT_TRUE(answers[static_cast<std::size_t>(k)] == alone) << "wafer " << k;
    EXPECT_GT(alone.drawn.size(), 1000u);
  }
  EXPECT_EQ(messages, threads * wafers_each);
  screen() = {};
  control_limits() = {};
}

}  // namespace
}  // namespace mirolen
