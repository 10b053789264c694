#include "mirolen/controls/Histogram.h"

#include "mirolen/controls/Hourglass.h"
#include "mirolen/controls/arguments.h"
#include "mirolen/dialogs/frmPlotHist.h"
#include "mirolen/render/ControlLimits.h"

namespace mirolen {
namespace {

constexpr std::int16_t default_classes = 10;
constexpr double least_side = 2000;  // contract 36

}  // namespace

Histogram::Histogram(Toolkit& toolkit, Container& container) : ControlFrame(toolkit, container) {
  wafobj.ColS1 = QBColor(4);
  wafobj.ColS2 = QBColor(2);
  forward_events(frmhist);
  takes_focus(Command1);
  Command1.OnClick = [this] { ShowPlotOption(); };
  Command1.Move(0, 0, 1935, 420);
  PLOTA.Move(900, 150, 3000, 2000);
  PLOTA.BackColor = QBColor(15);
  for (int i = 0; i < 2; ++i) lblX(i).Font = FontSpec{"Symbol"};
  copypic.Visible = false;
  control_limits().ShowCL = false;  // contract 86
  realize();
}

void Histogram::PlotType(PlotTyEnum v) {
  const bool known = v >= PlotTyEnum::vbbottom && v <= PlotTyEnum::vbRight;
  plot_type_ = known ? v : PlotTyEnum::vbbottom;
  look_changed("PlotType");
}

void Histogram::Resolution(double v) {
  if (!fits<std::int16_t>(v)) return;
  resolution_ = to_int16(v);
  if (resolution_ == 0) resolution_ = default_classes;
  look_changed("Resolution");
}

void Histogram::BeamColor(Color v) {
  wafobj.ColS2 = v;
  notify("BeamColor");
}

void Histogram::GaussCurveColor(Color v) {
  wafobj.ColS1 = v;
  notify("GaussCurveColor");
}

void Histogram::HideLegend(bool v) {
  Command1.Visible = !v;
  LegendShown = !v;
  Refresh();
  resize_handler();
  notify("HideLegend");
}

void Histogram::BackColor(Color v) {
  UserControl::BackColor = v;
  frmhist.BackColor = v;
  histPic.BackColor = v;
  if (PlotShown) quietly([&] { RedrawPlot(); });  // its texts were erased to the new background
  notify("BackColor");
}

void Histogram::wipe_drawing() {
  PLOTA.Cls();
  histPic.Cls();
}

void Histogram::clear() {
  quietly([&] { wipe_drawing(); });
  PlotShown = false;
  PlotValid = false;
}

bool Histogram::SetPlotLimit(double LPL, double UPL) {
  if (!all_finite({LPL, UPL})) return false;
  set_limits(true, LPL, UPL);  // contract 26
  return true;
}

void Histogram::ReleasePlotLimit() { set_limits(false, 0, 0); }

void Histogram::set_limits(bool set, double low, double high) {
  PlotLimitSet = set;
  wafobj.vLcl = low;
  wafobj.vUcl = high;
  if (!PlotShown) return;
  PlotValid = false;
  Plot();
}

void Histogram::SetChartDim(double topC, double heightC) {
  if (!all_finite({topC, heightC})) return;
  ChartTop = topC;
  ChartHeight = heightC;
  resize_handler();
}

void Histogram::Borderstyle(std::int16_t Bstyle) { frmhist.Border = Bstyle != 0; }

void Histogram::ShowControlLimit(double LCLs, double UCLs) {
  if (all_finite({LCLs, UCLs})) control_limits() = {true, LCLs, UCLs};
}

void Histogram::ResetControlLimit() { control_limits().ShowCL = false; }

void Histogram::InitProperties() {
  TestDiameter(194);
  WaferDiameter(200);
  WaferStyle(WaferSt::Notch);
  Resolution(10);
  HideLegend(false);
  PlotType(PlotTyEnum::vbbottom);
}

void Histogram::show_plot() {
  quietly([&] { RedrawPlot(); });
}

void Histogram::RedrawPlot() {
  const Hourglass busy(*this);
  wipe_drawing();
  // The chart leaves its texts' looks behind; each drawing starts alike.
  histPic.ForeColor(QBColor(0));
  histPic.Font(FontSpec{});
  double x0 = PLOTA.left() - 1, y0 = PLOTA.top() - 1;
  double breite = PLOTA.width(), hoehe = PLOTA.height();
  std::int16_t laenge = 4;
  double left = 0, top = 0;
  wafobj.Statistic(static_cast<std::int16_t>(plot_type_), PLOTA, histPic, x0, y0, breite, hoehe, resolution_,
                   laenge, left, top, 0);
}

void Histogram::lay_out() {
  if (ScaleWidth() < least_side || ScaleHeight() < least_side) {
    const SurfaceSize raised = smallest_size();
    raise_size(
        {ScaleWidth() < least_side ? raised.width : 0, ScaleHeight() < least_side ? raised.height : 0});
    return;
  }
  Command1.Top = ScaleHeight() - Command1.Height;
  Command1.Left = ScaleWidth() - Command1.Width;
  frmhist.Width = ScaleWidth();
  frmhist.Height = Command1.Visible ? Command1.Top - 120 : ScaleHeight();
  histPic.Move(frmhist.Left + 120, frmhist.Top + 240, frmhist.Width - 240, frmhist.Height - 360);
  place_chart();
  place_lines();
  if (PlotShown) Plot();
}

/// The chart lies on a picture whose scale is pixels.
void Histogram::place_chart() {
  const SurfaceSize pixel = toolkit().twips_per_pixel();
  const double left = PLOTA.left();
  if (ChartTop != 0) {
    PLOTA.Top = (ChartTop / pixel.width - histPic.Top / pixel.width) * pixel.height;  // contract 89
    PLOTA.Width = (histPic.ScaleWidth() - left - 20) * pixel.width;
    PLOTA.Height = ChartHeight;
  } else {
    PLOTA.Width = (histPic.ScaleWidth() - left - 40) * pixel.width;
    PLOTA.Height = (histPic.ScaleHeight() - PLOTA.top() - 40) * pixel.height;
  }
}

/// Four lines frame the chart, and two ticks stand at its bottom left corner.
void Histogram::place_lines() {
  const double width = PLOTA.width(), height = PLOTA.height();
  Line1(1).X2 = width;
  Line1(0).Y2 = height;
  Line1(2).X1 = Line1(1).X2 - 1;
  Line1(2).X2 = Line1(2).X1;
  Line1(2).Y2 = Line1(0).Y2;
  Line1(3).Y1 = height - 1;
  Line1(3).X2 = width;
  Line1(3).Y2 = Line1(3).Y1;
  const double x = PLOTA.left(), y = height + PLOTA.top() - 1;
  Line2.set_ends(x, y, x - 7, y);
  Line3.set_ends(x, y, x, y + 7);
}

template <class Print>
std::int16_t Histogram::print_chart(Place place, Print print) const {
  constexpr double least = 100;
  if (!can_print()) return 1;  // contract 22
  if (ScaleWidth() < least || ScaleHeight() < least) return 2;
  print_at(place, print);
  return 0;
}

std::int16_t Histogram::PrintPlot(double left, double top, double width, double height, bool DrawFrame) {
  return print_chart({left, top, width, height}, [&](PrintWafer& page) {
    page.Print_Histo(static_cast<std::int16_t>(plot_type_), wafobj, left, top, width, height, resolution_, 0,
                     frmhist.Caption, DrawFrame);
  });
}

std::int16_t Histogram::PrintPlot_THN(double left, double top, double width, double height) {
  return print_chart({left, top, width, height}, [&](PrintWafer& page) {
    page.Print_Histo_THN(static_cast<std::int16_t>(plot_type_), wafobj, left, top, width, height, resolution_,
                         0, frmhist.Caption);
  });
}

void Histogram::ask_options() {
  frmPlotHist form(toolkit());
  form.SetValues(wafobj, resolution_, PLOTA.BackColor);
  if (!confirmed(form)) return;
  Resolution(form.GetResolution());
  if (const Color back = form.GetBackColor(); back != PLOTA.BackColor) {
    PLOTA.BackColor = back;
    BackColor(back);
  }
  if (wafobj.GetNop() > 0) RedrawPlot();
}

}  // namespace mirolen
