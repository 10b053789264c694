#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

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
  void paint_pending() override;
};

/// A form without a scale mode.
class FormWithoutScaleMode : public HeadlessContainer {
 public:
  void ScaleMode(std::int16_t) override { throw InvalidArgument("no ScaleMode"); }
};

/// A control that shows what it knows about its plot.
template <class Control>
class Open : public Control {
 public:
  using Control::Control;
  using Control::LegendShown;
  using Control::PlotLimitSet;
  using Control::PlotShown;
  using Control::PlotValid;

  std::int16_t load(const SiteColumns& sites) { return this->SetWaferData(sites.x, sites.y, sites.z); }
};

using OpenPlot2D = Open<Plot2D>;

/// A control on a headless form, as new as a constructor leaves it.
template <class Control>
class ControlTest : public testing::Test {
 protected:
  /// A control that is new to its form, 6000 by 4000 twips.
  void place() {
    control.InitProperties();
    control.resize_to(6000, 4000);
    forget_notices();
  }
  /// The same with the square of sites and a drawn plot; notices and counts start behind that.
  void plot_square() {
    place();
    ASSERT_EQ(control.load(square_of_sites()), 0);
    ASSERT_EQ(control.Plot(), 0);
    forget_notices();
  }
  void forget_notices() {
    form.changes.clear();
    form.events.clear();
    toolkit.messages.clear();
    toolkit.redraws = 0;
  }
  automation::Object object() { return described(static_cast<Control&>(control)); }

  SpyToolkit toolkit;
  HeadlessContainer form;
  Open<Control> control{toolkit, form};
};

class Plot2DTest : public ControlTest<Plot2D> {
 protected:
  /// Makes every value label end at 1000 twips, so that the legend takes its least width.
  void narrow_labels();

  bool picture_is_blank() const;
  /// Of the snapshot in pixels; 0 by 0 without one.
  SurfaceSize snapshot_size() const;
  bool stretched() const { return control.RePlot.Stretch; }
};

/// A canvas of the size, scale and background of a picture box, drawn on by hand.
class Twin {
 public:
  Twin(const PictureBox& box, const Toolkit& toolkit);
  const Recording& recording() const { return surface_.recording(); }

 private:
  RecordingSurface surface_;

 public:
  SurfaceCanvas canvas{CanvasKind::picture_box, &surface_};
};

/// The calls of one kind in a recording, in their order.
template <class Call>
std::vector<Call> calls_of(const Recording& recording) {
  std::vector<Call> calls;
  for (const recorded::Call& call : recording)
    if (const auto* found = std::get_if<Call>(&call)) calls.push_back(*found);
  return calls;
}

/// All nine controls, for typed tests, and the name of each.
using AllControls =
    testing::Types<LineScan, Plot2D, Plot2DS, Plot2DC, Plot2DN, Plot2DB, Plot3D, Plot3DS, Histogram>;
template <class Control>
const automation::ClassInfo& description_of();
template <>
inline const automation::ClassInfo& description_of<LineScan>() {
  return description_of_LineScan();
}
template <>
inline const automation::ClassInfo& description_of<Plot2D>() {
  return description_of_Plot2D();
}
template <>
inline const automation::ClassInfo& description_of<Plot2DS>() {
  return description_of_Plot2DS();
}
template <>
inline const automation::ClassInfo& description_of<Plot2DC>() {
  return description_of_Plot2DC();
}
template <>
inline const automation::ClassInfo& description_of<Plot2DN>() {
  return description_of_Plot2DN();
}
template <>
inline const automation::ClassInfo& description_of<Plot2DB>() {
  return description_of_Plot2DB();
}
template <>
inline const automation::ClassInfo& description_of<Plot3D>() {
  return description_of_Plot3D();
}
template <>
inline const automation::ClassInfo& description_of<Plot3DS>() {
  return description_of_Plot3DS();
}
template <>
inline const automation::ClassInfo& description_of<Histogram>() {
  return description_of_Histogram();
}
struct ControlNames {
  template <class Control>
  static std::string GetName(int) {
    return description_of<Control>().name;
  }
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
