#include "mirolen/controls/LineScan.h"

#include <algorithm>

#include "mirolen/controls/Hourglass.h"
#include "mirolen/controls/RaisedFlag.h"
#include "mirolen/controls/arguments.h"
#include "mirolen/core/translation.h"
#include "mirolen/dialogs/input_checks.h"

namespace mirolen {
namespace {

constexpr std::int16_t samples = 88;
constexpr int full_turn = 360;
constexpr int key_up = 38, key_down = 40;
constexpr double mark_size = 210;

}  // namespace

void MarkArray::add() {
  auto mark = std::make_unique<Shape>(container_);
  mark->Move(0, 0, mark_size, mark_size);
  mark->Look = Shape::Form::cross;
  mark->Visible = false;
  mark->realize();
  marks_.push_back(std::move(mark));
}

void MarkArray::hide_all() {
  for (const auto& mark : marks_) mark->Visible = false;
}

void MarkArray::show(int mark, double left, double top, const std::string& tool_tip) {
  Shape& shown = *marks_.at(static_cast<std::size_t>(mark));
  shown.Move(left, top);
  shown.ToolTipText = tool_tip;
  shown.Visible = true;
}

LineScan::LineScan(Toolkit& toolkit, Container& container) : ControlFrame(toolkit, container) {
  forward_events(PlotFrame);
  takes_focus(btnoptions);
  btnoptions.OnClick = [this] { ShowPlotOption(); };
  AngleValue.OnChange = [this] {
    quietly([&] { angle_text_changed(); });
    if (angle_ != told_angle_) tell_angle();
  };
  AngleValue.OnKeyDown = [this](int key) { angle_key(key); };
  UpDown1.OnChange = [this] {
    if (!emptied_) AngleValue.Text(std::to_string(UpDown1.Value()));
  };
  place_children();
  realize();
}

void LineScan::place_children() {
  PLOTA.ScaleMode(twips);
  PLOTA.BackColor = QBColor(15);
  PLOTA.Move(900, 420);
  plus.Move(0, 0, mark_size, mark_size);
  plus.Look = Shape::Form::cross;
  plus.Visible = false;
  for (int i = 0; i < 5; ++i) {
    lblX(i).Move(0, 0, 960, 450);
    lblX(i).Centered = true;
    lblY(i).Move(120, 300, 0, 225);
    lblY(i).AutoSize = true;
  }
  lblX(4).Width = 840;  // its text ends at the chart's edge
  for (int panel = 0; panel < 2; ++panel)
    FNLabel(panel).Move(0, 0, 2385, 1350);  // clear of the button at the smallest width
  FNLabel(0).Caption = tr("Angle :");
  FNLabel(1).Visible = false;
  for (PictureBox* miniature : {&FNPic, &Picture1}) miniature->Move(150, 255, 990, 990);
  for (Shape* cross : {&picplus, &Picture2}) {
    cross->Move(0, 0, 330, 330);  // this size takes it beyond the line's end; its cross is smaller
    cross->Look = Shape::Form::cross;
    cross->Visible = false;
  }
  AngleValue.Move(1320, 540, 660, 330);
  AngleValue.Text("0");
  UpDown1.Move(1980, 540, 270, 330);
  UpDown1.Max = full_turn - 1;
  btnoptions.Move(0, 0, 1110, 420);
}

void LineScan::PlotType(PlotTypeEnumLineScan v) {
  if (!fits_16_bits(v)) return;
  plot_type_ = v;
  show_panels();
  look_changed("PlotType");
}

void LineScan::show_panels() {
  FNLabel(0).Visible = LegendShown && !line_mode();
  FNLabel(1).Visible = LegendShown && line_mode();
}

void LineScan::angle(std::int16_t v) {
  if (v < 0 || v > full_turn) {  // contract 35
    quietly([&] {
      toolkit().message_box(tr("Angle value must be between 0 and 359"), tr("Input Error"),
                            MessageIcon::critical);
    });
    return;
  }
  const std::int16_t told = told_angle_;
  AngleValue.Text(std::to_string(v == full_turn ? 0 : v));
  if (told_angle_ == told) tell_angle();  // a change has told itself
}

void LineScan::tell_angle() {
  told_angle_ = angle_;
  notify("Angle");  // contract 6
}

void LineScan::set_point(double& coordinate, std::int16_t v, const char* property) {
  coordinate = v;
  look_changed(property);
}

void LineScan::ShowSites(bool v) {
  show_sites_ = v;
  look_changed("ShowSites");
}

void LineScan::SetLineOrAngle(PlotTypeEnumLineScan PlotType, std::int16_t angle, double AngleX, double AngleY,
                              double StartX, double StartY, double EndX, double EndY) {
  if (!fits_16_bits(PlotType)) return;
  for (const double coordinate : {AngleX, AngleY, StartX, StartY, EndX, EndY})
    if (!fits<std::int16_t>(coordinate)) return;
  plot_type_ = PlotType;
  show_panels();
  if (line_mode()) {
    start_x_ = StartX;
    start_y_ = StartY;
    end_x_ = EndX;
    end_y_ = EndY;
  } else {
    rotation_x_ = AngleX;
    rotation_y_ = AngleY;
    AngleValue.Text(std::to_string(angle));
  }
}

// contract 34
std::int16_t LineScan::GetLineOrAngle(std::int16_t& angle, double& StartX, double& StartY, double& EndX,
                                      double& EndY) const {
  if (line_mode()) {
    StartX = start_x_;
    StartY = start_y_;
    EndX = end_x_;
    EndY = end_y_;
  } else {
    angle = angle_;
    StartX = rotation_x_;
    StartY = rotation_y_;
  }
  return 0;
}

void LineScan::HideLegend(bool v) {
  LegendShown = !v;
  btnoptions.Visible = !v;
  show_panels();
  Refresh();
  resize_handler();
  notify("HideLegend");
}

void LineScan::BackColor(Color v) {
  UserControl::BackColor = v;
  PlotFrame.BackColor = v;
  for (int i = 0; i < 5; ++i) {
    lblX(i).BackColor = v;
    lblY(i).BackColor = v;
  }
  for (int panel = 0; panel < 2; ++panel) FNLabel(panel).BackColor = v;
  FNPic.BackColor = v;
  Picture1.BackColor = v;
  if (PlotShown) quietly([&] { show_outline(); });  // its picture was erased to the new background
  notify("BackColor");
}

void LineScan::wipe_drawing() {
  picgrid.hide_all();
  PLOTA.Cls();
}

void LineScan::clear() {
  quietly([&] { wipe_drawing(); });
  PlotShown = false;
  PlotValid = false;
}

void LineScan::PlotCaption(const std::string& v) {
  quietly([&] { PlotFrame.Caption = v; });
  look_changed("PlotCaption");
}

void LineScan::InitProperties() {
  TestDiameter(194);
  WaferDiameter(200);
  WaferStyle(WaferSt::Notch);
  ShowSites(false);
  HideLegend(false);
  PlotCaption("");
}

void LineScan::show_plot() {
  quietly([&] {
    // Other data may need more room for the numbers beside the chart, or less.
    if (PLOTA.Left != left_of_chart()) lay_out_chart();
    RedrawPlot();
  });
}

void LineScan::RedrawPlot() {
  const Hourglass busy(*this);
  if (line_mode())
    redraw_line();
  else
    redraw_angle();
}

void LineScan::show_outline() {
  double x0 = 33, y0 = 33;
  wafobj.FlatNotchShow(&FNLabel(line_mode() ? 1 : 0), line_mode() ? Picture1 : FNPic, x0, y0, 20, 0, 90);
  FNLabel(0).Caption = tr("Angle :");
}

void LineScan::redraw_angle() {
  show_outline();
  // Another text draws by its change; an equal one would not.
  if (number_in(AngleValue.Text()) == angle_) draw_by_angle();
  AngleValue.Text(std::to_string(angle_));
}

void LineScan::redraw_line() {
  if (!(wafobj.GetNop() > 0)) return;
  PLOTA.Cls();
  write_labels();
  show_outline();
  wafobj.draw_indicator(Line1, Picture2, mode(), angle_, rotation_x_, rotation_y_, start_x_, start_y_, end_x_,
                        end_y_, Picture1);
  draw_curve(false);
}

void LineScan::draw_by_angle() {
  PLOTA.Cls();
  wafobj.draw_indicator(FNLine, picplus, mode(), angle_, rotation_x_, rotation_y_, start_x_, start_y_, end_x_,
                        end_y_, FNPic);
  write_labels();
  if (wafobj.GetNop() > 0) draw_curve(true);
}

void LineScan::draw_curve(bool by_angle) {
  const double x1 = by_angle ? rotation_x_ : start_x_, y1 = by_angle ? rotation_y_ : start_y_;
  wafobj.D1Plot(PLOTA, samples, angle_, by_angle, x1, y1, end_x_, end_y_, QBColor(4), 0, 0, 0, 0, 0);
  if (show_sites_)
    wafobj.D1Plot_MarkSites(PLOTA, &picgrid, angle_, by_angle, x1, y1, end_x_, end_y_, QBColor(4), 0, 0, 0, 0,
                            0);
  else
    picgrid.hide_all();
  PLOTA.Refresh();
}

void LineScan::write_labels() {
  wafobj.D1Plot_Show_lblXY(lblX.as<CaptionLabel>(), lblY.as<CaptionLabel>(), mode(), angle_, rotation_x_,
                           rotation_y_, start_x_, start_y_, end_x_, end_y_);
}

void LineScan::angle_text_changed() {
  const std::string text = AngleValue.Text();
  if (!IsInRangeOrOpen(text, -1, full_turn) || !IsPlainInteger(text)) return AngleValue.Text("0");
  angle_ = to_int16(number_in(text));
  turn_spinner();
  draw_by_angle();  // contract 90
}

/// An emptied field stays empty, though the spinner goes to 0.
void LineScan::turn_spinner() {
  if (!AngleValue.Text().empty()) return UpDown1.Value(angle_);
  const RaisedFlag emptied(emptied_);
  UpDown1.Value(angle_);
}

void LineScan::angle_key(int key) {
  const int step = UpDown1.Increment;
  int value = UpDown1.Value();
  if (key == key_up) {
    value += step;
    if (value >= full_turn) value -= full_turn;
  } else if (key == key_down) {
    value -= step;
    if (value < 0) value += full_turn;
  } else {
    return;
  }
  UpDown1.Value(value);
}

void LineScan::lay_out() {
  const ResumeNext resume([this] { leave_undone(); });
  constexpr double strip = 1400;
  raise_size(smallest_size());
  PlotFrame.Move(0, 0, ScaleWidth(), LegendShown ? ScaleHeight() - strip : ScaleHeight());
  if (LegendShown) {
    for (int panel = 0; panel < 2; ++panel)
      FNLabel(panel).Move(ScaleWidth() / 2 - 1500, ScaleHeight() - FNLabel(0).Height);
    btnoptions.Move(ScaleWidth() - btnoptions.Width, FNLabel(0).Top + FNLabel(0).Height - btnoptions.Height);
  }
  lay_out_chart();
  if (PlotShown) resume([&] { draw_curve(!line_mode()); });
}

/// The width of the topmost label decides the room of the chart.
double LineScan::left_of_chart() {
  const ResumeNext resume([this] { leave_undone(); });
  resume([&] { lblY(4).Caption = wafobj.scan_label(wafobj.maximal); });
  return lblY(4).Left + lblY(4).Width + 50;
}

void LineScan::lay_out_chart() {
  const ResumeNext resume([this] { leave_undone(); });
  const double left = left_of_chart();
  PLOTA.Move(left, {}, PlotFrame.Width - (left + 200), PlotFrame.Height - 1025);
  plus.Move(PLOTA.Left, PLOTA.Top);
  place_labels();
  resume([&] {
    PLOTA.forget_background();
    PLOTA.Cls();
  });
  resume([&] { wafobj.D1Plot_AdjustLines(PLOTA, 0, 0, PLOTA.Width, PLOTA.Height); });
}

void LineScan::place_labels() {
  double x = PLOTA.Left;
  for (int i = 0; i < 4; ++i, x += PLOTA.Width / 4) lblX(i).Move(x - lblX(i).Width / 2, PLOTA.Height + 550);
  lblX(4).Move(PLOTA.Left + PLOTA.Width - lblX(4).Width,
               PLOTA.Height + 550);  // inside the chart's right edge
  double y = PLOTA.Height + 420;
  for (int i = 0; i < 4; ++i, y -= PLOTA.Height / 4) lblY(i).Top = y - lblY(i).Height / 2;
}

std::int16_t LineScan::PrintPlot(double left, double top, double width, double height, bool DrawFrame) {
  return print_plot({left, top, width, height}, 4000, 2850, [&](PrintWafer& page) {
    page.Print_1DPlot(wafobj, angle_, mode(), rotation_x_, rotation_y_, start_x_, start_y_, end_x_, end_y_,
                      show_sites_, PlotCaption(), left, top, width, height, DrawFrame);
  });
}

}  // namespace mirolen
