#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "mirolen/render/ColorScale.h"
#include "mirolen/render/NodeLine.h"
#include "mirolen/render/Painter.h"

namespace mirolen {
namespace {

// contract 8
enum Style : std::int16_t { poly_edge = 1, every_edge = 2, white_cells = 3, sigma_colors = 4, bands = 5 };

constexpr double margin = 6;
// From the centre to the edge of the grid.
constexpr std::int16_t fewest_surface_cells = 6, most_surface_cells = 500;
constexpr double no_color = 15.0;  // of a cell without data
constexpr Color first_system_color = 0x80000000;

double rotate_x(double a, double b, double c, double d) { return a * c + b * d; }
double rotate_y(double a, double b, double c, double d) { return b * c + a * d; }

/// The steps of a surface's grid, turned: sampled on the wafer, and drawn on the canvas.
struct TurnedGrid {
  double sxc = 0, sys = 0, sxs = 0, syc = 0;
  double pxc = 0, pyc = 0, pxs = 0, pys = 0;
  double sinT = 0, cosT = 0;
};

/// One call of `D3Plot`. Cells are painted row by row from the far edge to the near one, so that a nearer
/// cell covers what lies behind it. The value at each grid node is interpolated once.
class SurfacePainter : Painter {
 public:
  /// What `D3Plot` was asked for; angles in degrees.
  struct Request {
    double resx, resy, fwscal;
    double alp2, phi2, thet2;
    std::int16_t style;
    double SigmaRange;
    bool fprint;
  };

  SurfacePainter(wafer& wafer, PlotCanvas& canvas, const Request& request, PlotArea& area, double Pi)
      : Painter(wafer, canvas, area), request_(request), Pi_(Pi) {}

  void set_levels();
  void set_up();
  void paint();

 private:
  void set_grid(double& res, std::int16_t& n);
  void set_turn();
  void set_scale();
  void set_sigma_range();
  void paint_row(int j);
  void paint_cell(int i, int j, const std::array<double, 4>& heights);
  Color cell_color(const std::array<double, 4>& heights) const;
  double band_color_of(double zMean) const;
  double sigma_color_of(double zMean) const;

  double scaled(double level) const { return height_on_scale(level, wafer_.maxi, zScale_); }
  void measure_line(int q, std::vector<double>& heights);
  PixelPoint pixel(int p, int q, double height) const;

  Request request_;
  double Pi_;
  bool plain_top_view_ = false;
  double topLevel_ = 0, bottomLevel_ = 0, bandStep_ = 0;
  std::int16_t nx_ = 0, ny_ = 0;
  TurnedGrid turned_;
  double scale_ = 0, zScale_ = 0;
  double flatLimit_ = 0, radius_square_ = 0;
  double sigma_low_ = 0, sigma_high_ = 0;
  std::vector<double> far_, near_;  // heights of the edges of the row being drawn
  NodeLine line_;
};

void SurfacePainter::set_levels() {
  resume([&] {
    const ScaleEnds ends = scale_ends(wafer_);
    topLevel_ = ends.high;
    bottomLevel_ = ends.low;
  });
  // The base follows the data: with limits set, too, the surface stands on the same ground. (contract 71)
  resume([&] { wafer_.Low = scale_base(wafer_.maxi, wafer_.mini); });
}

void SurfacePainter::set_up() {
  plain_top_view_ = request_.alp2 == 0 && request_.phi2 == 0 && request_.thet2 == 90 && !request_.fprint;
  for (double* angle : {&request_.alp2, &request_.thet2, &request_.phi2}) *angle = *angle * Pi_ / 180;
  set_grid(request_.resx, nx_);
  set_grid(request_.resy, ny_);
  set_turn();
  set_scale();

  resume([&] { topLevel_ = checked(scaled(topLevel_)); });
  resume([&] { bottomLevel_ = checked(scaled(bottomLevel_)); });
  bandStep_ = (topLevel_ - bottomLevel_) / 10;
  flatLimit_ = -(wafer_.flat_ratio - 0.5) * wafer_.WafDiam;
  resume([&] { radius_square_ = checked(wafer_.test_diam / 2 * (wafer_.test_diam / 2)); });
  if (request_.style == sigma_colors) set_sigma_range();
}

void SurfacePainter::set_sigma_range() {
  resume([&] { sigma_low_ = checked(scaled(wafer_.mean - request_.SigmaRange * wafer_.StdDev)); });
  resume([&] { sigma_high_ = checked(scaled(wafer_.mean + request_.SigmaRange * wafer_.StdDev)); });
}

void SurfacePainter::set_grid(double& res, std::int16_t& n) {
  resume([&] {
    if (res == 0) raise_division_by_zero();
    // More cells than a number counts are too many all the same.
    n = to_int16(std::min(wafer_.test_diam / 2 / res + 2, most_surface_cells + 1.0));
  });
  if (n < fewest_surface_cells) {
    n = fewest_surface_cells;
    res = wafer_.test_diam / 8;  // contract 69
  }
  if (n > most_surface_cells) {
    n = most_surface_cells;
    res = wafer_.test_diam / 1000;
  }
}

void SurfacePainter::set_turn() {
  const double resx = request_.resx, resy = request_.resy;
  const double d = request_.phi2 - request_.alp2;
  turned_.sxc = resx * std::cos(d);
  turned_.sys = resy * std::sin(d);
  turned_.sxs = resx * std::sin(d);
  turned_.syc = resy * std::cos(d);
  turned_.pxc = resx * std::cos(request_.alp2);
  turned_.pyc = resy * std::cos(request_.alp2);
  turned_.pxs = resx * std::sin(request_.alp2);
  turned_.pys = resy * std::sin(request_.alp2);
  turned_.sinT = std::sin(request_.thet2);
  turned_.cosT = std::cos(request_.thet2);
}

void SurfacePainter::set_scale() {
  const TurnedGrid& t = turned_;
  double scaleX = 0, scaleY = 0;
  resume([&] { scaleX = divide((area_.width - margin) / 2, std::abs(t.pxc) * nx_ + std::abs(t.pys) * ny_); });
  if (t.sinT == 0 && request_.fwscal == 0) {
    scale_ = scaleX;
  } else {
    resume([&] {
      scaleY =
          divide(area_.height - margin, (t.sinT + t.sinT) * (std::abs(t.pxs) * nx_ + std::abs(t.pyc) * ny_) +
                                            request_.fwscal * t.cosT);
    });
    scale_ = scaleX < scaleY ? scaleX : scaleY;
  }
  resume([&] { zScale_ = checked(scale_ * request_.fwscal); });
}

void SurfacePainter::paint() {
  measure_line(0, far_);
  for (int j = 0; j < 2 * ny_; ++j) {
    measure_line(j + 1, near_);
    paint_row(j);
    far_.swap(near_);
    show();
  }
}

void SurfacePainter::measure_line(int q, std::vector<double>& heights) {
  line_.clear();
  for (int p = 0; p <= 2 * nx_; ++p) {
    const double x = rotate_x(nx_ - p, ny_ - q, turned_.sxc, turned_.sys);
    const double y = rotate_y(-nx_ + p, ny_ - q, turned_.syc, turned_.sxs);
    line_.add(x, y, radius_square_ > x * x + y * y && y > flatLimit_);
  }
  line_.measure(wafer_, heights, [this](double z) { return scaled(z); });
}

void SurfacePainter::paint_row(int j) {
  for (int i = 0; i < 2 * nx_; ++i) {
    const auto at = static_cast<std::size_t>(i);
    paint_cell(i, j, {far_[at], far_[at + 1], near_[at], near_[at + 1]});
  }
}

PixelPoint SurfacePainter::pixel(int p, int q, double height) const {  // contract 70
  const auto& t = turned_;
  const double X = area_.left + area_.width / 2 + scale_ * ((nx_ - p) * t.pxc - (ny_ - q) * t.pys);
  const double Y = area_.top + area_.height -
                   scale_ * ((2 * nx_ - p) * t.pxs + (2 * ny_ - q) * t.pyc) * t.sinT - height * t.cosT;
  return {to_int32(X), to_int32(Y)};
}

void SurfacePainter::paint_cell(int i, int j, const std::array<double, 4>& heights) {
  const double zA = heights[0], zB = heights[1], zC = heights[2], zD = heights[3];
  std::array<PixelPoint, 4> cellPoints{};
  resume([&] {
    cellPoints = {pixel(i, j, zA), pixel(i + 1, j, zB), pixel(i + 1, j + 1, zD), pixel(i, j + 1, zC)};
  });
  resume([&] { canvas_.DrawStyle(solid_line); });
  resume([&] { canvas_.FillColor(cell_color(heights)); });
  const bool filled =
      request_.style == poly_edge || (request_.style >= white_cells && request_.style <= bands);
  resume([&] { canvas_.FillStyle(filled ? solid_fill : transparent_fill); });
  resume([&] { canvas_.Polygon(cellPoints); });
}

Color SurfacePainter::cell_color(const std::array<double, 4>& heights) const {
  const bool colored = request_.style == poly_edge || request_.style == bands;
  if (!colored && request_.style != sigma_colors) return QBColor(15);

  const auto& [zA, zB, zC, zD] = heights;
  const double zMean = (zA + zB + zC + zD) / 4;
  const bool touches_outside = zA == 0 || zB == 0 || zC == 0 || zD == 0;  // contract 68
  double color = colored ? band_color_of(zMean) : sigma_color_of(zMean);
  if (zMean == 0 || touches_outside) color = no_color;
  if (color == no_color) return plain_top_view_ ? first_system_color : QBColor(15);  // contract 66
  return to_color(color);
}

double SurfacePainter::band_color_of(double zMean) const {
  if (topLevel_ == bottomLevel_) return wafer_.col6;  // contract 73
  return band_color(wafer_, band_of(zMean, topLevel_, bandStep_));
}

double SurfacePainter::sigma_color_of(double zMean) const {
  const bool flat = topLevel_ == bottomLevel_;
  if (zMean < sigma_low_ && !flat) return wafer_.ColS3;
  if (zMean > sigma_high_ && !flat) return wafer_.ColS1;
  return wafer_.ColS2;
}

}  // namespace

void wafer::D3Plot(PlotCanvas& Plot, double resx, double resy, double fwscal, double alp2, double phi2,
                   double thet2, std::int16_t PlotStyle, double SigmaRange, bool fprint, double left,
                   double top, double width, double height, std::int16_t ShowDispl) {
  PlotArea area(Plot, left, top, width, height, ShowDispl, AreaRounding::all);
  area.clear();
  SurfacePainter painter(*this, Plot, {resx, resy, fwscal, alp2, phi2, thet2, PlotStyle, SigmaRange, fprint},
                         area, Pi);
  painter.set_levels();
  area.locate();
  area.resume([&] { Plot.ForeColor(QBColor(0)); });
  area.resume([&] { Plot.DrawWidth(1); });
  area.resume([&] { Plot.DrawStyle(solid_line); });
  painter.set_up();
  if (Nop > 3) painter.paint();
  area.resume([&] { setMaximalMinial(maximal, minimal); });
}

}  // namespace mirolen
