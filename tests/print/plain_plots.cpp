#include <cmath>

#include "mirolen/core/RunTimeError.h"
#include "mirolen/render/StringFormat.h"
#include "plain_page.h"

namespace mirolen {
namespace {

constexpr Color kBlue = 0x800000, kGreen = 0x008000, kDarkRed = 0x000080;

double smaller(double a, double b) { return b < a ? b : a; }

}  // namespace

// ---- Plots beside the orientation box ----

void PlainPage::Print_2DPlot(wafer& w, double left, double top, double& width, double height, double res,
                             const std::string& caption, int marksites, bool framed) {
  ResetPrinterObj();
  DrawFlatNotchBox(left + width - 1215, top + height - 1355, w.flat_ratio, 0, 90);
  const double t = top + p.TextHeight("0");
  width = width - 1250;
  const double size = smaller(width, height) * 0.9;
  const double x0 = left + (width - size) / 2, y0 = t + (height - size) / 2;
  p.ScaleMode(3);
  w.D2Plot(p, res, 5, 0, whole(marksites), x0, y0, size, size, 1);
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width + 1250, height);
}

void PlainPage::Print_2DNPlot(wafer& w, double left, double top, double& width, double height,
                              const std::string& caption, bool framed) {
  ResetPrinterObj();
  DrawFlatNotchBox(left + width - 1215, top + height - 1355, w.flat_ratio, 0, 90);
  const double t = top + p.TextHeight("0");
  width = width - 1250;
  const double size = smaller(width, height) * 0.9;
  const double x0 = left + (width - size) / 2, y0 = t + (height - size) / 2;
  p.ScaleMode(3);
  w.D2Number(p, x0, y0, size, size, 1);
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width + 1250, height);
}

void PlainPage::Print_2DSigmaPlot(wafer& w, double left, double top, double& width, double height, double res,
                                  double SigmaRange, const std::string& caption, int marksites, bool framed) {
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
  DrawFlatNotchBox(left + width - 1215, top + height - 1355, w.flat_ratio, 0, 90);
  const double t = top + p.TextHeight("0");
  width = width - 1250;
  const double size = smaller(width, height) * 0.9;
  const double x0 = left + (width - size) / 2, y0 = t + (height - size) / 2;
  p.ScaleMode(3);
  w.D2Plot(p, res, 4, SigmaRange, whole(marksites), x0, y0, size, size, 1);
  ResetPrinterObj();
}

void PlainPage::Print_3DPlot(wafer& w, double left, double top, double& width, double height, double PlotType,
                             double resx, double resy, double fwscal, double alp2, double phi2, double thet2,
                             const std::string& caption, bool framed) {
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
  DrawFlatNotchBox(left + width - 1215, top + height - 1355, w.flat_ratio, phi2, thet2);
  const double t = top + p.TextHeight("0");
  width = width - 1250;
  const double size = smaller(width, height) * 0.9;
  const double x0 = left + (width - size) / 2, y0 = t + (height - size) / 2;
  p.ScaleMode(3);
  w.D3Plot(p, resx, resy, fwscal, alp2, phi2, thet2, whole(PlotType), 0, true, x0, y0, size, size, 1);
  ResetPrinterObj();
}

void PlainPage::Print_3DSigmaPlot(wafer& w, double left, double top, double& width, double height,
                                  double resx, double resy, double fwscal, double alp2, double phi2,
                                  double thet2, double SigmaRange, const std::string& caption, bool framed) {
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
  DrawFlatNotchBox(left + width - 1215, top + height - 1355, w.flat_ratio, phi2, thet2);
  const double t = top + p.TextHeight("0");
  width = width - 1250;
  const double size = smaller(width, height) * 0.9;
  const double x0 = left + (width - size) / 2, y0 = t + (height - size) / 2;
  p.ScaleMode(3);
  w.D3Plot(p, resx, resy, fwscal, alp2, phi2, thet2, 4, SigmaRange, true, x0, y0, size, size, 1);
  ResetPrinterObj();
}

void PlainPage::Print_2DBPlot(wafer& w, double left, double top, double& width, double height,
                              double BeamWidth, double BeamHeight, double BeamScale, double GridRotation,
                              double WaferRotation, double GridInclination, const std::string& caption,
                              bool framed) {
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
  DrawFlatNotchBox(left + width - 1215, top + height - 1355, w.flat_ratio, WaferRotation, GridInclination);
  const double t = top + p.TextHeight("0");
  width = width - 1250;
  const double size = smaller(width, height) * 0.9;
  const double x0 = left + (width - size) / 2, y0 = t + (height - size) / 2;
  p.ScaleMode(3);
  w.D2BeamPlot(p, BeamWidth, BeamHeight, BeamScale, GridRotation, WaferRotation, GridInclination, true, x0,
               y0, size, size, 1);
  ResetPrinterObj();
}

// ---- Plots without it ----

void PlainPage::Print_2DPlot_THN(wafer& w, double left, double top, double width, double height, double res,
                                 const std::string& caption, std::string& text) {
  ResetPrinterObj();
  const double h = p.TextHeight("0");
  const double size = smaller(width, height) * 0.9;
  const double x0 = left + (width - size) / 2, y0 = top + h + h / 2;
  p.ScaleMode(3);
  w.D2Plot(p, res, 5, 0, 0, x0, y0, size, size, 1);
  ResetPrinterObj();
  DrawLeftText(text, x0, y0 + size + h / 2, size, 0);
  DrawFrame(caption, left, top, width, height);
  ResetPrinterObj();
}

void PlainPage::Print_2DSigmaPlot_THN(wafer& w, double left, double top, double width, double height,
                                      double res, double, double SigmaRange, const std::string& caption) {
  ResetPrinterObj();
  DrawFrame(caption, left, top, width, height);
  const double t = top + p.TextHeight("0");
  const double size = smaller(width, height) * 0.9;
  const double x0 = left + (width - size) / 2, y0 = t + (height - size) / 2;
  p.ScaleMode(3);
  w.D2Plot(p, res, 4, SigmaRange, 0, x0, y0, size, size, 1);
  ResetPrinterObj();
}

void PlainPage::grid_positions(wafer& w, double left, double top, double width, double height) {
  const double t = top + p.TextHeight("0");
  const double size = smaller(width, height) * 0.9;
  const double x0 = left + (width - size) / 2, y0 = t + (height - size) / 2;
  p.ScaleMode(3);
  w.GridPosPlot(p, x0, y0, size, size, 1);
}

void PlainPage::Print_GridPosPlot(wafer& w, double left, double top, double width, double height,
                                  const std::string& caption) {
  ResetPrinterObj();
  grid_positions(w, left, top, width, height);
  ResetPrinterObj();
  DrawFrame(caption, left, top, width, height);
}

void PlainPage::Print_2DVGridPlot(wafer& w, double left, double top, double width, double height,
                                  const std::string& caption, bool framed) {
  ResetPrinterObj();
  if (framed) {
    grid_positions(w, left, top, width, height);
  } else {
    const double size = smaller(width, height);
    p.ScaleMode(3);
    w.GridPosPlot(p, left + (width - size) / 2, top + (height - size) / 2, size, size, 1);
  }
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
}

// ---- Contour plots ----

void PlainPage::interval_line(double Interval, const std::string& suffix, double left, double top) {
  std::string text = "Interval: " + StringFormat::plain_text(Interval) + suffix;
  DrawLeftText(text, left, top, 1200, 0);
}

void PlainPage::Print_Contour(wafer& w, double left, double top, double width, double height, double Interval,
                              bool IntervalInPercent, const std::string& MeasurementUnit, int marksites,
                              int Resolution, int PlotColored, const std::string& caption, bool framed) {
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
  const double yb = top + height - 1555, xb = left + width - 1215;
  DrawFlatNotchBox(xb, yb + 360, w.flat_ratio, 0, 90);
  double distance = Interval;
  std::string suffix = " %";
  if (!IntervalInPercent) {
    double hundred = std::abs(w.mean);
    if (hundred == 0) hundred = std::abs(w.maxi - w.mini);
    if (hundred == 0) hundred = std::abs(w.maxi);
    distance = hundred == 0 ? 1 : Interval * 100 / hundred;
    suffix = " " + MeasurementUnit;
  }
  interval_line(Interval, suffix, xb, yb);
  const double t = top + p.TextHeight("0"), usable = width - 1215;
  const double size = smaller(usable, height) * 0.9;
  const double x0 = left + (usable - size) / 2, y0 = t + (height - size) / 2;
  w.D2Contour(p, whole(size / 2), distance, whole(marksites), whole(Resolution), whole(PlotColored), x0, y0,
              size, size, 1);
  ResetPrinterObj();
}

void PlainPage::Print_Contour_THN(wafer& w, double left, double top, double width, double height,
                                  double Interval, bool IntervalInPercent, int marksites, int Resolution,
                                  int PlotColored, const std::string& caption, std::string& text,
                                  bool framed) {
  ResetPrinterObj();
  const double h = p.TextHeight("0");
  double size = smaller(width, height);
  if (framed) size = height - 3 * h >= width ? width * 0.9 : (height - 3 * h) * 0.9;
  double distance = Interval;
  if (IntervalInPercent) {
    double ref = 0;
    if (w.mean != 0)
      ref = w.mean;
    else if (w.range != 0)
      ref = w.range;
    else if (std::abs(w.mean) < std::abs(w.maxi))
      ref = w.maxi;
    else if (std::abs(w.mean) < std::abs(w.mini))
      ref = w.mini;
    distance = ref == 0 ? 1 : Interval * 100 / std::abs(ref);
  }
  w.D2Contour(p, whole(size / 2), distance, whole(marksites), whole(Resolution), whole(PlotColored), left,
              top, size, size, 1);
  ResetPrinterObj();
  if (framed) {
    DrawLeftText(text, left, top + 3 * h / 2 + size + h / 2, size, 0);
    DrawFrame(caption, left, top, width, height);
  }
  ResetPrinterObj();
}

void PlainPage::Print_Contour_Legend(const wafer&, double left, double top, double Interval, bool percent,
                                     const std::string& unit) {
  ResetPrinterObj();
  interval_line(Interval, percent ? " %" : " " + unit, left, top);
}

// ---- Charts ----

void PlainPage::Print_1DPlot(wafer& w, int angle, int PlotType, double RotationPointX, double RotationPointY,
                             double LineStartPointX, double LineStartPointY, double LineEndPointX,
                             double LineEndPointY, bool marksites, const std::string& caption, double left,
                             double top, double width, double height, bool framed) {
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
  const double yb = top + height - 1555, xb = left + width - 1215;
  DrawFlatNotchBox(xb, yb + 360, w.flat_ratio, 0, 90);
  DrawCutLine(w, angle, PlotType, RotationPointX, RotationPointY, LineStartPointX, LineStartPointY,
              LineEndPointX, LineEndPointY, xb + 138, yb + 810);
  if (PlotType == 1) {
    std::string text = "Angle: " + std::to_string(angle) + " °";
    DrawLeftText(text, xb, yb, 935, 0);
  }
  p.DrawWidth(printer ? 2 : 1);
  const double H = height - 1015, L = 1.5 * p.TextWidth(FormatLbl(w.maximal));
  const double W = width - 1215 - 300 - L, x0 = left + L, y0 = top + 500;
  const double middle = (w.maximal + w.Low) / 2;
  const double values[] = {w.maximal, (middle + w.maximal) / 2, middle, (middle + w.Low) / 2, w.Low};
  const double rows[] = {y0 - 90, y0 - 90 + 0.25 * H, y0 - 90 + 0.5 * H, y0 - 90 + 0.75 * H, y0 - 90 + H};
  for (int i = 0; i < 5; ++i) {
    std::string text = FormatLbl(values[i]);
    DrawLeftText(text, left + width / 60, rows[i], 1000, 0);
  }
  const wafer::Chord cut = w.scan_chord(whole(PlotType), whole(angle), RotationPointX, RotationPointY,
                                        LineStartPointX, LineStartPointY, LineEndPointX, LineEndPointY);
  const double dx = (cut.scanEndX - cut.scanStartX) / 4, dy = (cut.scanEndY - cut.scanStartY) / 4;
  const double lower = p.TextHeight("0");
  for (int k = 0; k <= 4; ++k) {
    std::string x = StringFormat::format_number(cut.scanStartX + k * dx, "0.00");
    DrawCenterText(x, x0 + k * W / 4, y0 + H + 100, 1000, 0);
    std::string y = StringFormat::format_number(cut.scanStartY + k * dy, "0.00");
    DrawCenterText(y, x0 + k * W / 4, y0 + H + 100 + lower, 1000, 0);
  }
  w.D1Plot_AdjustLines(p, x0, y0, W, H);
  line(x0 - 45, top + 355, x0 + 45, top + 355, kBlue);
  line(x0, top + 310, x0, top + 400, kBlue);
  p.DrawWidth(printer ? 4 : 2);
  double x1 = LineStartPointX, y1 = LineStartPointY;
  if (PlotType == 1) {
    x1 = RotationPointX;
    y1 = RotationPointY;
  }
  w.D1Plot(p, 88, whole(angle), PlotType == 1, x1, y1, LineEndPointX, LineEndPointY, kDarkRed, x0, y0, W, H,
           1);
  if (marksites)
    w.D1Plot_MarkSites(p, nullptr, whole(angle), PlotType == 1, x1, y1, LineEndPointX, LineEndPointY,
                       kDarkRed, x0, y0, W, H, 1);
  ResetPrinterObj();
}

void PlainPage::DrawCutLine(const wafer& w, int angle, int PlotType, double RotationPointX,
                            double RotationPointY, double LineStartPointX, double LineStartPointY,
                            double LineEndPointX, double LineEndPointY, double left, double top) {
  const wafer::Chord cut = w.scan_chord(whole(PlotType), whole(angle), RotationPointX, RotationPointY,
                                        LineStartPointX, LineStartPointY, LineEndPointX, LineEndPointY);
  double g = w.WafDiam / 50;
  if (g == 0) g = 1;
  double n = whole(w.WafDiam / 2 / g + 2);
  if (n > 100) {
    n = 100;
    g = w.WafDiam / 196;
  }
  const double scale = 700 / (2 * n * g), cx = left + 350, cy = top + 350;
  line(cx + cut.scanStartX * scale, cy - cut.scanStartY * scale, cx + cut.scanEndX * scale,
       cy - cut.scanEndY * scale, kGreen);
}

void PlainPage::histogram(int PlotType, wafer& w, double left, double top, double width, double height,
                          double Resolution, double n, double chart_height) {
  std::int16_t m = 0, tick = 60;
  try {
    m = whole(0.08 * width);
  } catch (const RunTimeError&) {
  }
  try {
    ResetPrinterObj();
  } catch (const RunTimeError&) {
  }
  try {
    p.Line(22, left + m, top + n, left + width - m, top + height - 1.2 * n, kBlue);
  } catch (const RunTimeError&) {
  }
  try {
    p.ScaleMode(3);
  } catch (const RunTimeError&) {
  }
  double x0 = left + m, y0 = top + n, across = width - 2 * m, down = chart_height;
  double origin_x = left + m, origin_y = top + n;
  try {
    w.Statistic(whole(PlotType), p, p, x0, y0, across, down, Resolution, tick, origin_x, origin_y, 1);
  } catch (const RunTimeError&) {
  }
  try {
    p.ScaleMode(1);
  } catch (const RunTimeError&) {
  }
  try {
    ResetPrinterObj();
  } catch (const RunTimeError&) {
  }
}

void PlainPage::Print_Histo(int PlotType, wafer& w, double left, double top, double width, double height,
                            double Resolution, double, const std::string& caption, bool framed) {
  try {
    if (framed) DrawFrame(caption, left, top, width, height);
  } catch (const RunTimeError&) {
  }
  histogram(PlotType, w, left, top, width, height, Resolution, 600, height - 2.2 * 600);
}

void PlainPage::Print_Histo_THN(int PlotType, wafer& w, double left, double top, double width, double height,
                                double Resolution, double, const std::string&) {
  histogram(PlotType, w, left, top, width, height, Resolution, 0, height);
}

}  // namespace mirolen
