#pragma once

#include <functional>
#include <random>

#include "control_support.h"

namespace mirolen {

/// Paper of 600 dots an inch whose letters are narrow enough for the rooms of a page.
class TestPaper : public RecordingSurface {
 public:
  TestPaper() : RecordingSurface({4700, 6800}, {2.4, 2.4}) {}
  SurfaceSize measure(const FontSpec& font, std::string_view text) const override {
    const SurfaceSize size = RecordingSurface::measure(font, text);
    return {0.75 * size.width, size.height};
  }
};

/// A printer that keeps what is drawn, and fails from one of its calls on if told to.
class TestPrinter : public SurfaceCanvas {
 public:
  explicit TestPrinter(CanvasKind kind = CanvasKind::printer) : SurfaceCanvas(kind, nullptr) {}

  const Recording& recording() const { return surface_.recording(); }
  /// The calls that reached the device.
  int calls() const { return calls_; }
  void forget() { surface_.forget(); }

  /// The first call that fails, and all after it.
  int fails_from = std::numeric_limits<int>::max();

 protected:
  Surface* device() const override {
    if (++calls_ >= fails_from) throw CanvasError("the paper feed");
    return &surface_;
  }

 private:
  mutable TestPaper surface_;
  mutable int calls_ = 0;
};

/// A place on the page.
struct PageArea {
  double left = 700, top = 900, width = 9000, height = 7000;
};

/// A print member of a control, and what it is to do with the control's settings on a page.
template <class Control>
struct PrintMember {
  std::string name;
  bool takes_flag = true;  // has a `DrawFrame`
  std::function<std::int16_t(Control&, const PageArea&, bool framed)> print;
  std::function<std::int16_t(Control&, const PageArea&)> print_without_flag;
  std::function<void(PrintWafer&, wafer&, const Control&, PageArea, bool framed)> expected;
};

/// What a control prints into an area, and how it answers.
template <class Control>
struct Prints;

/// Random settings.
class Settings {
 public:
  explicit Settings(unsigned long long seed) : random_(seed) {}
  double real(double from, double to) { return std::uniform_real_distribution<double>(from, to)(random_); }
  int whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
  std::int16_t number(int from, int to) { return static_cast<std::int16_t>(whole(from, to)); }
  bool yes() { return whole(0, 1) == 1; }

 private:
  std::mt19937_64 random_;
};

struct CodesOfPlots {
  static constexpr std::int16_t nothing_to_print = 2, too_small = 1;
};
struct SizeOfMaps : CodesOfPlots {
  static constexpr double least_width = 750, least_height = 750;
};
struct SizeOfPerspectives : CodesOfPlots {
  static constexpr double least_width = 2500, least_height = 1750;
};

template <class Control>
std::int16_t print_plot(Control& c, const PageArea& at, bool framed) {
  return c.PrintPlot(at.left, at.top, at.width, at.height, framed);
}
template <class Control>
std::int16_t print_plot_without_flag(Control& c, const PageArea& at) {
  return c.PrintPlot(at.left, at.top, at.width, at.height);
}

template <>
struct Prints<Plot2D> : SizeOfMaps {
  static std::vector<PrintMember<Plot2D>> members() {
    const auto grid = [](Plot2D& c, const PageArea& at) {
      return c.PrintGridPlot(at.left, at.top, at.width, at.height);
    };
    return {
        {"PrintPlot", true, print_plot<Plot2D>, print_plot_without_flag<Plot2D>,
         [](PrintWafer& page, wafer& data, const Plot2D& c, PageArea at, bool framed) {
           page.Print_2DPlot(data, at.left, at.top, at.width, at.height, c.Resolution(), c.PlotCaption(),
                             static_cast<std::int16_t>(c.ShowSites()), framed);
         }},
        {"PrintGridPlot", false, [grid](Plot2D& c, const PageArea& at, bool) { return grid(c, at); }, grid,
         [](PrintWafer& page, wafer& data, const Plot2D& c, PageArea at, bool) {
           page.Print_GridPosPlot(data, at.left, at.top, at.width, at.height, c.PlotCaption());
         }}};
  }
  static void vary(Plot2D& c, Settings& settings) {
    c.Resolution(settings.real(2, 20));
    c.ShowSites(settings.yes() ? Sites::ShowSite : Sites::HideSite);
  }
};

template <>
struct Prints<Plot2DS> : SizeOfMaps {
  static std::vector<PrintMember<Plot2DS>> members() {
    return {{"PrintPlot", true, print_plot<Plot2DS>, print_plot_without_flag<Plot2DS>,
             [](PrintWafer& page, wafer& data, const Plot2DS& c, PageArea at, bool framed) {
               page.Print_2DSigmaPlot(data, at.left, at.top, at.width, at.height, c.Resolution(),
                                      c.SigmaRange(), c.PlotCaption(),
                                      static_cast<std::int16_t>(c.ShowSites()), framed);
             }}};
  }
  static void vary(Plot2DS& c, Settings& settings) {
    c.Resolution(settings.real(2, 20));
    c.SigmaRange(settings.real(0.1, 3));
    c.ShowSites(settings.yes() ? Sites::ShowSite : Sites::HideSite);
  }
};

template <>
struct Prints<Plot2DC> : SizeOfMaps {
  static std::vector<PrintMember<Plot2DC>> members() {
    return {
        {"PrintPlot", true, print_plot<Plot2DC>, print_plot_without_flag<Plot2DC>,
         [](PrintWafer& page, wafer& data, const Plot2DC& c, PageArea at, bool framed) {
           page.Print_Contour(data, at.left, at.top, at.width, at.height, c.Interval(),
                              c.IntervalInPercent() == 0, c.MeasurementUnit(),
                              static_cast<std::int16_t>(c.marksites()),
                              static_cast<std::int16_t>(c.Resolution()),
                              static_cast<std::int16_t>(c.PlotColored()), c.PlotCaption(), framed);
         }},
        {"PrintPlot_THN", true,
         [](Plot2DC& c, const PageArea& at, bool framed) {
           return c.PrintPlot_THN(at.left, at.top, at.width, at.height, framed);
         },
         [](Plot2DC& c, const PageArea& at) { return c.PrintPlot_THN(at.left, at.top, at.width, at.height); },
         [](PrintWafer& page, wafer& data, const Plot2DC& c, PageArea at, bool framed) {
           std::string text;
           page.Print_Contour_THN(data, at.left, at.top, at.width, at.height, c.Interval(),
                                  c.IntervalInPercent() != 0, static_cast<std::int16_t>(c.marksites()),
                                  static_cast<std::int16_t>(c.Resolution()),
                                  static_cast<std::int16_t>(c.PlotColored()), c.PlotCaption(), text, framed);
         }}};
  }
  static void vary(Plot2DC& c, Settings& settings) {
    c.Interval(settings.real(5, 30));
    c.IntervalInPercent(settings.number(-1, 1));
    c.MeasurementUnit(settings.yes() ? "nm" : "");
    c.marksites(static_cast<ExconEnum>(settings.whole(1, 3)));
    c.Resolution(static_cast<ResoEnum>(settings.whole(0, 2)));
    c.PlotColored(static_cast<DrawColEnum>(settings.whole(-1, 2)));
    c.MeanCurveColor(static_cast<Color>(settings.whole(0, 0xFFFFFF)));
  }
};

template <>
struct Prints<Plot2DN> : SizeOfMaps {
  static std::vector<PrintMember<Plot2DN>> members() {
    return {{"PrintPlot", true, print_plot<Plot2DN>, print_plot_without_flag<Plot2DN>,
             [](PrintWafer& page, wafer& data, const Plot2DN& c, PageArea at, bool framed) {
               page.Print_2DNPlot(data, at.left, at.top, at.width, at.height, c.PlotCaption(), framed);
             }},
            {"PrintGridNumber", true,
             [](Plot2DN& c, const PageArea& at, bool framed) {
               return c.PrintGridNumber(at.left, at.top, at.width, at.height, framed);
             },
             [](Plot2DN& c, const PageArea& at) {
               return c.PrintGridNumber(at.left, at.top, at.width, at.height);
             },
             [](PrintWafer& page, wafer& data, const Plot2DN& c, PageArea at, bool framed) {
               page.Print_2DVGridPlot(data, at.left, at.top, at.width, at.height, c.PlotCaption(), framed);
             }}};
  }
  static void vary(Plot2DN&, Settings&) {}
};

template <class Control>
void vary_view(Control& c, Settings& settings) {
  c.GridRotation(settings.number(0, 91));
  c.WaferRotation(settings.number(0, 359));
  c.GridInclination(settings.number(0, 91));
}

template <>
struct Prints<Plot2DB> : SizeOfPerspectives {
  static std::vector<PrintMember<Plot2DB>> members() {
    return {{"PrintPlot", true, print_plot<Plot2DB>, print_plot_without_flag<Plot2DB>,
             [](PrintWafer& page, wafer& data, const Plot2DB& c, PageArea at, bool framed) {
               page.Print_2DBPlot(data, at.left, at.top, at.width, at.height, c.BeamWidth(), c.BeamHeight(),
                                  c.BeamScale(), c.GridRotation(), c.WaferRotation(), c.GridInclination(),
                                  c.PlotCaption(), framed);
             }}};
  }
  static void vary(Plot2DB& c, Settings& settings) {
    vary_view(c, settings);
    c.BeamWidth(settings.real(1, 9));
    c.BeamHeight(settings.real(1, 9));
    c.BeamScale(settings.real(0.5, 2));
  }
};

template <>
struct Prints<Plot3D> : SizeOfPerspectives {
  static std::vector<PrintMember<Plot3D>> members() {
    return {{"PrintPlot", true, print_plot<Plot3D>, print_plot_without_flag<Plot3D>,
             [](PrintWafer& page, wafer& data, const Plot3D& c, PageArea at, bool framed) {
               page.Print_3DPlot(data, at.left, at.top, at.width, at.height,
                                 static_cast<double>(c.PlotType()), c.XResolution(), c.YResolution(),
                                 c.PlotScale(), c.GridRotation(), c.WaferRotation(), c.GridInclination(),
                                 c.PlotCaption(), framed);
             }}};
  }
  static void vary(Plot3D& c, Settings& settings) {
    vary_view(c, settings);
    c.XResolution(settings.real(6, 30));
    c.YResolution(settings.real(6, 30));
    c.PlotScale(settings.number(0, 80));
    c.PlotType(static_cast<PlotTypeEnum>(settings.whole(1, 3)));
  }
};

template <>
struct Prints<Plot3DS> : SizeOfPerspectives {
  static std::vector<PrintMember<Plot3DS>> members() {
    return {{"PrintPlot", true, print_plot<Plot3DS>, print_plot_without_flag<Plot3DS>,
             [](PrintWafer& page, wafer& data, const Plot3DS& c, PageArea at, bool framed) {
               page.Print_3DSigmaPlot(data, at.left, at.top, at.width, at.height, c.XResolution(),
                                      c.YResolution(), c.PlotScale(), c.GridRotation(), c.WaferRotation(),
                                      c.GridInclination(), c.SigmaRange(), c.PlotCaption(), framed);
             }}};
  }
  static void vary(Plot3DS& c, Settings& settings) {
    vary_view(c, settings);
    c.XResolution(settings.real(6, 30));
    c.YResolution(settings.real(6, 30));
    c.PlotScale(settings.number(0, 80));
    c.SigmaRange(settings.real(0.1, 3));
  }
};

template <>
struct Prints<Histogram> {
  static constexpr std::int16_t nothing_to_print = 1, too_small = 2;
  static constexpr double least_width = 100, least_height = 100;

  static std::vector<PrintMember<Histogram>> members() {
    const auto bare = [](Histogram& c, const PageArea& at) {
      return c.PrintPlot_THN(at.left, at.top, at.width, at.height);
    };
    return {
        {"PrintPlot", true, print_plot<Histogram>, print_plot_without_flag<Histogram>,
         [](PrintWafer& page, wafer& data, const Histogram& c, PageArea at, bool framed) {
           page.Print_Histo(static_cast<std::int16_t>(c.PlotType()), data, at.left, at.top, at.width,
                            at.height, c.Resolution(), 0, c.frmhist.Caption, framed);
         }},
        {"PrintPlot_THN", false, [bare](Histogram& c, const PageArea& at, bool) { return bare(c, at); }, bare,
         [](PrintWafer& page, wafer& data, const Histogram& c, PageArea at, bool) {
           page.Print_Histo_THN(static_cast<std::int16_t>(c.PlotType()), data, at.left, at.top, at.width,
                                at.height, c.Resolution(), 0, c.frmhist.Caption);
         }}};
  }
  static void vary(Histogram& c, Settings& settings) {
    c.PlotType(static_cast<PlotTyEnum>(settings.whole(1, 4)));
    c.Resolution(settings.whole(2, 30));
    c.BeamColor(static_cast<Color>(settings.whole(0, 0xFFFFFF)));
    if (settings.yes()) c.SetPlotLimit(settings.real(0, 40), settings.real(50, 100));
  }
};

template <>
struct Prints<LineScan> : CodesOfPlots {
  static constexpr double least_width = 4000, least_height = 2850;

  static std::vector<PrintMember<LineScan>> members() {
    return {{"PrintPlot", true, print_plot<LineScan>, print_plot_without_flag<LineScan>,
             [](PrintWafer& page, wafer& data, const LineScan& c, PageArea at, bool framed) {
               page.Print_1DPlot(data, c.angle(), static_cast<std::int16_t>(c.PlotType()), c.RotationPointX(),
                                 c.RotationPointY(), c.LineStartPointX(), c.LineStartPointY(),
                                 c.LineEndPointX(), c.LineEndPointY(), c.ShowSites(), c.PlotCaption(),
                                 at.left, at.top, at.width, at.height, framed);
             }}};
  }
  static void vary(LineScan& c, Settings& settings) {
    c.PlotType(static_cast<PlotTypeEnumLineScan>(settings.whole(1, 2)));
    c.angle(settings.number(0, 359));
    c.RotationPointX(settings.number(-40, 40));
    c.RotationPointY(settings.number(-40, 40));
    c.LineStartPointX(settings.number(-60, -10));
    c.LineStartPointY(settings.number(-60, 60));
    c.LineEndPointX(settings.number(10, 60));
    c.LineEndPointY(settings.number(-60, 60));
    c.ShowSites(settings.yes());
  }
};

}  // namespace mirolen
