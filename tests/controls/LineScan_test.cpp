#include <algorithm>
#include <cmath>

#include "control_support.h"
#include "print_members.h"

namespace mirolen {
namespace {

constexpr int up = 38, down = 40;

class LineScanTest : public ControlTest<LineScan> {
 protected:
  void set_text(const std::string& text) { control.AngleValue.Text(text); }
  void press(int key) { control.AngleValue.OnKeyDown(key); }
  void expect_angle(int angle) const {
    EXPECT_EQ(control.angle(), angle);
    EXPECT_EQ(control.UpDown1.Value(), angle);
  }
  void take_line(double x1, double y1, double x2, double y2) {
    control.SetLineOrAngle(PlotTypeEnumLineScan::vbline, 0, 0, 0, x1, y1, x2, y2);
  }

  std::vector<recorded::Line> lines() const { return calls_of<recorded::Line>(recording_of(control.PLOTA)); }
  std::vector<recorded::Line> curve() const {
    std::vector<recorded::Line> pieces;
    for (const auto& line : lines())
      if (line.pen.color == QBColor(4)) pieces.push_back(line);
    return pieces;
  }
  /// The pieces of the curve along a line, drawn by hand.
  std::vector<recorded::Line> curve_by_hand(bool by_angle, int angle, double x1, double y1, double x2,
                                            double y2) const {
    Twin twin(control.PLOTA, toolkit);
    wafer copy = control.wafobj;
    copy.D1Plot(twin.canvas, 88, static_cast<std::int16_t>(angle), by_angle, x1, y1, x2, y2, QBColor(4), 0, 0,
                0, 0, 0);
    return calls_of<recorded::Line>(twin.recording());
  }
  void expect_curve_at(int angle) const {
    ASSERT_EQ(curve().size(), 88u);
    EXPECT_EQ(curve(), curve_by_hand(true, angle, control.RotationPointX(), control.RotationPointY(), 0, 0));
  }
  std::vector<std::string> labels(bool x) const {
    std::vector<std::string> texts;
    for (int i = 0; i < 5; ++i) texts.push_back((x ? control.lblX : control.lblY)(i).Caption);
    return texts;
  }
  std::vector<std::string> marks() const {
    std::vector<std::string> tips;
    for (int i = 0; i < control.picgrid.count(); ++i)
      if (control.picgrid(i).Visible) tips.push_back(control.picgrid(i).ToolTipText);
    return tips;
  }
  SiteColumns five_on_two_lines() const {
    return {{-40, -20, 0, 20, 40, 0, 0}, {0, 0, 0, 0, 0, 30, -30}, {1, 2, 3, 4, 5, 6, 7}};
  }
};

// ---- Modes and panels ----

TEST_F(LineScanTest, ShowsThePanelOfItsMode) {
  place();
  for (const int type : {1, 0, 3, -1, 2, 2, 1}) {
    control.PlotType(static_cast<PlotTypeEnumLineScan>(type));
    EXPECT_EQ(static_cast<int>(control.PlotType()), type);
    EXPECT_EQ(control.FNLabel(0).Visible.get(), type != 2) << type;
    EXPECT_EQ(control.FNLabel(1).Visible.get(), type == 2) << type;
  }
}

TEST_F(LineScanTest, TheModeMakesThePlotStaleAndIsTold) {
  place();
  control.PlotValid = true;
  control.PlotType(PlotTypeEnumLineScan::vbline);
  EXPECT_FALSE(control.PlotValid);
  EXPECT_EQ(form.changes, Names{"PlotType"});
}

TEST_F(LineScanTest, TheLegendIsTheStripWithPanelsAndButton) {
  place();
  control.HideLegend(true);
  EXPECT_FALSE(control.FNLabel(0).Visible || control.FNLabel(1).Visible || control.btnoptions.Visible);
  control.PlotType(PlotTypeEnumLineScan::vbline);
  EXPECT_TRUE(control.HideLegend());
  control.HideLegend(false);
  EXPECT_TRUE(control.FNLabel(1).Visible && control.btnoptions.Visible);
  EXPECT_FALSE(control.FNLabel(0).Visible);
}

// ---- The angle ----

TEST_F(LineScanTest, AnAngleIs0To359AndAFullTurnIs0) {
  place();
  for (const auto& [told, kept] : {std::pair{0, 0}, {1, 1}, {359, 359}, {360, 0}, {180, 180}}) {
    control.angle(static_cast<std::int16_t>(told));
    expect_angle(kept);
    EXPECT_EQ(control.AngleValue.Text(), std::to_string(kept));
  }
  EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(LineScanTest, AnotherAngleIsRefusedWithAMessage) {
  place();
  control.angle(45);
  forget_notices();
  for (const int told : {-1, 361, -32768, 32767}) {
    toolkit.messages.clear();
    control.angle(static_cast<std::int16_t>(told));
    ASSERT_EQ(toolkit.messages.size(), 1u);
    EXPECT_EQ(toolkit.messages[0], (HeadlessToolkit::Message{"Angle value must be between 0 and 359",
                                                             "Input Error", MessageIcon::critical}));
    expect_angle(45);
    EXPECT_EQ(control.AngleValue.Text(), "45");
  }
  EXPECT_EQ(form.changes, Names{});
}

TEST_F(LineScanTest, AnAngleIsToldInCapitals) {
  place();
  control.angle(45);
  EXPECT_EQ(form.changes, Names{"Angle"});
}

TEST_F(LineScanTest, AnAngleFromTheFieldIsToldOnceAChange) {
  place();
  for (const auto& [text, told] :
       {std::pair{"045", 1}, {"45", 0}, {"46", 1}, {"x", 1}, {"0", 0}, {"359", 1}, {"", 1}}) {
    form.changes.clear();
    control.AngleValue.Text(text);
    EXPECT_EQ(form.changes, Names(static_cast<std::size_t>(told), "Angle")) << text;
  }
  form.changes.clear();
  control.UpDown1.Value(7);
  EXPECT_EQ(form.changes, Names{"Angle"});
}

TEST_F(LineScanTest, AnAngleThatIsSetIsToldOnceAlsoWhenItStays) {
  place();
  for (int time = 0; time < 2; ++time) {
    form.changes.clear();
    control.angle(45);
    EXPECT_EQ(form.changes, Names{"Angle"});
  }
  form.changes.clear();
  control.SetLineOrAngle(PlotTypeEnumLineScan::vbAngle, 30, 0, 0, 0, 0, 0, 0);
  EXPECT_EQ(form.changes, Names{"Angle"});
  control.Plot();
  EXPECT_EQ(form.changes, Names{"Angle"});
}

TEST_F(LineScanTest, AnAngleDrawsAtOnce) {
  plot_square();
  control.angle(37);
  expect_curve_at(37);
  control.angle(360);
  expect_curve_at(0);
}

// ---- The field ----

TEST_F(LineScanTest, WholeNumbersInTheFieldAreAngles) {
  plot_square();
  for (const int angle : {1, 90, 359, 0}) {
    set_text(std::to_string(angle));
    expect_angle(angle);
    expect_curve_at(angle);
  }
}

TEST_F(LineScanTest, AnEmptiedFieldStaysEmptyAndMeans0) {
  plot_square();
  set_text("45");
  set_text("");
  EXPECT_EQ(control.AngleValue.Text(), "");
  expect_angle(0);
  expect_curve_at(0);
}

TEST_F(LineScanTest, KeysCountFrom0AfterAnEmptiedField) {
  plot_square();
  for (const auto& [key, angle] : {std::pair{up, 1}, {down, 359}}) {
    set_text("45");
    set_text("");
    press(key);
    expect_angle(angle);
    EXPECT_EQ(control.AngleValue.Text(), std::to_string(angle));
    expect_curve_at(angle);
  }
}

TEST_F(LineScanTest, LeadingZerosGo) {
  plot_square();
  set_text("007");
  expect_angle(7);
  EXPECT_EQ(control.AngleValue.Text(), "7");
  expect_curve_at(7);
}

TEST_F(LineScanTest, BadTextBecomes0) {
  plot_square();
  for (const char* bad :
       {"x", "-1", "360", "361", "1.5", "1e2", "-", " ", "4 5", "999999999999", "1d1", "1,5"}) {
    set_text("45");
    set_text(bad);
    EXPECT_EQ(control.AngleValue.Text(), "0") << bad;
    expect_angle(0);
    expect_curve_at(0);
  }
}

TEST_F(LineScanTest, TheFieldDrawsInLineModeByTheAngleToo) {
  plot_square();
  take_line(-30, -30, 60, 0);
  set_text("30");
  EXPECT_EQ(curve(), curve_by_hand(true, 30, 0, 0, 0, 0));
}

TEST_F(LineScanTest, TheFieldNeedsNoData) {
  place();
  set_text("45");
  expect_angle(45);
  EXPECT_TRUE(curve().empty());
  EXPECT_EQ(control.MousePointer(), 0);
}

// ---- Keys and spinner ----

TEST_F(LineScanTest, KeysTurnTheLineAndWrapAround) {
  plot_square();
  set_text("358");
  press(up);
  expect_angle(359);
  press(up);
  expect_angle(0);
  press(down);
  expect_angle(359);
  expect_curve_at(359);
  EXPECT_EQ(control.AngleValue.Text(), "359");
}

TEST_F(LineScanTest, KeysTakeTheStepOfTheSpinner) {
  place();
  control.UpDown1.Increment = 15;
  set_text("350");
  press(up);
  expect_angle(5);
  press(down);
  expect_angle(350);
  set_text("345");
  press(up);
  expect_angle(0);
  press(down);
  expect_angle(345);
}

TEST_F(LineScanTest, OtherKeysDoNothing) {
  place();
  set_text("45");
  for (const int key : {0, 13, 37, 39, 41, -38}) press(key);
  expect_angle(45);
}

TEST_F(LineScanTest, EachStepOfTheSpinnerDraws) {
  plot_square();
  for (const int angle : {1, 2, 359}) {
    control.UpDown1.Value(angle);
    EXPECT_EQ(control.AngleValue.Text(), std::to_string(angle));
    expect_angle(angle);
    expect_curve_at(angle);
  }
}

// ---- The points ----

TEST_F(LineScanTest, PointsAreKeptAndMakeThePlotStale) {
  plot_square();
  using Get = std::int16_t (LineScan::*)() const;
  using Let = void (LineScan::*)(std::int16_t);
  const std::tuple<const char*, Get, Let> points[] = {
      {"RotationPointX", &LineScan::RotationPointX, &LineScan::RotationPointX},
      {"RotationPointY", &LineScan::RotationPointY, &LineScan::RotationPointY},
      {"LineStartPointX", &LineScan::LineStartPointX, &LineScan::LineStartPointX},
      {"LineStartPointY", &LineScan::LineStartPointY, &LineScan::LineStartPointY},
      {"LineEndPointX", &LineScan::LineEndPointX, &LineScan::LineEndPointX},
      {"LineEndPointY", &LineScan::LineEndPointY, &LineScan::LineEndPointY}};
  const auto drawn = lines();
  std::int16_t value = 10;
  for (const auto& [name, get, let] : points) {
    form.changes.clear();
    control.PlotValid = true;
    (control.*let)(++value);
    EXPECT_EQ(form.changes, Names{name});
    EXPECT_FALSE(control.PlotValid) << name;
  }
  value = 10;
  for (const auto& [name, get, let] : points) EXPECT_EQ((control.*get)(), ++value) << name;
  EXPECT_EQ(lines(), drawn) << "nothing is drawn before the next plot";
}

TEST_F(LineScanTest, AnAngleAndItsPointAreTakenTogether) {
  plot_square();
  control.SetLineOrAngle(PlotTypeEnumLineScan::vbAngle, 30, 12.5, -7.25, 1, 2, 3, 4);
  std::int16_t angle = -1;
  double x1 = -1, y1 = -1, x2 = -1, y2 = -1;
  EXPECT_EQ(control.GetLineOrAngle(angle, x1, y1, x2, y2), 0);
  EXPECT_EQ(angle, 30);
  EXPECT_EQ(x1, 12.5);
  EXPECT_EQ(y1, -7.25);
  EXPECT_EQ(x2, -1) << "left as it was";
  EXPECT_EQ(y2, -1);
  EXPECT_EQ(control.LineStartPointX(), 0);
  EXPECT_EQ(curve(), curve_by_hand(true, 30, 12.5, -7.25, 0, 0));
}

TEST_F(LineScanTest, TwoPointsAreTakenTogether) {
  place();
  control.angle(77);
  control.RotationPointX(5);
  control.SetLineOrAngle(PlotTypeEnumLineScan::vbline, 30, 12, 13, 1.5, 2.25, -3.5, 4.75);
  EXPECT_TRUE(control.FNLabel(1).Visible);
  EXPECT_FALSE(control.FNLabel(0).Visible);
  std::int16_t angle = -1;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  EXPECT_EQ(control.GetLineOrAngle(angle, x1, y1, x2, y2), 0);
  EXPECT_EQ(angle, -1) << "left as it was";
  EXPECT_EQ((std::vector{x1, y1, x2, y2}), (std::vector{1.5, 2.25, -3.5, 4.75}));
  EXPECT_EQ(control.angle(), 77);
  EXPECT_EQ(control.RotationPointX(), 5);
}

TEST_F(LineScanTest, AnotherModeThanALineTakesTheAngle) {
  place();
  take_line(1, 2, 3, 4);
  control.SetLineOrAngle(static_cast<PlotTypeEnumLineScan>(7), 30, 12, 13, 9, 9, 9, 9);
  EXPECT_TRUE(control.FNLabel(0).Visible);
  EXPECT_FALSE(control.FNLabel(1).Visible);
  EXPECT_EQ(control.angle(), 30);
  EXPECT_EQ(control.RotationPointY(), 13);
  EXPECT_EQ(control.LineEndPointY(), 4);
}

TEST_F(LineScanTest, AnAngleBeyondTheTurnIsReplacedByTheField) {
  place();
  control.angle(45);
  control.SetLineOrAngle(PlotTypeEnumLineScan::vbAngle, 400, 0, 0, 0, 0, 0, 0);
  EXPECT_EQ(control.AngleValue.Text(), "0");
  expect_angle(0);
}

TEST_F(LineScanTest, PointsAreRoundedHalfToEvenAtTheProperties) {
  place();
  take_line(1.5, 2.5, -1.5, -2.5);
  EXPECT_EQ(control.LineStartPointX(), 2);
  EXPECT_EQ(control.LineStartPointY(), 2);
  EXPECT_EQ(control.LineEndPointX(), -2);
  EXPECT_EQ(control.LineEndPointY(), -2);
}

// ---- Redraw ----

TEST_F(LineScanTest, EveryPlotDrawsTheCurveOfTheAngle) {
  plot_square();
  expect_curve_at(0);
  control.RotationPointX(20);
  control.Plot();
  expect_curve_at(0);
  EXPECT_EQ(control.FNLabel(0).Caption.get(), "Angle :");
}

TEST_F(LineScanTest, APlotPutsTheAngleBackIntoTheField) {
  plot_square();
  set_text("45");
  set_text("");
  control.Plot();
  EXPECT_EQ(control.AngleValue.Text(), "0");
  expect_curve_at(0);
}

TEST_F(LineScanTest, EveryPlotDrawsTheCurveOfTheLine) {
  plot_square();
  take_line(-30, -20, 60, 10);
  control.Plot();
  ASSERT_EQ(curve().size(), 88u);
  EXPECT_EQ(curve(), curve_by_hand(false, 0, -30, -20, 60, 10));
}

TEST_F(LineScanTest, ThePlotShowsTheGridUnderTheCurve) {
  plot_square();
  EXPECT_EQ(lines().size(), 88u + 10);
  control.Plot();
  EXPECT_EQ(lines().size(), 88u + 10);
}

TEST_F(LineScanTest, TheMiniatureShowsOutlineAndLine) {
  plot_square();
  for (const bool line_mode : {false, true}) {
    if (line_mode) take_line(-30, -20, 60, 10);
    control.Plot();
    PictureBox& box = line_mode ? control.Picture1 : control.FNPic;
    Twin twin(box, toolkit);
    double x0 = 33, y0 = 33;
    control.wafobj.FlatNotchShow(nullptr, twin.canvas, x0, y0, 20, 0, 90);
    EXPECT_EQ(difference(recording_of(box), twin.recording()), "");
    const LineShape& line = line_mode ? control.Line1 : control.FNLine;
    EXPECT_NE(std::hypot(line.X2 - line.X1, line.Y2 - line.Y1), 0);
  }
}

TEST_F(LineScanTest, TheLineTurnsInTheMiniature) {
  plot_square();
  EXPECT_NEAR(control.FNLine.X1, control.FNLine.X2, 1);
  control.angle(90);
  EXPECT_NEAR(control.FNLine.Y1, control.FNLine.Y2, 1);
  EXPECT_GT(std::abs(control.FNLine.X1 - control.FNLine.X2), 10);
}

TEST_F(LineScanTest, TheLabelsTellPlacesAndValues) {
  plot_square();
  EXPECT_EQ(labels(true), (Names{"X=0.00\nY=-97.00", "X=0.00\nY=-48.50", "X=0.00\nY=0.00", "X=0.00\nY=48.50",
                                 "X=0.00\nY=97.00"}));
  // The text of 100 takes four places, its sign's one more.
  EXPECT_EQ(labels(false), (Names{"0.00", "25.00", "50.00", "75.00", "100.00"}));
  take_line(-10, 0, 10, 0);
  control.Plot();
  EXPECT_EQ(labels(true), (Names{"X=-97.00\nY=0.00", "X=-48.50\nY=0.00", "X=0.00\nY=0.00", "X=48.50\nY=0.00",
                                 "X=97.00\nY=0.00"}));
}

TEST_F(LineScanTest, WithoutEnoughSitesOnlyTheLabelsAreWritten) {
  place();
  control.load({{0, 10, 20}, {0, 10, 5}, {1, 2, 3}});
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_TRUE(curve().empty());
  EXPECT_EQ(labels(true)[4], "X=0.00\nY=97.00");
}

TEST_F(LineScanTest, ALineBesideTheWaferIsQuietlyLeftOut) {
  plot_square();
  take_line(-500, 400, 500, 400);
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_TRUE(curve().empty());
  EXPECT_EQ(control.MousePointer(), 0);
}

TEST_F(LineScanTest, AnUnknownModeIsThatOfTheAngle) {
  plot_square();
  control.RotationPointX(10);
  control.LineStartPointX(-40);
  control.LineEndPointX(50);
  control.ShowSites(true);
  control.angle(30);
  control.Plot();
  control.resize_to(control.Width, control.Height);  // the labels make room for themselves
  control.Plot();
  const auto x_labels = labels(true), y_labels = labels(false);
  const auto pieces = curve();
  const std::vector<std::string> tips = marks();
  const std::vector<double> line{control.FNLine.X1, control.FNLine.Y1, control.FNLine.X2, control.FNLine.Y2};
  const Recording miniature = recording_of(control.FNPic);
  for (const int odd : {0, 3, -1, 32767}) {
    control.PlotType(static_cast<PlotTypeEnumLineScan>(odd));
    EXPECT_EQ(static_cast<int>(control.PlotType()), odd) << "as set";
    control.Plot();
    control.resize_to(control.Width, control.Height);
    EXPECT_EQ(curve(), pieces) << odd;
    control.Plot();
    EXPECT_EQ(labels(true), x_labels) << odd;
    EXPECT_EQ(labels(false), y_labels) << odd;
    EXPECT_EQ(marks(), tips) << odd;
    EXPECT_EQ(
        (std::vector<double>{control.FNLine.X1, control.FNLine.Y1, control.FNLine.X2, control.FNLine.Y2}),
        line)
        << odd;
    EXPECT_EQ(difference(recording_of(control.FNPic), miniature), "") << odd;
  }
}

TEST_F(LineScanTest, AnUnknownModeIsPrintedAsThatOfTheAngle) {
  plot_square();
  control.RotationPointX(10);
  control.LineStartPointX(-40);
  control.LineEndPointX(50);
  const auto printed = [&](int mode) {
    control.PlotType(static_cast<PlotTypeEnumLineScan>(mode));
    const auto paper = std::make_shared<TestPrinter>();
    control.PrinterObj = paper;
    EXPECT_EQ(control.PrintPlot(700, 900, 9000, 7000), 0);
    return paper->recording();
  };
  const Recording by_angle = printed(1);
  EXPECT_NE(printed(2), by_angle);
  for (const int odd : {0, 3, -1}) EXPECT_EQ(difference(printed(odd), by_angle), "") << odd;
}

TEST_F(LineScanTest, EveryPlotIsDrawn) {
  plot_square();
  int cleared = 0;
  toolkit.on_draw = [&](const PictureBox& box, std::string_view call) {
    cleared += &box == &control.PLOTA && call == "clear";
  };
  control.Plot();
  EXPECT_GT(cleared, 0);
  toolkit.on_draw = nullptr;
}

// ---- Marks ----

TEST_F(LineScanTest, SitesOnTheLineAreMarkedWithTheirValues) {
  place();
  control.load(five_on_two_lines());
  control.ShowSites(true);
  control.angle(0);
  control.Plot();
  EXPECT_EQ(marks(), (Names{"X = 0  Y= 0 FW = 3", "X = 0  Y= 30 FW = 6", "X = 0  Y= -30 FW = 7"}));
  control.angle(90);
  EXPECT_EQ(marks(), (Names{"X = -40  Y= 0 FW = 1", "X = -20  Y= 0 FW = 2", "X = 0  Y= 0 FW = 3",
                            "X = 20  Y= 0 FW = 4", "X = 40  Y= 0 FW = 5"}));
}

TEST_F(LineScanTest, SitesAreMarkedOnALineToo) {
  place();
  control.load(five_on_two_lines());
  control.ShowSites(true);
  take_line(-5, 0, 5, 0);
  control.Plot();
  EXPECT_EQ(marks().size(), 5u);
}

TEST_F(LineScanTest, AMarkStandsWithItsMiddleOnTheCurve) {
  place();
  control.load(five_on_two_lines());
  control.ShowSites(true);
  take_line(-5, 0, 5, 0);
  control.Plot();
  const double width = control.PLOTA.ScaleWidth(), height = control.PLOTA.ScaleHeight();
  for (int i = 0; i < control.picgrid.count(); ++i) {
    const Shape& mark = control.picgrid(i);
    if (mark.ToolTipText.get() != "X = 20  Y= 0 FW = 4") continue;
    EXPECT_NEAR(mark.Left, (97.0 + 20) / 194 * width - 105, 1e-6);
    EXPECT_NEAR(mark.Top, height - (4.0 - 1) / 6 * height - 105, 1e-6);
    EXPECT_EQ(mark.Width.get(), 210);
    return;
  }
  FAIL() << "no such mark";
}

TEST_F(LineScanTest, MarksGoWhenTheyAreNotWanted) {
  place();
  control.load(five_on_two_lines());
  control.ShowSites(true);
  control.Plot();
  ASSERT_EQ(marks().size(), 3u);
  control.ShowSites(false);
  EXPECT_FALSE(control.ShowSites());
  control.Plot();
  EXPECT_EQ(marks(), Names{});
}

// ---- Size ----

TEST_F(LineScanTest, TheLeastSizeDependsOnTheStrip) {
  place();
  control.resize_to(100, 100);
  EXPECT_EQ(control.Width.get(), 4000);
  EXPECT_EQ(control.Height.get(), 2850);
  control.HideLegend(true);
  control.resize_to(3999, 1769);
  EXPECT_EQ(control.Width.get(), 4000);
  EXPECT_EQ(control.Height.get(), 1770);
  control.resize_to(4000, 1770);
  EXPECT_EQ(control.Height.get(), 1770);
  control.HideLegend(false);
  EXPECT_EQ(control.Height.get(), 2850);
}

class LineScanSizes : public LineScanTest, public testing::WithParamInterface<std::pair<double, double>> {
 protected:
  void expect_labels_beside_the_chart() const {
    const PictureBox& chart = control.PLOTA;
    for (int i = 0; i < 4; ++i) {
      const double x = chart.Left + i * chart.Width / 4, y = chart.Height + 420 - i * chart.Height / 4;
      EXPECT_NEAR(control.lblX(i).Left, x - control.lblX(i).Width / 2, 1e-6);
      EXPECT_EQ(control.lblX(i).Top.get(), chart.Height + 550);
      EXPECT_NEAR(control.lblY(i).Top, y - control.lblY(i).Height / 2, 1e-6);
    }
    EXPECT_NEAR(control.lblX(4).Left, chart.Left + chart.Width - control.lblX(4).Width, 1e-6);
    EXPECT_EQ(control.lblX(4).Top.get(), chart.Height + 550);
  }
  void expect_strip(double width, double height) const {
    for (int panel = 0; panel < 2; ++panel) {
      EXPECT_EQ(control.FNLabel(panel).Left.get(), width / 2 - 1500);
      EXPECT_EQ(control.FNLabel(panel).Top.get(), height - control.FNLabel(0).Height);
    }
    EXPECT_EQ(control.btnoptions.Left.get(), width - control.btnoptions.Width);
    EXPECT_EQ(control.btnoptions.Top + control.btnoptions.Height, height);
  }
};

TEST_P(LineScanSizes, AreWorkedOutStepByStep) {
  const auto [width, height] = GetParam();
  place();
  control.load(square_of_sites());
  control.Plot();
  for (const bool hidden : {false, true}) {
    control.HideLegend(hidden);
    const double top = control.PLOTA.Top, highest = control.lblY(4).Top, left = control.lblY(2).Left;
    control.resize_to(width, height);
    EXPECT_EQ(control.PlotFrame.Left.get(), 0);
    EXPECT_EQ(control.PlotFrame.Top.get(), 0);
    EXPECT_EQ(control.PlotFrame.Width.get(), width);
    EXPECT_EQ(control.PlotFrame.Height.get(), hidden ? height : height - 1400);
    const double L = control.lblY(4).Left + control.lblY(4).Width;
    EXPECT_EQ(control.PLOTA.Left.get(), L + 50);
    EXPECT_EQ(control.PLOTA.Top.get(), top);
    EXPECT_EQ(control.PLOTA.Width.get(), width - (L + 250));
    EXPECT_EQ(control.PLOTA.Height.get(), control.PlotFrame.Height - 1025);
    expect_labels_beside_the_chart();
    EXPECT_EQ(control.lblY(4).Top.get(), highest);
    EXPECT_EQ(control.lblY(2).Left.get(), left);
    if (!hidden) expect_strip(width, height);
    expect_curve_at(0);
  }
}

INSTANTIATE_TEST_SUITE_P(LineScan, LineScanSizes,
                         testing::Values(std::pair{4000.0, 2850.0}, std::pair{6000.0, 4000.0},
                                         std::pair{12345.0, 3000.0}, std::pair{4100.0, 9000.0}));

TEST_F(LineScanTest, TheWidestValueMakesRoomForItself) {
  place();
  SiteColumns sites = square_of_sites();
  control.load(sites);
  control.resize_to(6000, 4000);
  EXPECT_EQ(control.lblY(4).Caption.get(), "100.00");
  const double before = control.PLOTA.Left;
  for (double& z : sites.z) z += 20000;
  control.load(sites);
  control.resize_to(6000, 4000);
  EXPECT_NE(control.lblY(4).Caption.get(), "100.00");
  EXPECT_NE(control.PLOTA.Left.get(), before - 1);
  EXPECT_EQ(control.PLOTA.Left.get(), control.lblY(4).Left + control.lblY(4).Width + 50);
}

TEST_F(LineScanTest, AChangeOfSizeSetsTheScaleModeOfTheForm) {
  form.scale_mode = 3;
  control.resize_to(6000, 4000);
  EXPECT_EQ(form.scale_mode, 1);
}

TEST_F(LineScanTest, AChangeOfSizeDrawsGridAndCurveAnew) {
  plot_square();
  control.resize_to(9000, 7000);
  EXPECT_EQ(lines().size(), 10u + 88);
  expect_curve_at(0);
  const auto grid = lines();
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(grid[static_cast<std::size_t>(i)].pen.color, QBColor(1));
  }
}

TEST_F(LineScanTest, AChangeOfSizeDrawsTheLineOfTheModeAndItsMarks) {
  place();
  control.load(five_on_two_lines());
  control.ShowSites(true);
  take_line(-5, 0, 5, 0);
  control.Plot();
  control.resize_to(9000, 7000);
  EXPECT_EQ(curve(), curve_by_hand(false, 0, -5, 0, 5, 0));
  EXPECT_EQ(marks().size(), 5u);
}

TEST_F(LineScanTest, AChangeOfSizeDrawsByTheLineOnlyInItsMode) {
  plot_square();
  take_line(-30, -20, 60, 10);
  control.PlotType(static_cast<PlotTypeEnumLineScan>(3));
  control.resize_to(9000, 7000);
  EXPECT_EQ(curve(), curve_by_hand(true, 0, 0, 0, 0, 0));
}

TEST_F(LineScanTest, AFormWithoutScaleModeDoesNotEndAChangeOfSize) {
  FormWithoutScaleMode bare;
  Open<LineScan> on_bare(toolkit, bare);
  on_bare.InitProperties();
  on_bare.resize_to(6000, 4000);
  EXPECT_EQ(on_bare.PlotFrame.Width.get(), 6000);
  EXPECT_EQ(on_bare.PLOTA.Height.get(), 4000 - 1400 - 1025);
}

TEST_F(LineScanTest, ThePictureOfTheMarksFollowsTheChart) {
  place();
  control.resize_to(9000, 7000);
  EXPECT_EQ(control.plus.Left.get(), control.PLOTA.Left);
  EXPECT_EQ(control.plus.Top.get(), control.PLOTA.Top);
  EXPECT_FALSE(control.plus.Visible);
}

TEST_F(LineScanTest, WithoutAPlotAChangeOfSizeDrawsTheGridAlone) {
  place();
  control.load(square_of_sites());
  control.resize_to(9000, 7000);
  EXPECT_EQ(lines().size(), 10u);
}

TEST_F(LineScanTest, ClearWipesCurveAndMarks) {
  place();
  control.load(five_on_two_lines());
  control.ShowSites(true);
  control.Plot();
  control.clear();
  EXPECT_TRUE(curve().empty());
  EXPECT_FALSE(control.PlotShown);
  EXPECT_EQ(sites_of(control).x.size(), 7u);
}

TEST_F(LineScanTest, NewDataTakeTheMarksOfTheOldAway) {
  place();
  control.ShowSites(true);
  for (const auto& wipe :
       std::vector<std::function<void()>>{[&] {
                                            control.load({{0, 10, 20}, {0, 10, 5}, {1, 2, 3}});
                                          },
                                          [&] { control.WaferDiameter(200); }, [&] { control.clear(); }}) {
    control.load(five_on_two_lines());
    control.Plot();
    ASSERT_EQ(marks().size(), 3u);
    wipe();
    EXPECT_EQ(marks(), Names{});
  }
}

TEST_F(LineScanTest, ABackgroundDrawsTheMiniatureAloneAnew) {
  plot_square();
  const auto drawn = lines();
  control.RotationPointX(20);
  control.MousePointer(5);
  control.BackColor(0x445566);
  EXPECT_EQ(lines(), drawn) << "the point is for the next plot";
  EXPECT_EQ(control.MousePointer(), 5);
  Twin twin(control.FNPic, toolkit);
  double x0 = 33, y0 = 33;
  control.wafobj.FlatNotchShow(nullptr, twin.canvas, x0, y0, 20, 0, 90);
  EXPECT_EQ(difference(recording_of(control.FNPic), twin.recording()), "");
  EXPECT_EQ(control.FNLabel(0).Caption.get(), "Angle :");
}

TEST_F(LineScanTest, TheFocusGoesToTheButton) {
  control.OnEnterFocus();
  EXPECT_EQ(toolkit.focused, &control.btnoptions);
}

}  // namespace
}  // namespace mirolen
