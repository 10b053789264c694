#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "mirolen/controls/Plot2D.h"
#include "mirolen/controls/descriptions.h"
#include "mirolen/widgets/Headless.h"

namespace mirolen {

inline constexpr double infinity = std::numeric_limits<double>::infinity();
inline constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

using Names = std::vector<std::string>;

/// Sites as a host holds them.
struct SiteColumns {
  std::vector<double> x, y, z;
  friend bool operator==(const SiteColumns&, const SiteColumns&) = default;
};

/// 25 sites in a square within 90 mm of the centre, with the values 0, 4, 8 ... 96 and, last, 100.
SiteColumns square_of_sites();
/// Five sites within 2 mm of the centre, with the values 10 to 50.
SiteColumns sites_near_centre();
/// The sites of a control; empty without any.
SiteColumns sites_of(const ControlFrame& control);
/// A data file of these sites.
std::string file_bytes(const SiteColumns& sites);

/// A headless toolkit that counts redraws and lets pictures fail.
class SpyToolkit : public HeadlessToolkit {
 public:
  /// Called before each drawing call on a picture, with the call's name; may throw.
  std::function<void(const PictureBox& box, std::string_view call)> on_draw;
  bool makes_surfaces = true;
  /// A redraw with data lets pending events run once.
  int redraws = 0;

  std::unique_ptr<Surface> make_surface(PictureBox& box) override;
  void run_pending_events() override;
};

/// A form without a scale mode.
class FormWithoutScaleMode : public HeadlessContainer {
 public:
  void ScaleMode(std::int16_t) override { throw InvalidArgument("no ScaleMode"); }
};

/// A Plot2D that shows what it knows about its plot.
class OpenPlot2D : public Plot2D {
 public:
  using ControlFrame::LegendShown;
  using ControlFrame::PlotLimitSet;
  using ControlFrame::PlotShown;
  using ControlFrame::PlotValid;
  using Plot2D::Plot2D;

  std::int16_t load(const SiteColumns& sites) { return SetWaferData(sites.x, sites.y, sites.z); }
};

/// A Plot2D on a headless form, as new as a constructor leaves it.
class Plot2DTest : public testing::Test {
 protected:
  /// A control that is new to its form, 6000 by 4000 twips.
  void place();
  /// The same with the square of sites and a drawn plot; notices and counts start behind that.
  void plot_square();
  void forget_notices();
  /// Makes every value label end at 1000 twips, so that the legend takes its least width.
  void narrow_labels();

  bool picture_is_blank() const;
  /// Of the snapshot in pixels; 0 by 0 without one.
  SurfaceSize snapshot_size() const;
  bool stretched() const { return control.RePlot.Stretch; }

  SpyToolkit toolkit;
  HeadlessContainer form;
  OpenPlot2D control{toolkit, form};
};

/// The recording that an image holds. @throws for none and for another kind.
const Recording& recording_of(const std::shared_ptr<const Image>& image);
/// Where two recordings part; empty if they are equal.
std::string difference(const Recording& actual, const Recording& expected);

/// All widgets below one, it included.
std::vector<Widget*> widgets_of(Widget& root);

/// The seed for random tests: MIROLEN_SEED of the environment, or one that differs from run to run.
unsigned long long wanted_seed();

}  // namespace mirolen
