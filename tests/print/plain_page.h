#pragma once

#include <string>
#include <utility>
#include <vector>

#include "mirolen/core/wafer.h"
#include "mirolen/render/PlotCanvas.h"

namespace mirolen {

/// The operations of `PrintWafer` in the plainest words, one statement after the other, on a canvas of their
/// own. It shares no code with it but the renderers of `wafer` and the number texts.
class PlainPage {
 public:
  explicit PlainPage(PlotCanvas& canvas) : p(canvas), printer(canvas.kind() == CanvasKind::printer) {}

  void ResetPrinterObj();
  void DrawLeftText(std::string& text, double left, double top, double width, int color);
  void DrawCenterText(std::string& text, double center, double top, double width, int color);
  void DrawRightText(std::string& text, double right, double top, double width, int color);
  void DrawFrame(const std::string& caption, double left, double top, double width, double height);
  void DrawSigmaChar(double left, double top, int color);
  std::string FormatLbl(double value) const;
  std::string FormatNonZero(double value, std::string format) const;

  void DrawWaferRemarks(const wafer& w, double left, double top);
  void DrawWaferSize(const wafer& w, double left, double top);
  void DrawWaferStatistics(const wafer& w, double left, double top);
  void DrawColoredLegend(const wafer& w, double left, double top, bool framed);
  void DrawSigmaLegend(const wafer& w, double& left, double& top, double sigma, bool framed);
  void DrawSigmaLegend_No_Frame(const wafer& w, double& left, double& top, double sigma);
  void DrawColoredScale(const wafer& w, double& left, double& top);
  void DrawSigmaScale(double& left, double& top, double sigma, const wafer& w);

  void DrawFlatNotchSymbol(double& x, double& y, double style, double& r, double rot, double incl);
  void DrawFlatNotchBox(double left, double top, double style, double rot, double incl);

  void Print_2DPlot(wafer& w, double left, double top, double& width, double height, double res,
                    const std::string& caption, int marksites, bool framed);
  void Print_2DNPlot(wafer& w, double left, double top, double& width, double height,
                     const std::string& caption, bool framed);
  void Print_2DSigmaPlot(wafer& w, double left, double top, double& width, double height, double res,
                         double SigmaRange, const std::string& caption, int marksites, bool framed);
  void Print_3DPlot(wafer& w, double left, double top, double& width, double height, double PlotType,
                    double resx, double resy, double fwscal, double alp2, double phi2, double thet2,
                    const std::string& caption, bool framed);
  void Print_3DSigmaPlot(wafer& w, double left, double top, double& width, double height, double resx,
                         double resy, double fwscal, double alp2, double phi2, double thet2,
                         double SigmaRange, const std::string& caption, bool framed);
  void Print_2DBPlot(wafer& w, double left, double top, double& width, double height, double BeamWidth,
                     double BeamHeight, double BeamScale, double GridRotation, double WaferRotation,
                     double GridInclination, const std::string& caption, bool framed);
  void Print_2DPlot_THN(wafer& w, double left, double top, double width, double height, double res,
                        const std::string& caption, std::string& text);
  void Print_2DSigmaPlot_THN(wafer& w, double left, double top, double width, double height, double res,
                             double unread, double SigmaRange, const std::string& caption);
  void Print_2DVGridPlot(wafer& w, double left, double top, double width, double height,
                         const std::string& caption, bool framed);
  void Print_GridPosPlot(wafer& w, double left, double top, double width, double height,
                         const std::string& caption);

  void Print_Contour(wafer& w, double left, double top, double width, double height, double Interval,
                     bool IntervalInPercent, const std::string& MeasurementUnit, int marksites,
                     int Resolution, int PlotColored, const std::string& caption, bool framed);
  void Print_Contour_THN(wafer& w, double left, double top, double width, double height, double Interval,
                         bool IntervalInPercent, int marksites, int Resolution, int PlotColored,
                         const std::string& caption, std::string& text, bool framed);
  void Print_Contour_Legend(const wafer& w, double left, double top, double Interval, bool percent,
                            const std::string& unit);

  void Print_1DPlot(wafer& w, int angle, int PlotType, double RotationPointX, double RotationPointY,
                    double LineStartPointX, double LineStartPointY, double LineEndPointX,
                    double LineEndPointY, bool marksites, const std::string& caption, double left, double top,
                    double width, double height, bool framed);
  void DrawCutLine(const wafer& w, int angle, int PlotType, double RotationPointX, double RotationPointY,
                   double LineStartPointX, double LineStartPointY, double LineEndPointX, double LineEndPointY,
                   double left, double top);
  void Print_Histo(int PlotType, wafer& w, double left, double top, double width, double height,
                   double Resolution, double further, const std::string& caption, bool framed);
  void Print_Histo_THN(int PlotType, wafer& w, double left, double top, double width, double height,
                       double Resolution, double further, const std::string& caption);

 private:
  struct Scale {
    double X, Y, r, b;
  };

  double twips_x() const;
  double twips_y() const;
  std::int16_t measured(const std::string& text) const;
  void put(double x, double y, const std::string& text);
  void line(double x1, double y1, double x2, double y2, Color color);
  void polygon(const std::vector<std::pair<double, double>>& corners);
  void write_column(const std::vector<std::pair<double, std::string>>& rows, double x, double top);
  Scale begin_scale(double& left, double& top);
  void scale_box(const Scale& scale, double left, double top, int i, double color);
  void white_polygon(const std::vector<std::pair<double, double>>& corners);
  void grid_positions(wafer& w, double left, double top, double width, double height);
  void interval_line(double Interval, const std::string& suffix, double left, double top);
  void histogram(int PlotType, wafer& w, double left, double top, double width, double height,
                 double Resolution, double n, double chart_height);

  PlotCanvas& p;
  const bool printer;
};

// Characters of UTF-8, each as the bytes that it takes.
std::vector<std::string> characters_of(const std::string& text);
std::string joined(const std::vector<std::string>& characters);
/// The first 15 characters.
std::string first_fifteen(const std::string& text);
/// The number in the format, which grows a zero for each turn.
std::string lengthened(double value, std::string& format);
/// @throws OverflowError outside 16 bits.
std::int16_t whole(double number);
/// The number itself. @throws OverflowError for an infinity.
double in_range(double number);

}  // namespace mirolen
