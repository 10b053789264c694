#include <algorithm>

#include "mirolen/print/PrintWafer.h"
#include "mirolen/print/layout.h"
#include "mirolen/print/target.h"

namespace mirolen {

using print::on_page, print::Square;

namespace {

constexpr std::int16_t ten_bands = 5, three_sigma_classes = 4, no_marks = 0;
constexpr double beside_plot = 1250;  // room for the orientation box

/// How the orientation mark is seen.
struct View {
  double rot = 0;
  double incl = print::from_above;
};

/// Below the line that the caption stands on. (contract 96)
double below_line(const PrintWafer& page, double top) {
  return top + print::canvas_of(page.PrinterObj).TextHeight("0");
}

/// A plot in the middle of its area.
template <class Render>
void print_centred(PrintWafer& page, double left, double top, double width, double height, Render render) {
  PlotCanvas& target = print::canvas_of(page.PrinterObj);
  target.ScaleMode(pixels);
  render(target, print::centred(left, top, width, height, print::plot_size(width, height)));
  page.ResetPrinterObj();
}

/// What six plots share: the orientation box, and beside it the plot in what is left. They differ in when the
/// frame is drawn. (contract 99)
template <class Render>
void print_beside_orientation(PrintWafer& page, const wafer& wafer, double left, double top, double& width,
                              double height, View view, Render render) {
  page.DrawFlatNotchBox(left + width - 1215, top + height - 1355, wafer.flat_ratio, view.rot, view.incl);
  const double t = below_line(page, top);
  width -= beside_plot;  // contract 98
  print_centred(page, left, t, width, height, render);
}

}  // namespace

void PrintWafer::Print_2DPlot(wafer& wafer, double left, double top, double& width, double height, double res,
                              const std::string& caption, std::int16_t marksites, bool framed) {
  ResetPrinterObj();
  print_beside_orientation(*this, wafer, left, top, width, height, {}, [&](PlotCanvas& plot, Square at) {
    wafer.D2Plot(plot, res, ten_bands, 0, marksites, at.left, at.top, at.size, at.size, on_page);
  });
  if (framed) DrawFrame(caption, left, top, width + beside_plot, height);
}

void PrintWafer::Print_2DNPlot(wafer& wafer, double left, double top, double& width, double height,
                               const std::string& caption, bool framed) {
  ResetPrinterObj();
  print_beside_orientation(*this, wafer, left, top, width, height, {}, [&](PlotCanvas& plot, Square at) {
    wafer.D2Number(plot, at.left, at.top, at.size, at.size, on_page);
  });
  if (framed) DrawFrame(caption, left, top, width + beside_plot, height);
}

void PrintWafer::Print_2DSigmaPlot(wafer& wafer, double left, double top, double& width, double height,
                                   double res, double SigmaRange, const std::string& caption,
                                   std::int16_t marksites, bool framed) {
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
  print_beside_orientation(*this, wafer, left, top, width, height, {}, [&](PlotCanvas& plot, Square at) {
    wafer.D2Plot(plot, res, three_sigma_classes, SigmaRange, marksites, at.left, at.top, at.size, at.size,
                 on_page);
  });
}

void PrintWafer::Print_3DPlot(wafer& wafer, double left, double top, double& width, double height,
                              double PlotType, double resx, double resy, double fwscal, double alp2,
                              double phi2, double thet2, const std::string& caption, bool framed) {
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
  print_beside_orientation(*this, wafer, left, top, width, height, {phi2, thet2},
                           [&](PlotCanvas& plot, Square at) {
                             wafer.D3Plot(plot, resx, resy, fwscal, alp2, phi2, thet2, to_int16(PlotType), 0,
                                          true, at.left, at.top, at.size, at.size, on_page);
                           });
}

void PrintWafer::Print_3DSigmaPlot(wafer& wafer, double left, double top, double& width, double height,
                                   double resx, double resy, double fwscal, double alp2, double phi2,
                                   double thet2, double SigmaRange, const std::string& caption, bool framed) {
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
  print_beside_orientation(*this, wafer, left, top, width, height, {phi2, thet2},
                           [&](PlotCanvas& plot, Square at) {
                             wafer.D3Plot(plot, resx, resy, fwscal, alp2, phi2, thet2, three_sigma_classes,
                                          SigmaRange, true, at.left, at.top, at.size, at.size, on_page);
                           });
}

void PrintWafer::Print_2DBPlot(wafer& wafer, double left, double top, double& width, double height,
                               double BeamWidth, double BeamHeight, double BeamScale, double GridRotation,
                               double WaferRotation, double GridInclination, const std::string& caption,
                               bool framed) {
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
  print_beside_orientation(*this, wafer, left, top, width, height, {WaferRotation, GridInclination},
                           [&](PlotCanvas& plot, Square at) {
                             wafer.D2BeamPlot(plot, BeamWidth, BeamHeight, BeamScale, GridRotation,
                                              WaferRotation, GridInclination, true, at.left, at.top, at.size,
                                              at.size, on_page);
                           });
}

void PrintWafer::Print_2DPlot_THN(wafer& wafer, double left, double top, double width, double height,
                                  double res, const std::string& caption, std::string& text) {
  PlotCanvas& target = print::canvas_of(PrinterObj);
  ResetPrinterObj();
  const double h = target.TextHeight("0");
  const double size = print::plot_size(width, height);
  const double x0 = left + (width - size) / 2, y0 = top + h + h / 2;
  target.ScaleMode(pixels);
  wafer.D2Plot(target, res, ten_bands, 0, no_marks, x0, y0, size, size, on_page);
  ResetPrinterObj();
  DrawLeftText(text, x0, y0 + size + h / 2, size, 0);
  DrawFrame(caption, left, top, width, height);
  ResetPrinterObj();
}

void PrintWafer::Print_2DSigmaPlot_THN(wafer& wafer, double left, double top, double width, double height,
                                       double res, double, double SigmaRange, const std::string& caption) {
  ResetPrinterObj();
  DrawFrame(caption, left, top, width, height);
  print_centred(*this, left, below_line(*this, top), width, height, [&](PlotCanvas& plot, Square at) {
    wafer.D2Plot(plot, res, three_sigma_classes, SigmaRange, no_marks, at.left, at.top, at.size, at.size,
                 on_page);
  });
}

void PrintWafer::Print_2DVGridPlot(wafer& wafer, double left, double top, double width, double height,
                                   const std::string& caption, bool framed) {
  if (framed) return Print_GridPosPlot(wafer, left, top, width, height, caption);
  PlotCanvas& target = print::canvas_of(PrinterObj);
  ResetPrinterObj();
  const Square at = print::centred(left, top, width, height, std::min(width, height));
  target.ScaleMode(pixels);
  wafer.GridPosPlot(target, at.left, at.top, at.size, at.size, on_page);
  ResetPrinterObj();
}

void PrintWafer::Print_GridPosPlot(wafer& wafer, double left, double top, double width, double height,
                                   const std::string& caption) {
  ResetPrinterObj();
  print_centred(*this, left, below_line(*this, top), width, height, [&](PlotCanvas& plot, Square at) {
    wafer.GridPosPlot(plot, at.left, at.top, at.size, at.size, on_page);
  });
  DrawFrame(caption, left, top, width, height);
}

}  // namespace mirolen
