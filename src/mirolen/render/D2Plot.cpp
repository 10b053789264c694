#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "mirolen/render/ColorScale.h"
#include "mirolen/render/NodeLine.h"
#include "mirolen/render/PlanPainter.h"

namespace mirolen {
namespace {

constexpr std::int16_t color_map = 5;
constexpr double unpainted = 15.0;  // a colour of this very value leaves a cell unpainted (contract 66)
constexpr double no_data = 0;       // scaled height of a point outside the wafer
constexpr std::int16_t fewest_cells = 4, most_cells = 100;  // from the centre to the edge

/// One call of `D2Plot`. A colour map is a mosaic of square cells, drawn from the top right corner leftward
/// and down; the values at the nodes of a grid line are interpolated once, and kept for the cells below.
class MapPainter : PlanPainter {
 public:
  /// What `D2Plot` was asked for.
  struct Request {
    double res;
    bool as_color_map;
    double SigmaRange;
  };

  MapPainter(wafer& wafer, PlotCanvas& canvas, const Request& request, PlotArea& area)
      : PlanPainter(wafer, canvas, area), request_(request) {}

  void set_up();
  void paint_map();
  void mark_sites();

 private:
  struct Corner {
    int gx = 0;  // in grid steps from the centre
    int gy = 0;
  };

  void set_scale_ends();
  void set_mark_sizes();
  void set_grid();
  void set_mapping();
  void paint_disc();
  void measure_line(int gy, std::vector<double>& heights);
  void paint_row(int j);
  void paint_cell(const std::array<Corner, 4>& corners, std::array<double, 4> heights);
  double cell_color(double zc) const;
  double band_color_of(double zc) const;
  double sigma_color_of(double zc) const;
  void box(double x1, double y1, double x2, double y2, Color color);

  bool inside(double x, double y) const { return y > flat_limit_ && x * x + y * y <= radius_square_; }
  double norm(double z) const { return PlanPainter::norm(z, high_); }
  double value_at(Corner node) const {
    return wafer_.Interpolation(node.gx * request_.res, node.gy * request_.res);
  }
  PixelPoint pixel(Corner node) const {
    return {columns_[static_cast<std::size_t>(node.gx + n_)], lines_[static_cast<std::size_t>(node.gy + n_)]};
  }

  Request request_;

  double high_ = 0, low_ = 0;  // the ends of the colour scale
  std::int16_t long_arm_ = 0, short_arm_ = 0, black_arm_ = 0;
  std::int16_t n_ = 0;  // cells from the centre to the edge
  double band_ = 0;     // scaled height of a band
  double flat_limit_ = 0, radius_square_ = 0;
  double sigma_low_ = 0, sigma_high_ = 0;
  std::vector<std::int32_t> columns_, lines_;  // device pixels of the grid's lines, from -n up
  std::vector<double> above_, below_;          // scaled heights of the grid lines round the present row
  NodeLine line_;
};

void MapPainter::set_up() {
  set_scale_ends();
  area_.locate();
  set_mark_sizes();
  set_grid();
  set_mapping();
}

void MapPainter::set_scale_ends() {
  resume([&] {
    const ScaleEnds ends = scale_ends(wafer_);
    high_ = ends.high;
    low_ = ends.low;
  });
  resume([&] { wafer_.Low = scale_base(high_, low_); });
}

void MapPainter::set_mark_sizes() {
  if (canvas_.kind() == CanvasKind::printer) {
    resume([&] { long_arm_ = to_int16(12 * canvas_.TwipsPerPixelX()); });  // contract 74
    resume([&] { short_arm_ = to_int16(4 * canvas_.TwipsPerPixelY()); });
    resume([&] { black_arm_ = to_int16(6 * canvas_.TwipsPerPixelX()); });
  } else {
    long_arm_ = 6;
    short_arm_ = 2;
    black_arm_ = 3;
  }
}

void MapPainter::set_grid() {
  const bool whole_wafer = request_.as_color_map && request_.SigmaRange != 0;
  const double d = whole_wafer ? wafer_.WafDiam : wafer_.test_diam;
  resume([&] {
    if (request_.res == 0) raise_division_by_zero();
    // More cells than a number counts are too many all the same.
    const double cells = d / 2 / request_.res;
    n_ = cells > most_cells ? most_cells + 1 : to_int16(cells);
  });
  if (n_ < fewest_cells) {
    n_ = fewest_cells;
    request_.res = wafer_.test_diam / 8;  // contract 69
  }
  if (n_ > most_cells) {
    n_ = most_cells;
    request_.res = d / 200;
  }
}

void MapPainter::set_mapping() {
  fit(2 * n_ * request_.res);
  resume([&] { band_ = band_height(high_, low_); });
  flat_limit_ = -(wafer_.flat_ratio - 0.5) * wafer_.WafDiam;
  resume([&] { radius_square_ = checked(wafer_.test_diam / 2 * (wafer_.test_diam / 2)); });
  resume([&] { sigma_low_ = checked(norm(wafer_.mean - request_.SigmaRange * wafer_.StdDev)); });
  resume([&] { sigma_high_ = checked(norm(request_.SigmaRange * wafer_.StdDev + wafer_.mean)); });

  const auto nodes = static_cast<std::size_t>(2 * n_ + 1);
  columns_.assign(nodes, 0);
  lines_.assign(nodes, 0);
  for (std::size_t at = 0; at < nodes; ++at) {
    const double k = static_cast<int>(at) - n_;
    resume([&] { columns_[at] = to_int32(cx_ + k * request_.res * S_); });
    resume([&] { lines_[at] = to_int32(cy_ - k * request_.res * S_); });
  }
}

void MapPainter::paint_map() {
  paint_disc();
  measure_line(n_, above_);
  for (int j = 0; j < 2 * n_; ++j) {
    measure_line(n_ - j - 1, below_);
    paint_row(j);
    above_.swap(below_);
    show();
  }
  show();
}

/// The heights of a grid line's nodes, from the right to the left.
void MapPainter::measure_line(int gy, std::vector<double>& heights) {
  const double y = gy * request_.res;
  line_.clear();
  for (int gx = n_; gx >= -n_; --gx) line_.add(gx * request_.res, y, inside(gx * request_.res, y));
  line_.measure(wafer_, heights, [this](double z) { return norm(z); });
}

void MapPainter::paint_disc() {
  prepare_disc();
  resume([&] { canvas_.Circle(cx_, cy_, S_ * wafer_.test_diam / 2, QBColor(15)); });
}

void MapPainter::paint_row(int j) {
  for (int i = 0; i < 2 * n_; ++i) {
    const Corner A{n_ - i, n_ - j}, B{n_ - i - 1, n_ - j}, C{n_ - i - 1, n_ - j - 1}, D{n_ - i, n_ - j - 1};
    const auto at = static_cast<std::size_t>(i);
    paint_cell({A, B, C, D}, {above_[at], above_[at + 1], below_[at + 1], below_[at]});
  }
}

void MapPainter::paint_cell(const std::array<Corner, 4>& corners, std::array<double, 4> heights) {
  const auto outside = std::count(heights.begin(), heights.end(), no_data);
  if (outside == 1 || outside == 2)  // contract 68
    for (std::size_t corner = 0; corner < 4; ++corner)
      if (heights[corner] == no_data) heights[corner] = norm(value_at(corners[corner]));
  const auto [zA, zB, zC, zD] = heights;
  const double zc = (zA + zB + zD + zC) / 4;

  resume([&] { canvas_.DrawStyle(no_outline); });
  const double color = zc == no_data || outside > 2 ? unpainted : cell_color(zc);
  if (color == unpainted) return;
  resume([&] { canvas_.FillColor(to_color(color)); });
  resume([&] { canvas_.FillStyle(solid_fill); });
  resume([&] {
    const std::array points{pixel(corners[0]), pixel(corners[1]), pixel(corners[2]), pixel(corners[3])};
    canvas_.Polygon(points);
  });
}

double MapPainter::cell_color(double zc) const {
  return request_.as_color_map ? band_color_of(zc) : sigma_color_of(zc);
}

double MapPainter::band_color_of(double zc) const {
  if (high_ == low_) return wafer_.col6;  // contract 73
  return band_color(wafer_, band_of(zc, S_, band_));
}

double MapPainter::sigma_color_of(double zc) const {
  const bool flat_data = wafer_.maxi == wafer_.mini;
  if (!flat_data && zc < sigma_low_) return wafer_.ColS3;
  if (!flat_data && zc > sigma_high_) return wafer_.ColS1;
  return wafer_.ColS2;
}

void MapPainter::mark_sites() {
  const std::int16_t count = count_sites();
  for (std::int32_t k = 1; k <= count; ++k) {
    const bool high = value(k) >= wafer_.mean;
    const auto [px, py] = on_canvas(position(k));
    box(px - long_arm_, py - short_arm_, px + long_arm_, py + short_arm_, QBColor(15));
    if (high) box(px - short_arm_, py - long_arm_, px + short_arm_, py + long_arm_, QBColor(15));
    box(px - black_arm_, py, px + black_arm_, py, QBColor(0));
    if (high) box(px, py - black_arm_, px, py + black_arm_, QBColor(0));
    show();
  }
}

void MapPainter::box(double x1, double y1, double x2, double y2, Color color) {
  resume([&] { canvas_.Line(filled_box_flags, x1, y1, x2, y2, color); });
}

}  // namespace

void wafer::D2Plot(PlotCanvas& Plot, double res, std::int16_t PlotStyle, double SigmaRange,
                   std::int16_t marksites, double left, double top, double width, double height,
                   std::int16_t ShowDispl) {
  PlotArea area(Plot, left, top, width, height, ShowDispl);
  area.clear();
  MapPainter painter(*this, Plot, {res, PlotStyle == color_map, SigmaRange}, area);
  painter.set_up();
  if (Nop > 3) painter.paint_map();
  if (marksites != 0) painter.mark_sites();
  area.resume([&] { setMaximalMinial(maximal, minimal); });
}

}  // namespace mirolen
