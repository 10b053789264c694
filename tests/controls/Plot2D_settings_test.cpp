#include "control_support.h"

namespace mirolen {
namespace {

/// A peer that counts its repaints; the count outlives the peer.
class CountingPeer : public Peer {
 public:
  CountingPeer(const Widget& widget, std::vector<const Widget*>& changed, int& refreshes)
      : widget_(widget), changed_(changed), refreshes_(refreshes) {}
  void changed() override {
    if (changed_.empty() || changed_.back() != &widget_) changed_.push_back(&widget_);
  }
  void refresh() override { ++refreshes_; }
  std::uintptr_t handle() const override { return 4711; }

 private:
  const Widget& widget_;
  std::vector<const Widget*>& changed_;
  int& refreshes_;
};

class PeerToolkit : public SpyToolkit {
 public:
  std::unique_ptr<Peer> make_peer(Widget& widget) override {
    return std::make_unique<CountingPeer>(widget, changed,
                                          widget.container() ? other_refreshes : control_refreshes);
  }
  /// The widgets in the order of their changes.
  std::vector<const Widget*> changed;
  int control_refreshes = 0, other_refreshes = 0;
};

using Plot2DSettings = Plot2DTest;

TEST_F(Plot2DSettings, EachSetterTellsItsOwnName) {
  place();
  control.TestDiameter(190);
  control.WaferDiameter(300);
  control.Resolution(3);
  control.WaferStyle(WaferSt::Flat);
  control.ShowSites(Sites::ShowSite);
  control.HideLegend(true);
  control.PlotCaption("text");
  control.BackColor(0x445566);
  EXPECT_EQ(form.changes, (Names{"TestDiameter", "WaferDiameter", "Resolution", "WaferStyle", "ShowSites",
                                 "HideLegend", "PlotCaption", "BackColor"}));
}

TEST_F(Plot2DSettings, EachColourTellsItsOwnName) {
  for (int i = 0; i < 10; ++i) {
    forget_notices();
    control.IntervalColor(i, 0x10 + static_cast<Color>(i));
    EXPECT_EQ(form.changes, Names{"IntervalColor" + std::to_string(i)});
  }
}

TEST_F(Plot2DSettings, AValueThatStaysIsToldAllTheSame) {
  place();
  control.TestDiameter(control.TestDiameter());
  control.PlotCaption(control.PlotCaption());
  EXPECT_EQ(form.changes, (Names{"TestDiameter", "PlotCaption"}));
}

TEST_F(Plot2DSettings, PrinterAndMouseTellNothingAndLeaveThePlotValid) {
  plot_square();
  control.PrinterObj = nullptr;
  control.MousePointer(5);
  control.MouseIcon(nullptr);
  EXPECT_TRUE(form.changes.empty());
  EXPECT_TRUE(control.PlotValid);
}

TEST_F(Plot2DSettings, ReadingThemTellsNothing) {
  plot_square();
  const automation::Object object = described(control);
  for (const auto& member : object.info->members)
    if (member.kind == automation::MemberKind::get) automation::get(object, member.name);
  EXPECT_TRUE(form.changes.empty());
  EXPECT_TRUE(control.PlotValid);
}

TEST_F(Plot2DSettings, TheNoticeComesWhenTheValueIsSet) {
  struct Watching : HeadlessContainer {
    void changed(std::string_view property) override {
      HeadlessContainer::changed(property);
      if (look) look();
    }
    std::function<void()> look;
  } watching;
  OpenPlot2D watched(toolkit, watching);
  watched.InitProperties();
  double resolution = 0;
  watching.look = [&] { resolution = watched.Resolution(); };
  watched.Resolution(3);
  EXPECT_EQ(resolution, 3);
}

// ---- TestDiameter ----

TEST_F(Plot2DSettings, ATestDiameterBelowZeroTakesTheWafers) {
  place();
  control.TestDiameter(-1);
  EXPECT_EQ(control.TestDiameter(), 200);
  control.TestDiameter(-1e-9);
  EXPECT_EQ(control.TestDiameter(), 200);
}

TEST_F(Plot2DSettings, ATestDiameterOfZeroIsTaken) {
  place();
  control.TestDiameter(0);
  EXPECT_EQ(control.TestDiameter(), 0);
}

TEST_F(Plot2DSettings, ASmallerTestDiameterShortensTheList) {
  place();
  control.SetWaferData(std::vector<double>{90, 0, 10}, std::vector<double>{0, 0, 0},
                       std::vector<double>{1, 2, 3});
  control.TestDiameter(100);
  EXPECT_EQ(sites_of(control), (SiteColumns{{90, 0}, {0, 0}, {1, 2}})) << "the first two stay";
  EXPECT_EQ(control.Maximum(), 2);
  EXPECT_EQ(control.TestDiameter(), 100);
}

TEST_F(Plot2DSettings, SitesOnTheCircleStay) {
  place();
  control.SetWaferData(std::vector<double>{50, 0}, std::vector<double>{0, -50}, std::vector<double>{1, 2});
  control.TestDiameter(100);
  EXPECT_EQ(sites_of(control).x.size(), 2u);
}

TEST_F(Plot2DSettings, ATestDiameterThatGrowsBringsNothingBack) {
  place();
  control.load(square_of_sites());
  control.TestDiameter(100);
  const SiteColumns left = sites_of(control);
  EXPECT_LT(left.x.size(), 25u);
  control.TestDiameter(200);
  EXPECT_EQ(sites_of(control), left);
}

TEST_F(Plot2DSettings, ATestDiameterThatGrowsDropsNothing) {
  place();
  control.TestDiameter(100);
  control.load(square_of_sites());
  control.TestDiameter(120);
  EXPECT_EQ(sites_of(control), square_of_sites()) << "though some lie outside";
}

TEST_F(Plot2DSettings, ATestDiameterWithoutAnySiteEmptiesTheStore) {
  plot_square();
  control.SetWaferData(std::vector<double>{50, 0}, std::vector<double>{0, -50}, std::vector<double>{1, 2});
  forget_notices();
  control.TestDiameter(10);
  EXPECT_EQ(sites_of(control), SiteColumns{});
  EXPECT_EQ(control.TestDiameter(), 10);
  EXPECT_FALSE(control.PlotValid);
  EXPECT_EQ(form.changes, Names{"TestDiameter"});
  EXPECT_EQ(control.Plot(), 1);
}

TEST_F(Plot2DSettings, ASmallerTestDiameterKeepsAPlotLimit) {
  place();
  control.load(square_of_sites());
  control.SetPlotLimit(10, 90);
  control.TestDiameter(100);
  EXPECT_EQ(control.wafobj.minimal, 10);
  EXPECT_EQ(control.wafobj.maximal, 90);
}

// ---- WaferDiameter ----

TEST_F(Plot2DSettings, AWaferDiameterErasesTheDataAndLeavesArraysAlone) {
  plot_square();
  control.WaferDiameter(300);
  Array x(std::vector<double>{1, 2}), y(std::vector<double>{3}), z(std::vector<double>{4}, 0);
  const Array x_before = x, y_before = y, z_before = z;
  EXPECT_EQ(control.GetWaferData(x, y, z), 0);
  EXPECT_EQ(x, x_before);
  EXPECT_EQ(y, y_before);
  EXPECT_EQ(z, z_before);
}

TEST_F(Plot2DSettings, AWaferDiameterErasesTheDrawing) {
  plot_square();
  control.WaferDiameter(300);
  EXPECT_TRUE(picture_is_blank());
  EXPECT_FALSE(stretched());
  EXPECT_EQ(control.RePlot.Picture.get(), nullptr);
  EXPECT_FALSE(control.PlotShown);
  EXPECT_EQ(control.WaferDiameter(), 300);
  EXPECT_EQ(control.wafobj.WaferOrigRad, 150);
}

TEST_F(Plot2DSettings, TheSameWaferDiameterErasesToo) {
  plot_square();
  control.WaferDiameter(200);
  EXPECT_EQ(sites_of(control), SiteColumns{});
}

TEST_F(Plot2DSettings, AWaferDiameterLeavesTheTestDiameter) {
  place();
  control.WaferDiameter(100);
  EXPECT_EQ(control.TestDiameter(), 194);
}

TEST_F(Plot2DSettings, AWaferDiameterLeavesTheValidityOfThePlot) {
  plot_square();
  control.WaferDiameter(300);
  EXPECT_TRUE(control.PlotValid);
  control.SetPlotNotVaild();
  control.WaferDiameter(200);
  EXPECT_FALSE(control.PlotValid);
}

TEST_F(Plot2DSettings, AWaferDiameterNotAboveZeroBecomes200) {
  for (const double v : {0.0, -1.0, -0.0, -1e300}) {
    control.WaferDiameter(v);
    EXPECT_EQ(control.WaferDiameter(), 200) << v;
    EXPECT_EQ(control.wafobj.WaferOrigRad, 100) << v;
  }
}

TEST_F(Plot2DSettings, AWaferDiameterLeavesAStretchedPlotUnstretched) {
  plot_square();
  control.resize_to(7000, 5000);
  ASSERT_TRUE(stretched());
  control.WaferDiameter(300);
  EXPECT_FALSE(stretched());
  EXPECT_EQ(control.RePlot.Picture.get(), nullptr);
}

// ---- Resolution ----

TEST_F(Plot2DSettings, AResolutionNotAboveZeroBecomesFive) {
  place();
  for (const double v : {0.0, -1.0, -1e300}) {
    control.Resolution(7);
    control.Resolution(v);
    EXPECT_EQ(control.Resolution(), 5) << v;
  }
}

TEST_F(Plot2DSettings, AResolutionIsAtMostAQuarterOfTheTestDiameter) {
  place();
  control.Resolution(48.5);
  EXPECT_EQ(control.Resolution(), 48.5);
  control.Resolution(48.6);
  EXPECT_EQ(control.Resolution(), 48.5);
  control.Resolution(1e300);
  EXPECT_EQ(control.Resolution(), 48.5);
  EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(Plot2DSettings, TheResolutionsRulesApplyOneAfterTheOther) {
  place();
  control.TestDiameter(16);
  control.Resolution(-3);
  EXPECT_EQ(control.Resolution(), 4);
}

TEST_F(Plot2DSettings, ASmallerTestDiameterLeavesTheResolution) {
  place();
  control.TestDiameter(16);
  EXPECT_EQ(control.Resolution(), 5);
}

// ---- WaferStyle, ShowSites ----

TEST_F(Plot2DSettings, TheWaferStyleIsAFlatAtItsOwnRatioOnly) {
  control.wafobj.flat_ratio = 0.98;
  EXPECT_EQ(control.WaferStyle(), WaferSt::Flat);
  for (const double ratio : {0.0, 1.0, 0.97, 0.9800001, -0.98}) {
    control.wafobj.flat_ratio = ratio;
    EXPECT_EQ(control.WaferStyle(), WaferSt::Notch) << ratio;
  }
}

TEST_F(Plot2DSettings, AnyWaferStyleButAFlatIsANotch) {
  control.WaferStyle(WaferSt::Flat);
  EXPECT_EQ(control.wafobj.flat_ratio, 0.98);
  for (const int style : {1, 0, 3, -2, 2147483647}) {
    control.WaferStyle(WaferSt::Flat);
    control.WaferStyle(static_cast<WaferSt>(style));
    EXPECT_EQ(control.wafobj.flat_ratio, 1.0) << style;
  }
}

TEST_F(Plot2DSettings, AnyValueButZeroShowsTheSites) {
  for (const int value : {1, -1, 5, -2147483647 - 1}) {
    control.ShowSites(Sites::HideSite);
    control.ShowSites(static_cast<Sites>(value));
    EXPECT_EQ(control.ShowSites(), Sites::ShowSite) << value;
  }
  control.ShowSites(Sites::HideSite);
  EXPECT_EQ(control.ShowSites(), Sites::HideSite);
}

// ---- HideLegend ----

TEST_F(Plot2DSettings, HidingTheLegendHidesItsColumn) {
  place();
  EXPECT_FALSE(control.HideLegend());
  control.HideLegend(true);
  EXPECT_TRUE(control.HideLegend());
  EXPECT_FALSE(control.LegendShown);
  EXPECT_FALSE(control.frmove.Visible);
  control.HideLegend(false);
  EXPECT_FALSE(control.HideLegend());
  EXPECT_TRUE(control.LegendShown);
  EXPECT_TRUE(control.frmove.Visible);
}

TEST_F(Plot2DSettings, HidingTheLegendLaysOutAtOnceAndStretchesThePlot) {
  plot_square();
  const double width_before = control.Frplot.Width;
  control.HideLegend(true);
  EXPECT_GT(control.Frplot.Width, width_before);
  EXPECT_EQ(toolkit.redraws, 0);
  EXPECT_TRUE(control.PlotValid);
  EXPECT_TRUE(stretched());
  EXPECT_EQ(form.changes, Names{"HideLegend"});
}

TEST_F(Plot2DSettings, HidingTheLegendOfAStalePlotRenders) {
  plot_square();
  control.SetPlotNotVaild();
  control.HideLegend(true);
  EXPECT_EQ(toolkit.redraws, 1);
}

// ---- PlotCaption ----

TEST_F(Plot2DSettings, TheCaptionIsThatOfThePlotsFrame) {
  EXPECT_EQ(control.PlotCaption(), " Wafer ");
  control.PlotCaption("Thickness \xC2\xB5m");
  EXPECT_EQ(control.Frplot.Caption.get(), "Thickness \xC2\xB5m");
  control.Frplot.Caption = "other";
  EXPECT_EQ(control.PlotCaption(), "other");
}

// ---- BackColor ----

TEST_F(Plot2DSettings, TheBackgroundGoesToAllSurfacesButThePlot) {
  plot_square();
  const Color plot_background = control.PLOTA.BackColor;
  ASSERT_NE(plot_background, 0x445566u);
  control.BackColor(0x445566);
  for (const Widget* widget :
       std::vector<const Widget*>{&control.frmove, &control.legende, &control.FNPic, &control.FNLabel,
                                  &control, &control.Frplot, &control.frleg, &control.Frame1})
    EXPECT_EQ(widget->BackColor.get(), 0x445566u);
  EXPECT_EQ(control.PLOTA.BackColor.get(), plot_background);
  EXPECT_EQ(control.BackColor(), 0x445566u);
  EXPECT_TRUE(control.PlotValid);
  EXPECT_FALSE(picture_is_blank());
}

TEST_F(Plot2DSettings, TheBackgroundOfLegendColoursStays) {
  plot_square();
  control.BackColor(0x445566);
  EXPECT_EQ(control.scalCol(1).BackColor.get(), control.IntervalColor(0));
}

TEST(Plot2DPeers, TheBackgroundReachesItsSurfacesInOrder) {
  PeerToolkit toolkit;
  HeadlessContainer form;
  OpenPlot2D control(toolkit, form);
  control.InitProperties();
  toolkit.changed.clear();
  control.BackColor(0x445566);
  EXPECT_EQ(toolkit.changed,
            (std::vector<const Widget*>{&control.frmove, &control.legende, &control.FNPic, &control.FNLabel,
                                        &control, &control.Frplot, &control.frleg, &control.Frame1}));
}

TEST(Plot2DPeers, SettersRefreshTheControl) {
  PeerToolkit toolkit;
  HeadlessContainer form;
  OpenPlot2D control(toolkit, form);
  control.InitProperties();
  const std::vector<std::function<void()>> setters{
      [&] { control.TestDiameter(190); },
      [&] { control.WaferDiameter(200); },
      [&] { control.Resolution(3); },
      [&] { control.WaferStyle(WaferSt::Flat); },
      [&] { control.ShowSites(Sites::ShowSite); },
      [&] { control.HideLegend(true); },
      [&] { control.PlotCaption("text"); },
      [&] { control.IntervalColor(3, 0); },
  };
  for (std::size_t i = 0; i < setters.size(); ++i) {
    toolkit.control_refreshes = 0;
    setters[i]();
    EXPECT_GE(toolkit.control_refreshes, 1) << i;
  }
}

TEST(Plot2DPeers, ARedrawRefreshesTheControl) {
  PeerToolkit toolkit;
  HeadlessContainer form;
  OpenPlot2D control(toolkit, form);
  control.InitProperties();
  control.load(square_of_sites());
  toolkit.control_refreshes = 0;
  control.Plot();
  EXPECT_GE(toolkit.control_refreshes, 1);
}

TEST(Plot2DPeers, TheWindowIsThatOfThePeer) {
  PeerToolkit toolkit;
  HeadlessContainer form;
  OpenPlot2D control(toolkit, form);
  EXPECT_EQ(control.hwnd(), 4711);
  EXPECT_EQ(control.hdc(), 0);
}

TEST_F(Plot2DSettings, WithoutAPeerThereIsNoWindow) {
  EXPECT_EQ(control.hwnd(), 0);
  EXPECT_EQ(control.hdc(), 0);
}

// ---- IntervalColor0 to IntervalColor9 ----

double wafer::*const color_fields[10] = {&wafer::col1, &wafer::col2, &wafer::col3, &wafer::col4,
                                         &wafer::col5, &wafer::col6, &wafer::col7, &wafer::col8,
                                         &wafer::col9, &wafer::col10};

TEST_F(Plot2DSettings, IntervalColoursPairWithTheFieldsOfTheWafer) {
  for (int i = 0; i < 10; ++i) {
    control.IntervalColor(i, 0x100 + static_cast<Color>(i));
    EXPECT_EQ(control.wafobj.*color_fields[i], 0x100 + i);
    control.wafobj.*color_fields[i] = 0x200 + i;
    EXPECT_EQ(control.IntervalColor(i), 0x200u + static_cast<Color>(i));
  }
}

TEST_F(Plot2DSettings, IntervalColoursAreReadRoundedHalfToEvenToTheirBits) {
  const std::vector<std::pair<double, Color>> readings{{10.5, 10},       {11.5, 12},
                                                       {0.4, 0},         {4294967296.0 + 255, 255},
                                                       {-1, 0xFFFFFFFF}, {2147483663.0, 0x8000000F}};
  for (const auto& [field, color] : readings) {
    control.wafobj.col4 = field;
    EXPECT_EQ(control.IntervalColor(3), color) << field;
  }
}

TEST_F(Plot2DSettings, SystemColoursComeBackAsTheyWereSet) {
  control.IntervalColor(0, 0x80000012);
  EXPECT_EQ(control.IntervalColor(0), 0x80000012u);
}

TEST_F(Plot2DSettings, IntervalColoursStartAsThePaletteTells) {
  const Color colors[10] = {0x000080, 0x0000FF, 0x00FFFF, 0x00FF00, 0x008080,
                            0x008000, 0x808000, 0xFF0000, 0x800000, 0x800080};
  for (int i = 0; i < 10; ++i) EXPECT_EQ(control.IntervalColor(i), colors[i]) << i;
}

// ---- A new control ----

TEST_F(Plot2DSettings, AControlStartsWithItsLegendAndWithoutAPlot) {
  EXPECT_FALSE(control.PlotLimitSet);
  EXPECT_FALSE(control.PlotShown);
  EXPECT_TRUE(control.LegendShown);
  EXPECT_EQ(control.wafobj.GetNop(), 0);
}

TEST(Plot2DPrinter, StartsAsTheDefaultPrinter) {
  SpyToolkit toolkit;
  HeadlessContainer form;
  RecordingSurface page;
  toolkit.printer = std::make_shared<SurfaceCanvas>(CanvasKind::printer, &page);
  OpenPlot2D control(toolkit, form);
  EXPECT_EQ(control.PrinterObj, toolkit.printer);
  control.PrinterObj = nullptr;
  EXPECT_EQ(control.PrinterObj, nullptr);
}

TEST_F(Plot2DSettings, TheChildrenStartWithTheirCaptions) {
  EXPECT_EQ(control.Frplot.Caption.get(), " Wafer ");
  EXPECT_EQ(control.frleg.Caption.get(), "Legend");
  EXPECT_EQ(control.FNLabel.Caption.get(), "Flat");
  EXPECT_EQ(control.Command1.Caption.get(), "Plot- Options");
  for (int i = 1; i <= 10; ++i) EXPECT_EQ(control.ScaleValue(i).Font.get().Name, "Arial");
}

TEST_F(Plot2DSettings, TheChildrenLieInTheirContainers) {
  EXPECT_EQ(control.Frplot.container(), &control);
  EXPECT_EQ(control.PLOTA.container(), control.RePlot.container());
  EXPECT_EQ(control.frmove.container(), &control);
  EXPECT_EQ(control.Frame1.container(), &control.frmove);
  EXPECT_EQ(control.frleg.container(), &control.Frame1);
  EXPECT_EQ(control.legende.container(), &control.frleg);
  EXPECT_EQ(control.scalCol(1).container(), &control.legende);
  EXPECT_EQ(control.ScaleValue(10).container(), &control.legende);
}

}  // namespace
}  // namespace mirolen
