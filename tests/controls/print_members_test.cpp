#include "print_members.h"
#include "mirolen/render/Screen.h"

namespace mirolen {
namespace {

using automation::call;
using automation::invoke;
using automation::MemberKind;
using automation::ObjectReference;
using automation::Variant;

constexpr bool framed = true, bare = false;

std::string texts_of(const Recording& recording) {
  std::string texts;
  for (const recorded::Text& text : calls_of<recorded::Text>(recording)) texts += text.text + "|";
  return texts;
}

bool shows(const Recording& recording, const std::string& text) {
  return ("|" + texts_of(recording)).find("|" + text + "|") != std::string::npos;
}

/// A control with data, as large as it prints, and a printer for it.
template <class Control>
class PrintMembers : public ControlTest<Control> {
 protected:
  using Told = Prints<Control>;

  PrintMembers() : seed_(wanted_seed()), settings(seed_) {
    this->RecordProperty("MIROLEN_SEED", std::to_string(seed_));
    this->place();
    this->control.load(square_of_sites());
    this->control.PrinterObj = printer;
  }

  /// What the settings of the control give on a page.
  Recording expected(const PrintMember<Control>& member, bool with_frame, const PageArea& at = {}) {
    const auto paper = std::make_shared<TestPrinter>(printer->kind());
    PrintWafer page{paper};
    wafer copy = this->control.wafobj;
    member.expected(page, copy, this->control, at, with_frame);
    return paper->recording();
  }
  /// What the control prints.
  Recording printed(const PrintMember<Control>& member, bool with_frame, const PageArea& at = {}) {
    printer->forget();
    EXPECT_EQ(member.print(this->control, at, with_frame), 0) << member.name;
    return printer->recording();
  }
  void expect_as_told(const PrintMember<Control>& member, bool with_frame, const PageArea& at = {}) {
    const Recording expectation = expected(member, with_frame, at);
    ASSERT_GT(expectation.size(), 10u);
    EXPECT_EQ(difference(printed(member, with_frame, at), expectation), "")
        << member.name << " framed " << with_frame << " MIROLEN_SEED=" << seed_;
  }
  void expect_refused(std::int16_t code) {
    for (const auto& member : Told::members())
      for (const bool with_frame : {bare, framed})
        EXPECT_EQ(member.print(this->control, {}, with_frame), code) << member.name;
    EXPECT_EQ(printer->calls(), 0);
  }
  void size(double width, double height) {
    this->control.Width = width;
    this->control.Height = height;
  }

  std::shared_ptr<TestPrinter> printer = std::make_shared<TestPrinter>();

 private:
  unsigned long long seed_;

 protected:
  Settings settings;
};
TYPED_TEST_SUITE(PrintMembers, AllControls, ControlNames);

// ---- Guards ----

TYPED_TEST(PrintMembers, WithoutDataNothingIsPrinted) {
  this->control.WaferDiameter(200);
  this->expect_refused(TestFixture::Told::nothing_to_print);
  this->size(50, 50);
  this->expect_refused(TestFixture::Told::nothing_to_print);
}

TYPED_TEST(PrintMembers, WithoutATargetNothingIsPrinted) {
  this->control.PrinterObj = nullptr;
  this->expect_refused(TestFixture::Told::nothing_to_print);
  this->size(50, 50);
  this->expect_refused(TestFixture::Told::nothing_to_print);
}

TYPED_TEST(PrintMembers, ATargetWithoutADeviceIsAsNone) {
  class MissingPrinter : public TestPrinter {
   public:
    bool present() const override { return false; }
  };
  this->control.PrinterObj = std::make_shared<MissingPrinter>();
  this->expect_refused(TestFixture::Told::nothing_to_print);
  EXPECT_EQ(this->control.PrintWaferStatistic(0, 0, "nm"), 1);
  EXPECT_EQ(this->control.PrintWaferSize(0, 0), 1);
}

TYPED_TEST(PrintMembers, AControlThatIsTooSmallPrintsNoPlot) {
  using Told = typename TestFixture::Told;
  for (const auto& [width, height] : {std::pair{Told::least_width - 0.5, 9000.0},
                                      {9000.0, Told::least_height - 0.5},
                                      {Told::least_width - 0.5, Told::least_height - 0.5},
                                      {0.0, 0.0}}) {
    this->size(width, height);
    this->expect_refused(Told::too_small);
  }
}

TYPED_TEST(PrintMembers, AControlOfTheLeastSizePrints) {
  using Told = typename TestFixture::Told;
  this->size(Told::least_width, Told::least_height);
  for (const auto& member : Told::members()) this->expect_as_told(member, framed);
}

TYPED_TEST(PrintMembers, TheSizeOfTheControlIsNothingToTheBlocks) {
  this->size(0, 0);
  EXPECT_EQ(this->control.PrintWaferStatistic(100, 200, "nm"), 0);
  EXPECT_EQ(this->control.PrintWaferSize(100, 200), 0);
  EXPECT_GT(this->printer->recording().size(), 20u);
}

TYPED_TEST(PrintMembers, BlocksNeedDataAndATarget) {
  this->control.PrinterObj = nullptr;
  EXPECT_EQ(this->control.PrintWaferStatistic(0, 0, "a"), 1);
  EXPECT_EQ(this->control.PrintWaferSize(0, 0), 1);
  this->control.PrinterObj = this->printer;
  this->control.WaferDiameter(200);
  EXPECT_EQ(this->control.PrintWaferStatistic(0, 0, "b"), 1);
  EXPECT_EQ(this->control.PrintWaferSize(0, 0), 1);
  EXPECT_EQ(this->printer->calls(), 0);
}

TYPED_TEST(PrintMembers, TheUnitIsKeptBeforeTheGuard) {
  this->control.PrinterObj = nullptr;
  EXPECT_EQ(this->control.PrintWaferStatistic(0, 0, "ohm"), 1);
  EXPECT_EQ(this->control.wafobj.Meas_unit, "ohm");
  this->control.PrinterObj = this->printer;
  this->control.wafobj.reset();
  EXPECT_EQ(this->control.PrintWaferStatistic(0, 0, "nm"), 1);
  EXPECT_EQ(this->control.wafobj.Meas_unit, "nm");
}

// ---- What is printed ----

TYPED_TEST(PrintMembers, PrintThePresentSettings) {
  for (int round = 0; round < 6; ++round) {
    TestFixture::Told::vary(this->control, this->settings);
    this->control.WaferStyle(this->settings.yes() ? WaferSt::Flat : WaferSt::Notch);
    const PageArea at{this->settings.real(0, 2000), this->settings.real(0, 2000),
                      this->settings.real(4000, 9000), this->settings.real(4000, 9000)};
    for (const auto& member : TestFixture::Told::members())
      for (const bool with_frame : {bare, framed}) this->expect_as_told(member, with_frame, at);
  }
}

TYPED_TEST(PrintMembers, APreviewIsATargetToo) {
  this->printer = std::make_shared<TestPrinter>(CanvasKind::picture_box);
  this->control.PrinterObj = this->printer;
  for (const auto& member : TestFixture::Told::members()) this->expect_as_told(member, framed);
}

TYPED_TEST(PrintMembers, DrawFrameLeftOutIsFalse) {
  for (const auto& member : TestFixture::Told::members()) {
    const Recording without = this->printed(member, bare);
    this->printer->forget();
    EXPECT_EQ(member.print_without_flag(this->control, {}), 0);
    EXPECT_EQ(difference(this->printer->recording(), without), "") << member.name;
    this->printer->forget();
    const PageArea at;
    EXPECT_EQ(call(this->object(), member.name, {at.left, at.top, at.width, at.height}),
              Variant(std::int16_t{0}));
    EXPECT_EQ(difference(this->printer->recording(), without), "") << member.name;
    if (!member.takes_flag) continue;
    const Recording with_frame = this->printed(member, framed);
    EXPECT_NE(difference(with_frame, without), "") << member.name;
    this->printer->forget();
    call(this->object(), member.name, {at.left, at.top, at.width, at.height, true});
    EXPECT_EQ(difference(this->printer->recording(), with_frame), "") << member.name;
  }
}

TYPED_TEST(PrintMembers, TheAreaComesBackAsItWas) {
  for (const auto& member : TestFixture::Told::members()) {
    std::vector<Variant> area{700.0, 900.0, 9000.0, 7000.0};
    const std::vector<Variant> before = area;
    invoke(this->object(), member.name, MemberKind::method, area);
    EXPECT_EQ(area, before) << member.name;
  }
}

TYPED_TEST(PrintMembers, NeedNoPlotOnTheScreenAndMakeNone) {
  for (const auto& member : TestFixture::Told::members()) this->expect_as_told(member, framed);
  EXPECT_FALSE(this->control.PlotShown);
  EXPECT_FALSE(this->control.PlotValid);
  EXPECT_EQ(this->toolkit.redraws, 0);
  EXPECT_TRUE(this->form.changes.empty());
}

TYPED_TEST(PrintMembers, LeaveThePlotOnTheScreen) {
  ASSERT_EQ(this->control.Plot(), 0);
  const Recording before = recording_of(this->control.PLOTA);
  const bool valid = this->control.PlotValid;
  this->forget_notices();
  for (const auto& member : TestFixture::Told::members()) this->printed(member, framed);
  EXPECT_EQ(difference(recording_of(this->control.PLOTA), before), "");
  EXPECT_EQ(this->control.PlotValid, valid);
  EXPECT_TRUE(this->form.changes.empty());
  this->control.SetPlotNotVaild();
  ASSERT_EQ(this->control.Plot(), 0);
  EXPECT_EQ(difference(recording_of(this->control.PLOTA), before), "") << "the next plot is the same";
}

TYPED_TEST(PrintMembers, TheStatisticsAreThoseOfPrintWafer) {
  const auto paper = std::make_shared<TestPrinter>();
  PrintWafer page{paper};
  wafer copy = this->control.wafobj;
  copy.Meas_unit = "mOhm";
  page.DrawWaferStatistics(copy, 300, 400);
  EXPECT_EQ(this->control.PrintWaferStatistic(300, 400, "mOhm"), 0);
  EXPECT_EQ(difference(this->printer->recording(), paper->recording()), "");
  EXPECT_TRUE(shows(this->printer->recording(), "mOhm"));

  this->printer->forget();
  EXPECT_EQ(call(this->object(), "PrintWaferStatistic", {300.0, 400.0, std::string("mOhm")}),
            Variant(std::int16_t{0}));
  EXPECT_EQ(difference(this->printer->recording(), paper->recording()), "");
}

TYPED_TEST(PrintMembers, TheSizeIsThatOfPrintWafer) {
  const auto paper = std::make_shared<TestPrinter>();
  PrintWafer page{paper};
  page.DrawWaferSize(this->control.wafobj, 300, 400);
  EXPECT_EQ(this->control.PrintWaferSize(300, 400), 0);
  EXPECT_EQ(difference(this->printer->recording(), paper->recording()), "");
  EXPECT_TRUE(shows(this->printer->recording(), "25"));

  this->printer->forget();
  EXPECT_EQ(call(this->object(), "PrintWaferSize", {300.0, 400.0}), Variant(std::int16_t{0}));
  EXPECT_EQ(difference(this->printer->recording(), paper->recording()), "");
}

TYPED_TEST(PrintMembers, TheTargetIsThatOfTheToolkitAndThenOfTheHost) {
  const auto given = std::make_shared<TestPrinter>();
  this->toolkit.printer = given;
  Open<TypeParam> another{this->toolkit, this->form};
  EXPECT_EQ(another.PrinterObj, given);
  automation::let(described(static_cast<TypeParam&>(another)), "PrinterObj",
                  ObjectReference{this->printer, typeid(PlotCanvas)});
  EXPECT_EQ(another.PrinterObj, this->printer);
}

// ---- Failures ----

TYPED_TEST(PrintMembers, AnErrorOfTheTargetReachesTheCallerAndEndsThere) {
  const bool passes_over_errors = std::is_same_v<TypeParam, Histogram>;
  ASSERT_EQ(this->control.Plot(), 0);
  const auto member = TestFixture::Told::members().front();
  for (const int fails_from : {1, 2, 5, 9}) {
    const auto broken = std::make_shared<TestPrinter>();
    broken->fails_from = fails_from;
    this->control.PrinterObj = broken;
    if (passes_over_errors)
      EXPECT_EQ(member.print(this->control, {}, framed), 0);
    else
      EXPECT_THROW(member.print(this->control, {}, framed), CanvasError) << fails_from;
    EXPECT_THROW(this->control.PrintWaferStatistic(0, 0, "nm"), CanvasError);
    EXPECT_THROW(this->control.PrintWaferSize(0, 0), CanvasError);
  }
  this->control.PrinterObj = this->printer;
  for (const auto& each : TestFixture::Told::members()) this->expect_as_told(each, framed);
  EXPECT_EQ(this->control.Plot(), 0);
  EXPECT_EQ(this->control.MousePointer(), 0);
  EXPECT_EQ(sites_of(this->control), square_of_sites());
}

// ---- Legends ----

template <class Control>
class PrintLegends : public PrintMembers<Control> {};
using MapsWithLegends = testing::Types<Plot2D, Plot2DC, Plot2DN, Plot2DB, Plot3D, Plot2DS, Plot3DS>;
TYPED_TEST_SUITE(PrintLegends, MapsWithLegends, ControlNames);

template <class Control>
constexpr bool has_sigma_legend = std::is_same_v<Control, Plot2DS> || std::is_same_v<Control, Plot3DS>;

/// The legend as PrintWafer draws it; left and top come back as from there.
template <class Control>
Recording legend_of(const Control& control, double& left, double& top, bool with_frame) {
  const auto paper = std::make_shared<TestPrinter>();
  PrintWafer page{paper};
  if constexpr (has_sigma_legend<Control>)
    page.DrawSigmaLegend(control.wafobj, left, top, control.SigmaRange(), with_frame);
  else
    page.DrawColoredLegend(control.wafobj, left, top, with_frame);
  return paper->recording();
}

TYPED_TEST(PrintLegends, AreThoseOfPrintWafer) {
  for (const bool with_frame : {bare, framed}) {
    TestFixture::Told::vary(this->control, this->settings);
    this->control.IntervalColor(1, static_cast<Color>(this->settings.whole(0, 0xFFFFFF)));
    double left = 480, top = 960, page_left = left, page_top = top;
    const TypeParam& plain = this->control;
    const Recording expected = legend_of(plain, page_left, page_top, with_frame);
    this->printer->forget();
    EXPECT_EQ(this->control.PrintLegend(left, top, with_frame), 0);
    ASSERT_GT(expected.size(), 5u);
    EXPECT_EQ(difference(this->printer->recording(), expected), "") << with_frame;
    EXPECT_EQ(left, page_left);
    EXPECT_EQ(top, page_top);
  }
}

TYPED_TEST(PrintLegends, OnlyAnUnframedSigmaLegendGivesItsPlaceBackInPixels) {
  const bool in_pixels = has_sigma_legend<TypeParam>;
  const Variant left = in_pixels ? 200.0 : 480.0, top = in_pixels ? 400.0 : 960.0;
  std::vector<Variant> place{480.0, 960.0};
  EXPECT_EQ(invoke(this->object(), "PrintLegend", MemberKind::method, place), Variant(std::int16_t{0}));
  EXPECT_EQ(place[0], left);
  EXPECT_EQ(place[1], top);
  std::vector<Variant> in_frame{480.0, 960.0, true};
  invoke(this->object(), "PrintLegend", MemberKind::method, in_frame);
  EXPECT_EQ(in_frame, (std::vector<Variant>{480.0, 960.0, true}));
}

TYPED_TEST(PrintLegends, AFrameLeftOutIsNone) {
  std::vector<Variant> place{480.0, 960.0};
  invoke(this->object(), "PrintLegend", MemberKind::method, place);
  EXPECT_FALSE(shows(this->printer->recording(), "Legend "));
  double left = 480, top = 960;
  this->control.PrintLegend(left, top);
  EXPECT_FALSE(shows(this->printer->recording(), "Legend "));
  this->control.PrintLegend(left, top, framed);
  EXPECT_TRUE(shows(this->printer->recording(), "Legend "));
}

TYPED_TEST(PrintLegends, NeedDataAndATargetAndNoSize) {
  double left = 480, top = 960;
  this->size(0, 0);
  EXPECT_EQ(this->control.PrintLegend(left, top, framed), 0);
  this->control.PrinterObj = nullptr;
  EXPECT_EQ(this->control.PrintLegend(left, top), 1);
  this->control.PrinterObj = this->printer;
  this->control.WaferDiameter(200);
  EXPECT_EQ(this->control.PrintLegend(left, top), 1);
  EXPECT_EQ(left, 480);
  EXPECT_EQ(top, 960);
}

template <class Control>
class PrintSigmaLegends : public PrintMembers<Control> {};
using SigmaControls = testing::Types<Plot2DS, Plot3DS>;
TYPED_TEST_SUITE(PrintSigmaLegends, SigmaControls, ControlNames);

TYPED_TEST(PrintSigmaLegends, TheOneWithoutAFrameIsThatOfPrintWafer) {
  this->control.SigmaRange(this->settings.real(0.1, 4));
  double left = 480, top = 960, page_left = left, page_top = top;
  const auto paper = std::make_shared<TestPrinter>();
  PrintWafer page{paper};
  page.DrawSigmaLegend_No_Frame(this->control.wafobj, page_left, page_top, this->control.SigmaRange());
  EXPECT_EQ(this->control.PrintLegend_No_Frame(left, top), 0);
  EXPECT_EQ(difference(this->printer->recording(), paper->recording()), "");
  EXPECT_EQ(left, 200);
  EXPECT_EQ(top, 400);

  this->printer->forget();
  std::vector<Variant> place{480.0, 960.0};
  EXPECT_EQ(invoke(this->object(), "PrintLegend_No_Frame", MemberKind::method, place),
            Variant(std::int16_t{0}));
  EXPECT_EQ(place, (std::vector<Variant>{200.0, 400.0}));
  EXPECT_EQ(difference(this->printer->recording(), paper->recording()), "");
}

TYPED_TEST(PrintSigmaLegends, TheOneWithoutAFrameNeedsDataAndATarget) {
  double left = 480, top = 960;
  this->control.PrinterObj = nullptr;
  EXPECT_EQ(this->control.PrintLegend_No_Frame(left, top), 1);
  this->control.PrinterObj = this->printer;
  this->control.WaferDiameter(200);
  EXPECT_EQ(this->control.PrintLegend_No_Frame(left, top), 1);
  EXPECT_EQ(left, 480);
  EXPECT_EQ(this->printer->calls(), 0);
}

// ---- One control's own ----

using PrintPlot2DC = PrintMembers<Plot2DC>;

TEST_F(PrintPlot2DC, ThePropertysZeroSaysPercentOnPaperAsOnTheScreen) {
  control.Interval(20);
  control.MeasurementUnit("nm");
  const auto plot = Told::members()[0];
  control.IntervalInPercent(0);
  const Recording in_percent = printed(plot, bare);
  EXPECT_TRUE(shows(in_percent, "Interval: 20 %"));
  control.IntervalInPercent(-1);
  const Recording in_unit = printed(plot, bare);
  EXPECT_TRUE(shows(in_unit, "Interval: 20 nm"));
  // With a mean near 48, 20 of it are about 41 percent: fewer curves.
  EXPECT_LT(in_unit.size(), in_percent.size());
}

TEST_F(PrintPlot2DC, BothFormsDrawTheCurvesOfTheScreensInterval) {
  control.Interval(20);
  for (const std::int16_t flag : {0, -1}) {
    control.IntervalInPercent(flag);
    const auto paper = std::make_shared<TestPrinter>();
    wafer copy = control.wafobj;
    PrintWafer{paper}.ResetPrinterObj();
    const PageArea at;
    const double size = at.height;
    copy.D2Contour(*paper, static_cast<std::int16_t>(size / 2), control.distance(),
                   static_cast<std::int16_t>(control.marksites()),
                   static_cast<std::int16_t>(control.Resolution()),
                   static_cast<std::int16_t>(control.PlotColored()), at.left, at.top, size, size, 1);
    ASSERT_GT(paper->recording().size(), 20u);
    EXPECT_EQ(difference(printed(Told::members()[1], bare), paper->recording()), "") << flag;
  }
}

TEST_F(PrintPlot2DC, ARefusalIsTheMessageOfTheControlsToolkit) {
  control.Interval(1e-6);
  for (const auto& member : Told::members()) {
    toolkit.messages.clear();
    EXPECT_EQ(member.print(control, {}, framed), 0) << member.name;
    ASSERT_EQ(toolkit.messages.size(), 1u) << member.name;
    EXPECT_EQ(toolkit.messages[0].text, "Difference of Mean, Maximum, and Minimum too small");
    EXPECT_EQ(toolkit.messages[0].title, "No Contour Plot possible");
  }
  EXPECT_FALSE(screen().message) << "it is nobody else's";
}

TEST_F(PrintPlot2DC, AMeanOf0HasTheSpreadForItsPercent) {
  SiteColumns sites = square_of_sites();
  for (std::size_t i = 0; i < sites.z.size(); ++i) sites.z[i] = static_cast<double>(i) - 12;  // 24 apart
  ASSERT_EQ(control.load(sites), 0);
  ASSERT_EQ(control.mean(), 0);
  const auto curves = [&](const PrintMember<Plot2DC>& member) {
    Recording lines = printed(member, framed);
    std::erase_if(lines,
                  [](const recorded::Call& call) { return !std::holds_alternative<recorded::Line>(call); });
    return lines;
  };
  for (const auto& member : Told::members()) {
    control.Interval(6);
    control.IntervalInPercent(-1);
    const Recording in_the_unit = curves(member);
    expect_as_told(member, framed);
    control.Interval(25);
    control.IntervalInPercent(0);
    EXPECT_GT(in_the_unit.size(), 50u);
    EXPECT_EQ(difference(in_the_unit, curves(member)), "") << member.name;
    expect_as_told(member, framed);
  }
}

using PrintHistogram = PrintMembers<Histogram>;

TEST_F(PrintHistogram, ATargetThatFailsEverywhereIsPassedOver) {
  printer->fails_from = 1;
  for (const auto& member : Told::members()) EXPECT_EQ(member.print(control, {}, framed), 0) << member.name;
}

using PrintLineScan = PrintMembers<LineScan>;

TEST_F(PrintLineScan, OnlyACutByAngleTellsIt) {
  control.angle(30);
  EXPECT_TRUE(shows(printed(Told::members()[0], bare), "Angle: 30 °"));
  control.PlotType(PlotTypeEnumLineScan::vbline);
  control.LineEndPointX(50);
  EXPECT_EQ(texts_of(printed(Told::members()[0], bare)).find("Angle"), std::string::npos);
}

}  // namespace
}  // namespace mirolen
