#include <array>
#include <cmath>
#include <vector>

#include "mirolen/core/translation.h"
#include "mirolen/render/ColorScale.h"
#include "mirolen/render/ContourMesh.h"
#include "mirolen/render/PlanPainter.h"
#include "mirolen/render/Screen.h"
#include "mirolen/render/flat_ratio.h"

namespace mirolen {
namespace {

enum Marks : std::int16_t { at_sites = 1, at_nodes = 2 };
enum Colors : std::int16_t { three_colors = 1, ten_colors = 2 };

void show_message(const std::string& text, const std::string& title) {
  if (screen().message) screen().message(text, title);
}

/// One call of `D2Contour`. An error of the canvas ends it.
class ContourPainter : PlanPainter {
 public:
  struct Request {
    std::int16_t st;
    double distance;
    std::int16_t marked_sites, reso, colored;
  };

  ContourPainter(wafer& wafer, PlotCanvas& canvas, const Request& request, PlotArea& area)
      : PlanPainter(wafer, canvas, area), request_(request) {}

  void set_up(double Pi);
  void draw_disc();
  /// @return false where the plot was refused.
  bool draw_curves();
  void draw_marks();
  void draw_outline();
  bool enough_sites() const { return wafer_.GetNop() > 3; }

 private:
  double spacing() const;
  void refuse();
  void DrawContourLevel(double level);
  void draw_level(double level, double three_color);
  Color level_color(double level, double three_color) const;
  double ContourLevelColor(double level) const;
  void draw_flat();
  void draw_plus(SurfacePoint at, double arm);
  void refresh_screen() {
    if (!area_.on_page()) canvas_.Refresh();
  }

  Request request_;
  ContourMesh mesh_;
};

void ContourPainter::set_up(double Pi) {
  set_centre();
  S_ = divide(request_.st, wafer_.WafDiam / 2);
  const int rings = SetContourQuality(request_.reso, wafer_.GetNop());
  mesh_ = BuildContourMesh(wafer_.test_diam, rings, Pi);
  std::vector<double> x, y;
  for (const SurfacePoint& node : mesh_.ContourA) {
    x.push_back(node.x);
    y.push_back(node.y);
  }
  mesh_.ContourB.resize(mesh_.ContourA.size());
  wafer_.Interpolation(x, y, mesh_.ContourB);
}

void ContourPainter::draw_disc() {
  canvas_.FillStyle(solid_fill);
  canvas_.FillColor(QBColor(15));
  canvas_.DrawStyle(solid_line);
  canvas_.DrawWidth(1);
  canvas_.Circle(cx_, cy_, request_.st, QBColor(0));
  canvas_.ForeColor(QBColor(0));
  draw_flat();
  refresh_screen();
}

/// On a picture box the part beyond a flat is taken away; on a page the disc stays whole. (contract 77)
void ContourPainter::draw_flat() {
  if (wafer_.flat_ratio == notch || canvas_.kind() != CanvasKind::picture_box) return;
  const double f = 2 * wafer_.flat_ratio - 1;
  const double h = square_root(1 - f * f);
  const double left = cx_ - request_.st * h, right = cx_ + request_.st * h, y = cy_ + f * request_.st;
  canvas_.Line(filled_box_flags, left, y, right, to_int16(canvas_.ScaleHeight()), canvas_.BackColor());
  canvas_.Line(line_flags, left, y, right, y, QBColor(12));
}

double ContourPainter::spacing() const {  // contract 75
  const double mean = std::abs(wafer_.mean), maxi = std::abs(wafer_.maxi), mini = std::abs(wafer_.mini);
  const double spread = wafer_.maxi - wafer_.mini;
  const double s = checked(mean * request_.distance / 100);
  if (s < spread / 10000) return checked(spread * request_.distance / 100);
  if (mean < maxi) return checked(maxi * request_.distance / 100);
  if (mean < mini) return checked(mini * request_.distance / 100);
  return s;
}

bool ContourPainter::draw_curves() {
  const double s = spacing();
  if (s < wafer_.range / 10000) {
    refuse();
    return false;
  }

  canvas_.ForeColor(level_color(wafer_.mean, wafer_.ColS2));
  canvas_.DrawWidth(2);
  DrawContourLevel(wafer_.mean);
  if (canvas_.kind() == CanvasKind::picture_box) canvas_.Refresh();
  canvas_.DrawWidth(1);
  double before = wafer_.mean;
  // contract 76
  for (double level = wafer_.mean + s; level < wafer_.maximal && level != before; level += s) {
    draw_level(level, wafer_.ColS1);
    refresh_screen();
    before = level;
  }
  before = wafer_.mean;
  for (double level = wafer_.mean - s; level > wafer_.mini && level != before; level -= s) {
    draw_level(level, wafer_.ColS3);
    refresh_screen();
    before = level;
  }
  return true;
}

void ContourPainter::refuse() {
  if (area_.on_page() && area_.left < 0) return;
  canvas_.DrawWidth(2);
  const double right = area_.left + area_.width, bottom = area_.top + area_.height;
  canvas_.Line(line_flags, area_.left, area_.top, right, bottom, QBColor(4));
  canvas_.Line(line_flags, area_.left, bottom, right, area_.top, QBColor(4));
  show_message(tr("Difference of Mean, Maximum, and Minimum too small"), tr("No Contour Plot possible"));
}

void ContourPainter::draw_level(double level, double three_color) {
  canvas_.ForeColor(level_color(level, three_color));
  DrawContourLevel(level);
}

Color ContourPainter::level_color(double level, double three_color) const {
  if (request_.colored == ten_colors) return to_color(ContourLevelColor(level));
  return request_.colored == three_colors ? to_color(three_color) : QBColor(0);
}

double ContourPainter::ContourLevelColor(double level) const {
  const ScaleEnds ends = scale_ends(wafer_);
  return band_color(wafer_, band_of(level, ends.high, (ends.high - ends.low) / 10));
}

/// One straight piece of the curve in each triangle that the level crosses.
void ContourPainter::DrawContourLevel(double level) {
  constexpr std::array<std::array<std::size_t, 2>, 3> edges{{{0, 1}, {0, 2}, {1, 2}}};
  for (const auto& triangle : mesh_.ContourC) {
    std::array<SurfacePoint, 2> ends;
    std::size_t crossed = 0;
    for (const auto& [from, to] : edges) {
      const std::size_t a = triangle[from], b = triangle[to];
      const double f = mesh_.ContourB[a], g = mesh_.ContourB[b];
      if (f == g || (level < f && level < g) || (level > f && level > g)) continue;
      // The last edge always gives the second end, so that a level through a node still yields one piece.
      ends[from == 1 ? 1 : crossed] = TriangleEdgeCrossing(mesh_, a, b, level);
      ++crossed;
    }
    if (crossed < 2) continue;
    const SurfacePoint start = on_canvas(ends[0]), end = on_canvas(ends[1]);
    canvas_.Line(line_flags, start.x, start.y, end.x, end.y, {});
  }
}

void ContourPainter::draw_marks() {
  const double arm = area_.on_page() ? 45 : 3;
  if (request_.marked_sites == at_nodes)
    for (const SurfacePoint& node : mesh_.ContourA) draw_plus(on_canvas(node), arm);
  if (request_.marked_sites == at_sites)
    for (std::int32_t k = 1; k <= sites(); ++k) draw_plus(on_canvas(position(k)), arm);
}

void ContourPainter::draw_plus(SurfacePoint at, double arm) {
  const double x = to_int32(at.x), y = to_int32(at.y);
  canvas_.Line(line_flags, x - arm, y, x + arm, y, QBColor(0));
  canvas_.Line(line_flags, x, y - arm, x, y + arm, QBColor(0));
}

void ContourPainter::draw_outline() {
  canvas_.ForeColor(QBColor(0));
  canvas_.DrawWidth(1);
  draw_marks();
  canvas_.FillStyle(transparent_fill);
  canvas_.Circle(cx_, cy_, request_.st, QBColor(0));
  draw_flat();
}

}  // namespace

void wafer::D2Contour(PlotCanvas& Plot, std::int16_t st, double distance, std::int16_t marked_sites,
                      std::int16_t reso, std::int16_t colored, double left, double top, double width,
                      double height, std::int16_t ShowDispl) {
  PlotArea area(Plot, left, top, width, height, ShowDispl);
  if (area.on_page()) {
    area.left = left;
    area.top = top;
    area.width = width;
    area.height = height;
  } else {
    Plot.Cls();
    Plot.Refresh();
    area.width = Plot.ScaleWidth();
    area.height = Plot.ScaleHeight();
  }
  ContourPainter painter(*this, Plot, {st, distance, marked_sites, reso, colored}, area);
  painter.set_up(Pi);
  painter.draw_disc();
  if (!painter.enough_sites()) return;
  if (painter.draw_curves()) painter.draw_outline();
}

}  // namespace mirolen
