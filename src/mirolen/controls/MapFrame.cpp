#include "mirolen/controls/MapFrame.h"

#include <algorithm>

namespace mirolen {
namespace {

constexpr double row_height = 210;

/// The hourglass as long as it lives, and the default pointer after it, whatever the host had set.
class Hourglass {
 public:
  explicit Hourglass(UserControl& control) : control_(control) { control_.MousePointer = 11; }
  ~Hourglass() { control_.MousePointer = 0; }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  UserControl& control_;
};

}  // namespace

MapFrame::MapFrame(Toolkit& toolkit, Container& container) : ControlFrame(toolkit, container) {
  forward_events(Frplot);
  forward_events(frmove);
  OnEnterFocus = [this] {
    if (Command1.Visible) Command1.SetFocus();
  };
  place_children();
}

void MapFrame::place_children() {
  Move(0, 0, 6900, 4800);
  PLOTA.Move(120, 240);
  frmove.Border = false;
  frmove.Height = 4440;
  Frame1.Border = false;
  Frame1.Height = 2520;
  frleg.Move(105, 0, 1935, 2445);
  legende.Move(120, 255, 1695, 10 * row_height);
  for (int row = 1; row <= 10; ++row) {
    scalCol(row).Move(0, (row - 1) * row_height, 270, row_height);
    ScaleValue(row).Move(345, (row - 1) * row_height, 0, row_height);
    ScaleValue(row).AutoSize = true;
  }
  // The button stands above the orientation mark, so that both legend and button show at the smallest height.
  Command1.Move(105, 2580, 1935, 420);
  FNLabel.Move(105, 3090, 1935, 225);
  FNLabel.Centered = true;
  FNPic.Move(555, 3315, 1020, 1020);
  copypic.Visible = false;
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

void MapFrame::HideLegend(bool v) {
  frmove.Visible = !v;
  LegendShown = !v;
  Refresh();
  resize_handler();
  notify("HideLegend");
}

void MapFrame::BackColor(Color v) {
  frmove.BackColor = v;
  legende.BackColor = v;
  FNPic.BackColor = v;
  FNLabel.BackColor = v;
  UserControl::BackColor = v;
  Frplot.BackColor = v;
  frleg.BackColor = v;
  Frame1.BackColor = v;
  if (PlotShown) quietly([&] { show_orientation(); });  // its picture was erased to the new background
  notify("BackColor");
}

void MapFrame::PlotCaption(const std::string& v) {
  Frplot.Caption = v;
  look_changed("PlotCaption");
}

void MapFrame::lay_out() {
  fill_legend();
  const bool enough_room = LegendShown ? lay_out_legend() : lay_out_bare();
  if (!enough_room) return;

  Frplot.Width = 0.97 * plot_side_;
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

bool MapFrame::lay_out_legend() {
  constexpr double least_width = 4500, least_height = 3180;
  raise_size(least_width, least_height);
  if (ScaleWidth() < least_width || ScaleHeight() < least_height) return false;

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
  frmove.Left = ScaleWidth() - frmove.Width;
  plot_side_ = to_int16(std::min(ScaleWidth() - frmove.Width, ScaleHeight()));
  return true;
}

bool MapFrame::lay_out_bare() {
  constexpr double least = 750;
  if (ScaleWidth() < least || ScaleHeight() < least) {
    raise_size(least, least);
    return false;
  }
  plot_side_ = to_int16(std::min(ScaleWidth(), ScaleHeight()));
  return true;
}

void MapFrame::RedrawPlot() {
  const Hourglass busy(*this);
  if (!(wafobj.GetNop() > 0)) return;
  if (RePlot.Stretch) forget_snapshot();
  toolkit().run_pending_events();
  prepare_redraw();
  show_orientation();
  Refresh();
  draw_plot();
  PlotValid = true;
  RePlot.Picture = PLOTA.Image();
}

}  // namespace mirolen
