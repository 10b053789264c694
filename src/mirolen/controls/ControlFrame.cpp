#include "mirolen/controls/ControlFrame.h"

#include <cmath>

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

std::int16_t ControlFrame::SetWaferData(const ArrayView& x, const ArrayView& y, const ArrayView& Z) {
  try {
    const std::int16_t result = GlobalFunctions::LoadSiteArrays(keeps_limits(), wafobj, x, y, Z);
    data_changed();
    return result;
  } catch (const std::exception&) {
    PlotValid = false;  // the drawing stays, but the next one shows what the store holds now
    return 4;
  }
}

std::int16_t ControlFrame::SetDataFile(const std::string& datafile, double nops) {
  try {
    const std::int16_t result = GlobalFunctions::LoadSiteFile(keeps_limits(), wafobj, datafile, nops);
    data_changed();
    return result;
  } catch (const std::exception&) {
    return 4;
  }
}

void ControlFrame::data_changed() {
  wipe_drawing();
  PlotShown = false;
  PlotValid = false;
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
  if (wafobj.WafDiam == 0) WaferDiameter(default_wafer_diameter);
  if (wafobj.test_diam == 0 || wafobj.test_diam > wafobj.WafDiam) TestDiameter(wafobj.WafDiam);
  fill_in_settings();
  show_plot();
  return 0;
}

void ControlFrame::ShowPlotOption() {
  quietly([&] { ask_options(); });
}

bool ControlFrame::confirmed(OptionForm& form) {
  if (asking_) return false;
  asking_ = true;
  quietly([&] { form.Show(); });
  asking_ = false;
  return form.Redraw();
}

bool ControlFrame::SetPlotLimit(double LPL, double UPL) {
  if (!std::isfinite(LPL) || !std::isfinite(UPL)) return false;
  if (UPL == wafobj.maximal && LPL == wafobj.minimal) return false;
  bool taken = false;
  quietly([&] { taken = GlobalFunctions::ApplyPlotLimit(wafobj, LPL, UPL); });
  PlotLimitSet = taken;
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

double ControlFrame::range() const { return finite_or_zero(wafobj.maxi - wafobj.mini); }

double ControlFrame::HiLo() const {
  const double sum = wafobj.maxi + wafobj.mini;
  return sum == 0 ? 0 : finite_or_zero(std::abs((wafobj.maxi - wafobj.mini) / sum) * 100);
}

double ControlFrame::StdDevPercent() const {
  return wafobj.mean <= 0 ? 0 : finite_or_zero(std::abs(wafobj.StdDev / wafobj.mean) * 100);
}

std::int16_t ControlFrame::PrintWaferStatistic(double left, double top, const std::string& units) {
  wafobj.Meas_unit = units;
  return print_block([&](PrintWafer& page) { page.DrawWaferStatistics(wafobj, left, top); });
}

std::int16_t ControlFrame::PrintWaferSize(double left, double top) {
  return print_block([&](PrintWafer& page) { page.DrawWaferSize(wafobj, left, top); });
}

void ControlFrame::WaferDiameter(double v) {
  wafobj.reset();
  quietly([&] { wipe_drawing(); });
  forget_snapshot();
  PlotShown = false;
  wafobj.WafDiam = is_finite(v) && v > 0 ? v : default_wafer_diameter;
  wafobj.WaferOrigRad = wafobj.WafDiam / 2;
  Refresh();
  notify("WaferDiameter");
}

void ControlFrame::TestDiameter(double v) {
  if (!is_finite(v) || v < 0) v = wafobj.WafDiam;
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
  return peer() ? static_cast<std::int32_t>(static_cast<std::uint32_t>(peer()->handle())) : 0;
}

void ControlFrame::resize_to(double width, double height) {
  if (sizing_itself_) return;
  Width = width;
  Height = height;
  resize_handler();
}

void ControlFrame::raise_size(const SurfaceSize& least) {
  sizing_itself_ = true;
  if (Width < least.width) Width = least.width;
  if (Height < least.height) Height = least.height;
  sizing_itself_ = false;
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
