#include "mirolen/controls/ControlFrame.h"

#include <cmath>
#include <utility>

#include "mirolen/controls/RaisedFlag.h"
#include "mirolen/controls/arguments.h"
#include "mirolen/core/GlobalFunctions.h"
#include "mirolen/dialogs/OptionForm.h"
#include "mirolen/dialogs/frmAbout.h"

namespace mirolen {
namespace {

constexpr double default_wafer_diameter = 200;

/// What a statistic shows where the extremes are too far apart for a Double.
double finite_or_zero(double value) { return is_finite(value) ? value : 0; }

}  // namespace

ControlFrame::ControlFrame(Toolkit& toolkit, Container& container)
    : UserControl(toolkit), PrinterObj(toolkit.default_printer()), container_(container) {
  Move(0, 0, usual_size.width, usual_size.height);
  forward_events(*this);
}

void ControlFrame::forward_events(Widget& widget) {
  widget.OnClick = [this] { container_.Click(); };
  widget.OnDblClick = [this] { container_.DblClick(); };
  widget.OnMouseDown = [this](const MouseEvent& event) { container_.MouseDown(event); };
  widget.OnMouseMove = [this](const MouseEvent& event) { container_.MouseMove(event); };
  widget.OnMouseUp = [this](const MouseEvent& event) { container_.MouseUp(event); };
}

void ControlFrame::takes_focus(Button& button) {
  OnEnterFocus = [this, &button] {
    if (button.is_seen()) quietly([&] { button.SetFocus(); });
  };
}

// contract 17
std::int16_t ControlFrame::SetWaferData(const ArrayView& x, const ArrayView& y, const ArrayView& Z) {
  try {
    const std::int16_t result = GlobalFunctions::LoadSiteArrays(keeps_limits(), wafobj, x, y, Z);
    data_changed();
    return result;
  } catch (const InvalidArgument&) {  // a number that is not finite: nothing has changed
    return 4;
  } catch (const std::exception&) {
    leave_undone();
    return 4;
  }
}

std::int16_t ControlFrame::SetDataFile(const std::string& datafile, double nops) {
  if (!is_finite(nops)) return 4;
  try {
    const std::int16_t result = GlobalFunctions::LoadSiteFile(keeps_limits(), wafobj, datafile, nops);
    data_changed();
    return result;
  } catch (const std::exception&) {
    leave_undone();
    return 4;
  }
}

void ControlFrame::data_changed() {
  PlotShown = false;
  PlotValid = false;  // also where the wiping fails
  wipe_drawing();
  forget_snapshot();
}

double ControlFrame::GetWaferData(std::vector<double>& x, std::vector<double>& y,
                                  std::vector<double>& Z) const {
  const double sites = wafobj.GetNop();
  if (sites <= 0) return sites;
  try {
    const std::int16_t n = to_int16(sites);
    std::vector<double> xs, ys, zs;
    Array position(1, 2);
    for (std::int32_t i = 1; i <= n; ++i) {
      zs.push_back(wafobj.GetGridValue(static_cast<std::int16_t>(i), position));
      xs.push_back(position(1));
      ys.push_back(position(2));
    }
    x.swap(xs);
    y.swap(ys);
    Z.swap(zs);
    return sites;
  } catch (const std::exception&) {
    return 0;
  }
}

double ControlFrame::GetWaferData(Array& x, Array& y, Array& Z) const {
  std::vector<double> xs, ys, zs;
  const double sites = GetWaferData(xs, ys, zs);
  if (sites <= 0) return sites;
  x = Array(std::move(xs));
  y = Array(std::move(ys));
  Z = Array(std::move(zs));
  return sites;
}

std::int16_t ControlFrame::Plot() {
  if (wafobj.GetNop() == 0) return 1;
  PlotShown = true;
  if (wafobj.flat_ratio == 0) WaferStyle(WaferSt::Notch);
  if (wafobj.WafDiam == 0) WaferDiameter(default_wafer_diameter);  // contract 30
  if (wafobj.test_diam == 0 || wafobj.test_diam > wafobj.WafDiam) TestDiameter(wafobj.WafDiam);
  fill_in_settings();
  const bool afresh = makes_up();
  if (afresh) resize_handler();
  if (!afresh || !PlotValid) show_plot();
  return 0;
}

/// Whether something has failed since the last plot, so that nobody knows what is shown.
bool ControlFrame::makes_up() {
  const bool shown_late = catch_up();
  if (!std::exchange(undone_, false) && !shown_late) return false;
  PlotValid = false;
  return true;
}

void ControlFrame::ShowPlotOption() {
  quietly([&] { ask_options(); });
}

bool ControlFrame::confirmed(OptionForm& form) {
  if (asking_) return false;
  const RaisedFlag asking(asking_);
  quietly([&] { form.Show(); });
  return form.Redraw();
}

bool ControlFrame::SetPlotLimit(double LPL, double UPL) {
  if (!all_finite({LPL, UPL})) return false;
  if (UPL == wafobj.maximal && LPL == wafobj.minimal) return false;
  bool taken = false;
  quietly([&] { taken = GlobalFunctions::ApplyPlotLimit(wafobj, LPL, UPL); });
  PlotLimitSet = taken;  // contract 25
  if (taken) limits_changed();
  return taken;
}

void ControlFrame::ReleasePlotLimit() {
  PlotLimitSet = false;
  if (wafobj.maximal == wafobj.maxi && wafobj.minimal == wafobj.mini) return;
  quietly([&] { wafobj.setMaximalMinial(wafobj.maxi, wafobj.mini); });
  limits_changed();
}

void ControlFrame::limits_changed() {
  PlotValid = false;  // also while no plot is asked for: a change of size may have drawn one
  if (PlotShown) Plot();
}

double ControlFrame::range() const { return finite_or_zero(wafobj.maxi - wafobj.mini); }  // contract 28

double ControlFrame::HiLo() const {
  const double sum = wafobj.maxi + wafobj.mini;
  return sum == 0 ? 0 : finite_or_zero(std::abs((wafobj.maxi - wafobj.mini) / sum) * 100);
}

double ControlFrame::StdDevPercent() const {
  return wafobj.mean <= 0 ? 0 : finite_or_zero(std::abs(wafobj.StdDev / wafobj.mean) * 100);  // contract 27
}

std::int16_t ControlFrame::PrintWaferStatistic(double left, double top, const std::string& units) {
  if (all_finite({left, top})) wafobj.Meas_unit = units;  // contract 24
  return print_block({left, top}, [&](PrintWafer& page) { page.DrawWaferStatistics(wafobj, left, top); });
}

std::int16_t ControlFrame::PrintWaferSize(double left, double top) {
  return print_block({left, top}, [&](PrintWafer& page) { page.DrawWaferSize(wafobj, left, top); });
}

void ControlFrame::WaferDiameter(double v) {
  if (!is_finite(v)) return;
  wafobj.reset();  // contract 30
  quietly([&] { wipe_drawing(); });
  forget_snapshot();
  PlotShown = false;
  wafobj.WafDiam = v > 0 ? v : default_wafer_diameter;
  wafobj.WaferOrigRad = wafobj.WafDiam / 2;
  Refresh();
  notify("WaferDiameter");
}

void ControlFrame::TestDiameter(double v) {
  if (!is_finite(v)) return;
  if (v < 0) v = wafobj.WafDiam;
  if (wafobj.test_diam > v && wafobj.GetNop() > 0)
    quietly([&] { GlobalFunctions::ClipToTestDiameter(keeps_limits(), wafobj, v); });
  wafobj.test_diam = v;
  look_changed("TestDiameter");
}

void ControlFrame::WaferStyle(WaferSt v) {
  wafobj.flat_ratio = v == WaferSt::Flat ? flat_ratio_of_a_flat : 1.0;
  look_changed("WaferStyle");
}

void ControlFrame::About() {
  quietly([&] {
    frmAbout box(toolkit());
    box.SetTitle(about_type());
    box.Show();
  });
}

std::int32_t ControlFrame::hwnd() const {
  try {
    return peer() ? static_cast<std::int32_t>(static_cast<std::uint32_t>(peer()->handle())) : 0;
  } catch (...) {  // a peer may throw anything
    return 0;
  }
}

void ControlFrame::resize_to(double width, double height) {
  if (sizing_itself_ || !fits<std::int32_t>(width) || !fits<std::int32_t>(height)) return;
  Width = width;
  Height = height;
  resize_handler();
}

void ControlFrame::raise_size(const SurfaceSize& least) {
  const RaisedFlag sizing(sizing_itself_);
  if (Width < least.width) Width = least.width;
  if (Height < least.height) Height = least.height;
}

void ControlFrame::resize_handler() {
  quietly([&] {
    set_scale_of_host();
    lay_out();
  });
}

void ControlFrame::look_changed(const char* property) {
  PlotValid = false;
  Refresh();
  notify(property);
}

}  // namespace mirolen
