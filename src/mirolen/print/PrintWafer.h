#pragma once

#include <cmath>
#include <memory>
#include <string>

#include "mirolen/core/wafer.h"
#include "mirolen/render/PlotCanvas.h"

namespace mirolen {

/// Puts plots and report blocks of a wafer on a page that the host owns: it starts the job, breaks the pages
/// and ends it, and calls one operation after the other, each with its place on the page.
///
/// Places and sizes are twips of the target (1/1440 inch), from the origin of what it can print on. The
/// target is a printer or any other canvas, a picture as a preview for instance; what is no printer counts
/// its twips by the pixels of the screen. Plots are drawn anew by the wafer's renderers, in the resolution of
/// the target. Each operation leaves the target as `ResetPrinterObj` puts it.
///
/// Every operation throws InvalidArgument without a target, and RunTimeError where the target fails or a
/// number leaves its range; what is drawn by then stays.
class PrintWafer {
 public:
  /// The target.
  std::shared_ptr<PlotCanvas> PrinterObj;
  const double Pi = 4 * std::atan(1.0);

  // ---- Primitives ----
  /// The report state: black on white, solid, one pixel wide, Arial 8, twips.
  void ResetPrinterObj();
  // The text writers cut a text that is wider than width, and hand it back as they wrote it; a text just as
  // wide stays whole. color is an index of the sixteen-colour palette.
  /// Writes from left; what is too long loses its end.
  void DrawLeftText(std::string& text, double left, double top, double width, std::int16_t color);
  /// Writes round center; what is too long loses a character at either end at once.
  void DrawCenterText(std::string& text, double center, double top, double width, std::int16_t color);
  /// Writes up to right; what is too long loses its start.
  // contract 14
  void DrawRightText(std::string& text, double right, double top, double width, std::int16_t color);
  /// A group box whose top edge runs through the middle of its caption's line, one text height below top at
  /// its lower end; without a caption the edge is whole, and in the same place.
  void DrawFrame(const std::string& caption, double left, double top, double width, double height);
  /// Writes a lower-case sigma on the base line of a text of the report's font at top.
  void DrawSigmaChar(double left, double top, std::int16_t color);
  /// A value as a label's text, as `wafer::FormatLbl` writes it.
  std::string FormatLbl(double value) const;
  /// A value in a format that gets decimals until the text is not zero; for 0 the format itself.
  std::string FormatNonZero(double value, std::string format) const;

  // ---- Report blocks, 2775 twips wide ----
  void DrawWaferRemarks(const wafer& wafer, double left, double top);  // contract 14
  void DrawWaferSize(const wafer& wafer, double left, double top);
  /// The unit is `Meas_unit` of the wafer.
  void DrawWaferStatistics(const wafer& wafer, double left, double top);
  /// The ten colours of the bands, in a frame or without.
  void DrawColoredLegend(const wafer& wafer, double left, double top, bool framed);
  /// The three sigma colours, in a frame or without. Without one, left and top come back in pixels.
  void DrawSigmaLegend(const wafer& wafer, double& left, double& top, double sigma, bool framed);
  void DrawSigmaLegend_No_Frame(const wafer& wafer, double& left, double& top, double sigma);
  /// The scales themselves; left and top come back in pixels.
  void DrawColoredScale(const wafer& wafer, double& left, double& top);
  void DrawSigmaScale(double& left, double& top, double sigma, const wafer& wafer);

  // ---- The orientation mark ----
  /// A small wafer of radius r, turned by rot and seen at incl (90: from above), in degrees; a style of 1 has
  /// a notch, any other a flat. x, y and r come back in pixels.
  void DrawFlatNotchSymbol(double& x, double& y, double style, double& r, double rot, double incl);
  /// The same in a captioned box.
  void DrawFlatNotchBox(double left, double top, double style, double rot, double incl);

  // ---- Plots: a square of nine tenths of the area, beside the orientation box ----
  // In these six width comes back as what is left beside the box: 1250 less. A frame bears the caption.
  void Print_2DPlot(wafer& wafer, double left, double top, double& width, double height, double res,
                    const std::string& caption, std::int16_t marksites, bool framed);
  void Print_2DNPlot(wafer& wafer, double left, double top, double& width, double height,
                     const std::string& caption, bool framed);
  void Print_2DSigmaPlot(wafer& wafer, double left, double top, double& width, double height, double res,
                         double SigmaRange, const std::string& caption, std::int16_t marksites, bool framed);
  void Print_3DPlot(wafer& wafer, double left, double top, double& width, double height, double PlotType,
                    double resx, double resy, double fwscal, double alp2, double phi2, double thet2,
                    const std::string& caption, bool framed);
  void Print_3DSigmaPlot(wafer& wafer, double left, double top, double& width, double height, double resx,
                         double resy, double fwscal, double alp2, double phi2, double thet2,
                         double SigmaRange, const std::string& caption, bool framed);
  void Print_2DBPlot(wafer& wafer, double left, double top, double& width, double height, double BeamWidth,
                     double BeamHeight, double BeamScale, double GridRotation, double WaferRotation,
                     double GridInclination, const std::string& caption, bool framed);

  // ---- Plots without the orientation box ----
  /// The compact colour map hangs at the top of its frame, with a line of text below.
  // contract 14
  void Print_2DPlot_THN(wafer& wafer, double left, double top, double width, double height, double res,
                        const std::string& caption, std::string& text);
  /// The compact sigma map; unread is for callers that still hand it over. (contract 13)
  // contract 14
  void Print_2DSigmaPlot_THN(wafer& wafer, double left, double top, double width, double height, double res,
                             double unread, double SigmaRange, const std::string& caption);
  /// The sites' numbers; unframed they fill the area.
  void Print_2DVGridPlot(wafer& wafer, double left, double top, double width, double height,
                         const std::string& caption, bool framed);
  void Print_GridPosPlot(wafer& wafer, double left, double top, double width, double height,
                         const std::string& caption);

  // ---- Contour plots ----
  /// With the interval above the orientation box. An Interval that is not in percent counts by the mean, or
  /// by what stands in for a mean of 0.
  void Print_Contour(wafer& wafer, double left, double top, double width, double height, double Interval,
                     bool IntervalInPercent, const std::string& MeasurementUnit, std::int16_t marksites,
                     std::int16_t Resolution, std::int16_t PlotColored, const std::string& caption,
                     bool framed);
  /// The compact form, at the area's top left, framed with a line of text below. Here an Interval that is not
  /// in percent is the spacing as it stands, and one in percent is converted by the mean or its stand-in.
  void Print_Contour_THN(wafer& wafer, double left, double top, double width, double height, double Interval,
                         bool IntervalInPercent, std::int16_t marksites, std::int16_t Resolution,
                         std::int16_t PlotColored, const std::string& caption, std::string& text,
                         bool framed);
  /// The interval as a line of text.
  // contract 14
  void Print_Contour_Legend(const wafer& wafer, double left, double top, double Interval, bool percent,
                            const std::string& unit);

  // ---- Charts ----
  /// The cross-section: PlotType 1 at angle through the rotation point, otherwise from start to end.
  void Print_1DPlot(wafer& wafer, std::int16_t angle, std::int16_t PlotType, double RotationPointX,
                    double RotationPointY, double LineStartPointX, double LineStartPointY,
                    double LineEndPointX, double LineEndPointY, bool marksites, const std::string& caption,
                    double left, double top, double width, double height, bool framed);
  /// The cut as a green line over a square of 700 twips with its centre at that of the orientation mark.
  void DrawCutLine(const wafer& wafer, std::int16_t angle, std::int16_t PlotType, double RotationPointX,
                   double RotationPointY, double LineStartPointX, double LineStartPointY,
                   double LineEndPointX, double LineEndPointY, double left, double top);
  /// The histogram. A step that fails is passed over. further is read by nothing. (contract 13)
  void Print_Histo(std::int16_t PlotType, wafer& wafer, double left, double top, double width, double height,
                   double Resolution, double further, const std::string& caption, bool framed);
  /// The same without a frame, from the top of the area to its bottom.
  void Print_Histo_THN(std::int16_t PlotType, wafer& wafer, double left, double top, double width,
                       double height, double Resolution, double further, const std::string& caption);
};

}  // namespace mirolen
