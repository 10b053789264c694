#include "mirolen/controls/MapFrame.h"

#include <algorithm>
#include <string>

#include "mirolen/controls/Hourglass.h"
#include "mirolen/render/ColorScale.h"
#include "mirolen/render/PlotArea.h"

namespace mirolen {
namespace {

constexpr double row_height = 210;

}  // namespace

MapFrame::MapFrame(Toolkit& toolkit, Container& container) : ControlFrame(toolkit, container) {
  forward_events(Frplot);
  forward_events(frmove);
  takes_focus(Command1);
  Command1.OnClick = [this] { ShowPlotOption(); };
  place_children();
}

void MapFrame::place_children() {
  Frplot.Caption = " Wafer ";  // a property of the host, so in no language (contract 112, 113)
  PLOTA.Move(120, 240);
  frmove.Border = false;
  frmove.Height = 4290;
  Frame1.Border = false;
  Frame1.Height = 2520;
  frleg.Move(105, 0, 1935, 2445);
  legende.Move(120, 255, 1695, 10 * row_height);
  for (int row = 1; row <= 10; ++row) {
    scalCol(row).Move(0, (row - 1) * row_height, 270, row_height);
    ScaleValue(row).Move(345, (row - 1) * row_height, 0, row_height);
    ScaleValue(row).AutoSize = true;
  }
  // The button stands above the orientation mark, so that legend, button and the mark's name show at the
  // smallest height.
  Command1.Move(105, 2520, 1935, 390);
  FNLabel.Move(105, 2940, 1935, 225);
  FNLabel.Centered = true;
  FNPic.Move(555, 3165, 1020, 1020);
  copypic.Visible = false;
}

void MapFrame::make_room_in_legend(double room) {
  frleg.Height = frleg.Height + room;
  Frame1.Height = Frame1.Height + room;
  Command1.Top = Command1.Top + room;
  FNLabel.Top = FNLabel.Top + room;
  FNPic.Top = FNPic.Top + room;
  frmove.Height = frmove.Height + room;
}

void MapFrame::clear() {
  quietly([&] { wipe_drawing(); });
  forget_snapshot();
  PlotShown = false;
  PlotValid = false;
}

void MapFrame::wipe_drawing() { PLOTA.Cls(); }

void MapFrame::forget_snapshot() {
  RePlot.Stretch = false;
  PLOTA.Visible = true;
  RePlot.Picture = nullptr;
}

void MapFrame::HideLegend(bool v) {  // contract 31
  frmove.Visible = !v;
  LegendShown = !v;
  Refresh();
  resize_handler();
  notify("HideLegend");
}

void MapFrame::BackColor(Color v) {  // contract 40
  frmove.BackColor = v;
  legende.BackColor = v;
  FNPic.BackColor = v;
  FNLabel.BackColor = v;
  UserControl::BackColor = v;
  Frplot.BackColor = v;
  frleg.BackColor = v;
  Frame1.BackColor = v;
  color_legend(v);
  // The picture of the mark was erased to the new background.
  if (PlotShown || PlotValid) quietly([&] { repeat_orientation(); });
  notify("BackColor");
}

void MapFrame::take_background(Color v) {
  if (v == PLOTA.BackColor) return;
  PLOTA.BackColor = v;
  BackColor(v);
}

void MapFrame::PlotCaption(const std::string& v) {
  quietly([&] { Frplot.Caption = v; });
  look_changed("PlotCaption");
}

void MapFrame::lay_out() {
  fill_legend();
  const bool enough_room = LegendShown ? lay_out_legend() : lay_out_bare();
  if (!enough_room) return;

  Frplot.Width = 0.97 * plot_side_;  // contract 94
  Frplot.Height = plot_side_;
  PLOTA.Width = Frplot.Width - 2 * PLOTA.Left;
  PLOTA.Height = Frplot.Height - PLOTA.Top - PLOTA.Left;
  RePlot.Move(PLOTA.Left, PLOTA.Top, PLOTA.Width, PLOTA.Height);

  if (!PlotValid) {
    RedrawPlot();
  } else if (!RePlot.Stretch) {
    PLOTA.Visible = false;
    RePlot.Stretch = true;
  }
}

SurfaceSize MapFrame::smallest_size() const {
  return LegendShown ? SurfaceSize{4500, 3180} : SurfaceSize{750, 750};
}

bool MapFrame::too_small() const {
  const SurfaceSize least = smallest_size();
  return ScaleWidth() < least.width || ScaleHeight() < least.height;
}

bool MapFrame::lay_out_legend() {
  raise_size(smallest_size());
  if (too_small()) {
    give_up_size();
    return false;
  }

  size_legend();
  frmove.Left = ScaleWidth() - frmove.Width;
  plot_side_ = to_int32(std::min(ScaleWidth() - frmove.Width, ScaleHeight()));
  return true;
}

void MapFrame::size_legend() {
  double m = 1695;
  for (int i = 1; i <= 10; ++i) {
    const double right = ScaleValue(i).Left + ScaleValue(i).Width;
    if (right > m) m = round_half_even(right);
  }
  legende.Width = m;
  frleg.Width = legende.Width + 240;
  Frame1.Width = frleg.Width + 210;
  frmove.Width = Frame1.Width;
  Command1.Width = frleg.Width;
  FNLabel.Width = frleg.Width;
}

bool MapFrame::lay_out_bare() {
  if (too_small()) {
    raise_size(smallest_size());
    return false;  // contract 36
  }
  plot_side_ = to_int32(std::min(ScaleWidth(), ScaleHeight()));
  return true;
}

void MapFrame::RedrawPlot() {
  const Hourglass busy(*this);
  if (!(wafobj.GetNop() > 0)) return;
  if (RePlot.Stretch) forget_snapshot();
  toolkit().paint_pending();
  prepare_redraw();
  show_orientation();
  Refresh();
  const std::int64_t failures = PlotArea::canvas_failures();
  draw_plot();
  if (PlotArea::canvas_failures() != failures)
    leave_undone();  // a renderer leaves out what fails, and goes on
  keep_snapshot();
  PlotValid = true;
}

void MapFrame::fill_legend() { wafobj.scale_colored(scalCol.as<ColorBox>(), ScaleValue.as<ValueLabel>()); }

void MapFrame::show_orientation() {
  double x0 = 34, y0 = 34;
  wafobj.FlatNotchShow(&FNLabel, FNPic, x0, y0, 30, 0, 90);
}

double& MapFrame::color_field(int interval) { return band_color(wafobj, interval + 1); }

Color MapFrame::IntervalColor(int interval) const {
  if (interval < 0 || interval >= intervals()) return 0;
  return color_in(const_cast<MapFrame*>(this)->color_field(interval));
}

std::int16_t MapFrame::PrintLegend(double& left, double& top, bool DrawFrame) {
  return print_block({left, top},
                     [&](PrintWafer& page) { page.DrawColoredLegend(wafobj, left, top, DrawFrame); });
}

void MapFrame::IntervalColor(int interval, Color v) {
  if (interval < 0 || interval >= intervals()) return;
  color_field(interval) = v;
  look_changed(("IntervalColor" + std::to_string(interval)).c_str());
}

}  // namespace mirolen
