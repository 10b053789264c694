#include "mirolen/controls/Plot2DC.h"

#include <algorithm>

#include "mirolen/controls/arguments.h"
#include "mirolen/dialogs/frmPlotOpt2DC.h"
#include "mirolen/render/ContourInterval.h"
#include "mirolen/render/Screen.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr double default_interval = 1;

/// Shows the messages of a renderer with a control's toolkit, as long as it lives.
class MessagesThrough {
 public:
  explicit MessagesThrough(Toolkit& toolkit) {
    screen().message = [&toolkit](const std::string& text, const std::string& title) {
      toolkit.message_box(text, title, MessageIcon::none);
    };
  }
  ~MessagesThrough() { screen().message.swap(before_); }
  MessagesThrough(const MessagesThrough&) = delete;
  MessagesThrough& operator=(const MessagesThrough&) = delete;

 private:
  decltype(Screen::message) before_ = screen().message;
};

}  // namespace

Plot2DC::Plot2DC(Toolkit& toolkit, Container& container) : MapFrame(toolkit, container) {
  // Room for two numbers of ten places, as "-12345.600", in the label's font.
  constexpr double column = 2610, legend = 2400, inner = 2160;
  frmove.Width = column;
  Frame1.Move(0, 0, column, 3300);
  frleg.Move(120, 0, legend, 2760);
  legende.Width = inner;
  frInt.Border = false;
  frInt.Move(120, 2400, inner, 300);
  Label8.Move(0, 15, 700, 225);
  lbldist.Move(720, 15, 1215, 225);
  frleg0.Move(120, 0, legend, 600);
  lbldist0.Move(120, 270, inner, 225);
  Command1.Width = legend;
  FNLabel.Width = legend;
  place_legend();
  realize();
}

void Plot2DC::Interval(double v) {
  if (!is_finite(v)) return;
  interval_ = v > 0 ? v : default_interval;
  look_changed("Interval");
}

void Plot2DC::IntervalInPercent(std::int16_t v) {
  interval_in_percent_ = v;
  look_changed("IntervalInPercent");
}

void Plot2DC::MeasurementUnit(const std::string& v) {
  quietly([&] { measurement_unit_ = v; });
  look_changed("MeasurementUnit");
}

void Plot2DC::marksites(ExconEnum v) {
  if (!fits_16_bits(v)) return;
  marksites_ = v;
  look_changed("marksites");
}

void Plot2DC::Resolution(ResoEnum v) {
  if (!fits_16_bits(v)) return;
  resolution_ = v;
  look_changed("Resolution");
}

void Plot2DC::PlotColored(DrawColEnum v) {
  if (!fits_16_bits(v)) return;
  plot_colored_ = v;
  place_legend();
  look_changed("PlotColored");
}

/// The column has one form for ten colours and one for all else.
void Plot2DC::place_legend() {
  const bool ten_rows = plot_colored_ == DrawColEnum::Ten_ColorPlot;
  frleg0.Visible = !ten_rows;
  frleg.Visible = ten_rows;
  frmove.Height = ten_rows ? 5580 : 4440;
  FNLabel.Move(120, ten_rows ? 3330 : 1920);
  FNPic.Move(FNLabel.Left + (FNLabel.Width - FNPic.Width) / 2, FNLabel.Top + 240);
  Command1.Move(120, ten_rows ? 5100 : 3840);
}

void Plot2DC::color_legend(Color v) {
  frleg0.BackColor = v;
  frInt.BackColor = v;
}

void Plot2DC::ScaleType(std::int16_t v) {
  scale_type_ = v;
  look_changed("ScaleType");
}

void Plot2DC::MeanCurveColor(Color v) {
  wafobj.ColS2 = v;
  look_changed("MeanCurveColor");
}

void Plot2DC::UpperCurveColor(Color v) {
  wafobj.ColS1 = v;
  look_changed("UpperCurveColor");
}

void Plot2DC::LowerCurveColor(Color v) {
  wafobj.ColS3 = v;
  look_changed("LowerCurveColor");
}

void Plot2DC::InitProperties() {
  TestDiameter(194);
  WaferDiameter(200);
  WaferStyle(WaferSt::Notch);
  Resolution(ResoEnum::LowQuality);
  marksites(ExconEnum::Exact);
  Interval(1);
  PlotColored(static_cast<DrawColEnum>(-1));  // contract 49
  HideLegend(false);
  PlotCaption("Wafer");
  IntervalInPercent(-1);  // contract 49
}

void Plot2DC::fill_in_settings() {
  if (interval_ == 0) Interval(default_interval);
}

double Plot2DC::distance() const {
  try {
    return drawn_distance();
  } catch (const RunTimeError&) {
    return 0;
  }
}

double Plot2DC::drawn_distance() const {
  // contract 65
  return interval_in_percent_ == 0 ? interval_ : contour_interval_in_percent(wafobj, range(), interval_);
}

void Plot2DC::show_interval() {
  const std::string unit = interval_in_percent_ != 0 ? measurement_unit_ : "%";
  const std::string text = StringFormat::plain_text(interval_) + " " + unit;
  lbldist.Caption = text;
  lbldist0.Caption = text;
}

void Plot2DC::draw_plot() {
  if (plot_colored_ == DrawColEnum::Ten_ColorPlot) fill_legend();
  show_interval();
  const std::int16_t radius = to_int16(std::min(PLOTA.ScaleWidth(), PLOTA.ScaleHeight()) / 2 - 5);
  const MessagesThrough messages(toolkit());
  wafobj.D2Contour(PLOTA, radius, drawn_distance(), static_cast<std::int16_t>(marksites_),
                   static_cast<std::int16_t>(resolution_), static_cast<std::int16_t>(plot_colored_), 0, 0, 0,
                   0, 0);
}

std::int16_t Plot2DC::PrintPlot(double left, double top, double width, double height, bool DrawFrame) {
  return print_plot({left, top, width, height}, least_map, least_map, [&](PrintWafer& page) {
    // Paper and screen show the same curves: the property's 0 says percent.
    const bool in_percent = interval_in_percent_ == 0;  // contract 65
    const MessagesThrough messages(toolkit());
    page.Print_Contour(wafobj, left, top, width, height, interval_, in_percent, measurement_unit_,
                       static_cast<std::int16_t>(marksites_), static_cast<std::int16_t>(resolution_),
                       static_cast<std::int16_t>(plot_colored_), PlotCaption(), DrawFrame);
  });
}

std::int16_t Plot2DC::PrintPlot_THN(double left, double top, double width, double height, bool DrawFrame) {
  return print_plot({left, top, width, height}, least_map, least_map, [&](PrintWafer& page) {
    std::string no_text;
    const MessagesThrough messages(toolkit());
    page.Print_Contour_THN(wafobj, left, top, width, height, interval_, interval_in_percent_ != 0,
                           static_cast<std::int16_t>(marksites_), static_cast<std::int16_t>(resolution_),
                           static_cast<std::int16_t>(plot_colored_), PlotCaption(), no_text, DrawFrame);
  });
}

void Plot2DC::ask_options() {
  frmPlotOpt2DC form(toolkit());
  form.SetValues(wafobj, interval_, static_cast<std::int16_t>(resolution_),
                 static_cast<std::int16_t>(marksites_), static_cast<std::int16_t>(plot_colored_),
                 PLOTA.BackColor);
  if (!confirmed(form)) return;
  Interval(form.GetDist());
  Resolution(static_cast<ResoEnum>(form.GetReso()));
  marksites(static_cast<ExconEnum>(form.GetMarkeSites()));
  PlotColored(static_cast<DrawColEnum>(form.GetShowColor()));
  take_background(form.GetBackColor());
  RedrawPlot();
}

}  // namespace mirolen
