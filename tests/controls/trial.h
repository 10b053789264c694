#pragma once

#include <gtest/gtest.h>

#include <map>

#include "control_support.h"

namespace mirolen {

/// When something is to fail: at a step, counted from 1, and if it lasts at all behind it.
struct Trouble {
  int at = 0;  ///< 0: never.
  bool lasting = false;
  std::function<void()> fail = [] { throw CanvasError("trouble"); };
  int steps = 0;

  void step() {
    ++steps;
    if (at != 0 && (lasting ? steps >= at : steps == at)) fail();
  }
  void begin(int first, bool lasts) { at = first, lasting = lasts, steps = 0; }
  void end() { at = 0; }
};

/// What a peer shows of its widget.
struct Shown {
  double left = 0, top = 0, width = 0, height = 0;
  bool visible = false;
  Color back = 0;
  std::string caption;
  friend bool operator==(const Shown&, const Shown&) = default;
};
Shown shown_of(const Widget& widget);

/// A toolkit whose peers, pictures and measures may fail; each of their calls is a step.
class TroubledToolkit : public HeadlessToolkit {
 public:
  Trouble peers, pictures;
  /// What the peers show.
  std::map<const Widget*, Shown> screen;

  std::unique_ptr<Peer> make_peer(Widget& widget) override;
  std::unique_ptr<Surface> make_surface(PictureBox& box) override;
  SurfaceSize measure(const FontSpec& font, std::string_view text) const override;
};

/// A form that keeps nothing, so that nothing fails there.
class DeafContainer : public Container {
 public:
  void ScaleMode(std::int16_t) override {}
  void changed(std::string_view) override {}
  void Click() override {}
  void DblClick() override {}
  void MouseDown(const MouseEvent&) override {}
  void MouseMove(const MouseEvent&) override {}
  void MouseUp(const MouseEvent&) override {}
};

/// The calls that a host may make and that let nothing out, by name.
template <class Control>
struct Act {
  const char* name;
  std::function<void(Open<Control>&)> run;
  bool loads = false;  ///< A load that fails says so, and its host loads again.
};

/// Few sites, few cells, few curves: a plot of a moment.
template <class Control>
void make_coarse(Control& c) {
  if constexpr (requires {
                  c.ShowSites(Sites::ShowSite);
                  c.Resolution(40.0);
                })
    c.Resolution(40.0);
  if constexpr (requires { c.XResolution(40.0); }) c.XResolution(40), c.YResolution(40);
  if constexpr (requires { c.Interval(1.0); }) c.IntervalInPercent(0), c.Interval(60);
}

template <class Control>
void set_up(Open<Control>& c) {
  c.InitProperties();
  c.load(sites_near_centre());
  make_coarse(c);
  c.resize_to(6000, 4000);
  c.Plot();
}

template <class Control>
std::vector<Act<Control>> all_acts() {
  using C = Open<Control>;
  static const std::string long_text(200, 'x');
  static const SiteColumns other{{0, 5, 0, -5, 0, 3}, {0, 0, 5, 0, -5, 3}, {1, 2, 3, 4, 5, 6}};
  std::vector<Act<Control>> acts{
      {"Plot", [](C& c) { c.Plot(); }},
      {"Plot afresh", [](C& c) { c.SetPlotNotVaild(), c.Plot(); }},
      {"a larger size", [](C& c) { c.resize_to(7500, 6000); }},
      {"a larger size afresh", [](C& c) { c.SetPlotNotVaild(), c.resize_to(7500, 6000); }},
      {"a size too small", [](C& c) { c.resize_to(100, 100), c.resize_to(5500, 4500); }},
      {"BackColor", [](C& c) { c.BackColor(0x405060); }},
      {"HideLegend", [](C& c) { c.HideLegend(true); }},
      {"WaferStyle", [](C& c) { c.WaferStyle(WaferSt::Flat); }},
      {"MousePointer", [](C& c) { c.MousePointer(0); }},
      {"TestDiameter", [](C& c) { c.TestDiameter(150); }},
      {"WaferDiameter", [](C& c) { c.WaferDiameter(150); }},
      // With them labels change, and with these the next layout.
      {"SetPlotLimit", [](C& c) { c.SetPlotLimit(15, 45), c.resize_to(6300, 4200); }},
      {"ReleasePlotLimit",
       [](C& c) { c.SetPlotLimit(15, 45), c.ReleasePlotLimit(), c.resize_to(6300, 4200); }},
      {"SetWaferData", [](C& c) { c.load(other), c.resize_to(6300, 4200); }, true},
      {"SetDataFile", [](C& c) { c.SetDataFile("/no/such/file", 5); }, true},
      {"clear", [](C& c) { c.clear(); }},
      {"Interpolation", [](C& c) { c.Interpolation(1, 1); }},
      {"statistics", [](C& c) { c.mean(), c.range(), c.HiLo(), c.StdDevPercent(), c.hwnd(), c.hdc(); }},
      {"InitProperties", [](C& c) { c.InitProperties(); }},
      {"ShowPlotOption", [](C& c) { c.ShowPlotOption(); }},
      {"About", [](C& c) { c.About(); }},
      {"focus", [](C& c) { c.OnEnterFocus ? c.OnEnterFocus() : void(); }},
  };
  const auto add = [&](const char* name, auto run) { acts.push_back({name, run}); };
  if constexpr (requires(C & c) { c.PlotCaption(""); }) {
    add("PlotCaption", [](C& c) { c.PlotCaption(long_text); });
    add("PlotCaption read", [](C& c) { (void)c.PlotCaption().size(); });
  }
  if constexpr (requires(C & c) { c.IntervalColor(1, 0u); })
    add("IntervalColor", [](C& c) { c.IntervalColor(1, 0x102030); });
  if constexpr (requires(C & c) { c.SigmaRange(1.0); }) add("SigmaRange", [](C& c) { c.SigmaRange(1.5); });
  if constexpr (requires(C & c) { c.GridRotation(1); }) {
    add("GridRotation", [](C& c) { c.GridRotation(20); });
    add("a drag", [](C& c) {
      c.PLOTA.OnMouseDown({1, 0, 100, 100});
      c.PLOTA.OnMouseMove({1, 0, 60, 130});
      c.PLOTA.OnMouseUp({1, 0, 60, 130});
    });
  }
  if constexpr (requires(C & c) { c.MeasurementUnit(""); }) {
    add("MeasurementUnit", [](C& c) { c.MeasurementUnit(long_text); });
    add("MeasurementUnit read", [](C& c) { (void)c.MeasurementUnit().size(); });
    add("PlotColored", [](C& c) { c.PlotColored(DrawColEnum::Ten_ColorPlot); });
    add("distance", [](C& c) { c.distance(); });
  }
  if constexpr (requires(C & c) { c.angle(1); }) {
    add("angle", [](C& c) { c.angle(33); });
    add("a wrong angle", [](C& c) { c.angle(-1); });
    add("ShowSites", [](C& c) { c.ShowSites(true), c.Plot(); });
    add("a line", [](C& c) {
      c.SetLineOrAngle(PlotTypeEnumLineScan::vbline, 0, 0, 0, -20, -20, 20, 20);
      c.Plot();
    });
    add("a spin", [](C& c) { c.AngleValue.OnKeyDown(38); });
  }
  if constexpr (requires(C & c) { c.SetChartDim(1, 1); }) {
    add("SetChartDim", [](C& c) { c.SetChartDim(600, 1500); });
    add("Borderstyle", [](C& c) { c.Borderstyle(0); });
  }
  return acts;
}

/// Gives a new control the settings, the data and the limits of another.
template <class Control>
void take_settings(Open<Control>& to, Open<Control>& from) {
  const automation::Object source = described(static_cast<Control&>(from));
  const automation::Object target = described(static_cast<Control&>(to));
  const auto copy = [&](const std::string& name) {
    automation::let(target, name, automation::get(source, name));
  };
  to.InitProperties();
  copy("WaferDiameter");
  copy("TestDiameter");
  to.load(sites_of(from));
  for (const automation::MemberInfo& member : source.info->members)
    if (member.kind == automation::MemberKind::let && !member.name.ends_with("Diameter")) copy(member.name);
  to.PLOTA.BackColor = from.PLOTA.BackColor;
  if constexpr (requires { to.SetChartDim(1, 1); }) {
    if (from.PLOTA.Height == 1500) to.SetChartDim(600, 1500);
    to.Borderstyle(from.frmhist.Border ? 1 : 0);
    if (from.PlotLimitSet) to.SetPlotLimit(from.wafobj.vLcl, from.wafobj.vUcl);
  } else if (from.PlotLimitSet) {
    to.SetPlotLimit(from.wafobj.minimal, from.wafobj.maximal);
  }
}

/// Where two controls look different to a user; empty if they look alike.
std::string difference_of_looks(UserControl& actual, UserControl& expected);
/// Where the pictures of two snapshots differ; empty if they do not.
std::string difference_of_snapshots(const ImageBox& actual, const ImageBox& expected);

/// A new control with the settings, data and limits of another, plotted in a size of its own.
template <class Control>
struct Remade {
  Remade(Open<Control>& from, double width, double height) {
    take_settings(control, from);
    control.resize_to(width, height);
    control.Plot();
  }
  HeadlessToolkit toolkit;
  DeafContainer form;
  Open<Control> control{toolkit, form};
};

/// A plotted control looks as a new one does that is given its settings, data, limits and size. A snapshot
/// that is stretched is that of this size or of the one of `set_up`.
template <class Control>
void expect_looks_of_a_new_one(Open<Control>& plotted, const std::string& what) {
  Remade<Control> remade(plotted, plotted.Width, plotted.Height);
  EXPECT_EQ(difference_of_looks(plotted, remade.control), "") << what;
  if constexpr (requires { plotted.RePlot; }) {
    if (!plotted.RePlot.Stretch) return;
    std::string difference = difference_of_snapshots(plotted.RePlot, remade.control.RePlot);
    if (!difference.empty()) {
      const bool hidden = plotted.HideLegend();
      plotted.LegendShown = true;
      Remade<Control> before(plotted, 6000, 4000);
      plotted.LegendShown = !hidden;
      difference = difference_of_snapshots(plotted.RePlot, before.control.RePlot);
    }
    EXPECT_EQ(difference, "") << what;
  }
}

}  // namespace mirolen
