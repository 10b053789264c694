#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "mirolen/render/ColorScale.h"
#include "mirolen/render/Painter.h"

namespace mirolen {
namespace {

constexpr double margin = 10;

/// One call of `D2BeamPlot`: the sites as upright bars on an inclined disc, painted from the farthest to the
/// nearest.
class BarPainter : Painter {
 public:
  /// What `D2BeamPlot` was asked for; angles in degrees.
  struct Request {
    double bx, by, fwscal;
    double alp2, phi2, thet2;
  };

  BarPainter(wafer& wafer, PlotCanvas& canvas, const Request& request, PlotArea& area, double Pi)
      : Painter(wafer, canvas, area), request_(request), Pi_(Pi) {}

  void set_levels();
  void rotate_sites();
  void sort_sites();
  void set_footprint();
  void set_scale();
  void paint_disc();
  void paint_bars();

 private:
  struct TurnedSite {
    double siteX, siteY, siteZ;
  };
  using Quad = std::array<SurfacePoint, 4>;

  void set_centre();
  void paint_bar(const TurnedSite& site);
  void paint_sides(const Quad& P, const Quad& T, double color);
  void draw_quad(SurfacePoint a, SurfacePoint b, SurfacePoint c, SurfacePoint d, double color);
  double color_of(double z) const;
  /// Height of a value above the scale base, unscaled.
  double rise(double level) const { return (level - wafer_.Low) * request_.fwscal * cosT_; }

  Request request_;
  double Pi_;
  double topLevel_ = 0, bottomLevel_ = 0;
  std::vector<TurnedSite> sites_;  // nearest first
  double sinT_ = 0, cosT_ = 0;
  double ax_ = 0, ay_ = 0, bxp_ = 0, byp_ = 0;
  double S_ = 0, cx_ = 0, cy_ = 0;
};

void BarPainter::set_levels() {
  resume([&] {
    const ScaleEnds ends = scale_ends(wafer_);
    topLevel_ = ends.high;
    bottomLevel_ = ends.low;
  });
  request_.bx /= 2;
  request_.by /= 2;
  resume([&] { wafer_.Low = scale_base(topLevel_, bottomLevel_); });
}

void BarPainter::rotate_sites() {
  const double phi = request_.phi2 * Pi_ / 180;
  const std::int16_t count = count_sites();
  for (std::int32_t i = 1; i <= count; ++i) {
    const auto [x, y] = position(i);
    sites_.push_back(
        {std::cos(phi) * x - std::sin(phi) * y, std::sin(phi) * x + std::cos(phi) * y, value(i)});
  }
}

void BarPainter::sort_sites() {
  std::stable_sort(sites_.begin(), sites_.end(),
                   [](const TurnedSite& a, const TurnedSite& b) { return a.siteY < b.siteY; });
}

void BarPainter::set_footprint() {
  const double alp = request_.alp2 * Pi_ / 180;
  const double thet = request_.thet2 * Pi_ / 180;
  sinT_ = std::sin(thet);
  cosT_ = std::cos(thet);
  ax_ = request_.bx * std::cos(alp);
  ay_ = request_.bx * std::sin(alp) * sinT_;
  bxp_ = -request_.by * std::sin(alp);
  byp_ = request_.by * std::cos(alp) * sinT_;
}

void BarPainter::set_scale() {
  double hNeed = sinT_ * wafer_.WafDiam + 2 * (std::abs(ay_) + std::abs(byp_));
  if (topLevel_ - wafer_.Low > 0) hNeed += rise(topLevel_);
  if (bottomLevel_ - wafer_.Low < 0) hNeed -= rise(bottomLevel_);
  const double wNeed = 2 * (std::abs(ax_) + std::abs(bxp_)) + wafer_.WafDiam;
  const auto scale_for = [&](double room, double need) {
    double scale = 0;
    resume([&] { scale = divide(room - margin, need); });
    return scale;
  };
  // A direction that needs no room leaves the other scale alone in force.
  if (hNeed == 0)
    S_ = wNeed == 0 ? 0 : scale_for(area_.width, wNeed);
  else if (wNeed == 0)
    S_ = scale_for(area_.height, hNeed);
  else
    S_ = std::min(scale_for(area_.height, hNeed), scale_for(area_.width, wNeed));
  for (double* part : {&ax_, &ay_, &bxp_, &byp_}) *part *= S_;
}

void BarPainter::set_centre() {
  cx_ = area_.left + area_.width / 2;
  cy_ = area_.height - (wafer_.WafDiam / 2 * sinT_ * S_ + (std::abs(ay_) + std::abs(byp_)));
  if (bottomLevel_ - wafer_.Low < 0) cy_ -= rise(bottomLevel_) * S_;
  cy_ = cy_ + area_.top - 5;
}

void BarPainter::paint_disc() {
  resume([&] { canvas_.ForeColor(QBColor(0)); });
  resume([&] { canvas_.FillColor(QBColor(15)); });
  if (canvas_.kind() == CanvasKind::picture_box && !area_.on_page()) resume([&] { canvas_.Cls(); });
  set_centre();
  resume([&] { canvas_.FillStyle(solid_fill); });
  resume([&] { canvas_.DrawStyle(solid_line); });
  resume([&] { canvas_.DrawWidth(1); });
  resume([&] { canvas_.Circle(cx_, cy_, S_ * wafer_.WafDiam / 2, {}, {}, {}, sinT_); });
}

void BarPainter::paint_bars() {
  for (auto site = sites_.rbegin(); site != sites_.rend(); ++site) {
    paint_bar(*site);
    if (!area_.on_page()) show();
  }
}

void BarPainter::paint_bar(const TurnedSite& site) {
  const double yo = sinT_ * site.siteY * S_;
  const double h = rise(site.siteZ) * S_;
  const double xo = S_ * site.siteX;
  const Quad P{{{xo - ax_ - bxp_ + cx_, cy_ - (yo - ay_ - byp_)},
                {xo + ax_ - bxp_ + cx_, cy_ - (yo + ay_ - byp_)},
                {xo + ax_ + bxp_ + cx_, cy_ - (yo + ay_ + byp_)},
                {xo - ax_ + bxp_ + cx_, cy_ - (yo - ay_ + byp_)}}};
  Quad T = P;
  for (SurfacePoint& point : T) point.y -= h;

  const double color = color_of(site.siteZ);
  if (request_.thet2 > 0) draw_quad(T[0], T[1], T[2], T[3], color);
  if (request_.thet2 != 90) paint_sides(P, T, color);
}

void BarPainter::paint_sides(const Quad& P, const Quad& T, double color) {
  const double alp2 = request_.alp2;
  if (alp2 < 90 || alp2 > 270) draw_quad(P[0], P[1], T[1], T[0], color);   // front
  if (alp2 > 0 && alp2 < 180) draw_quad(P[0], T[0], T[3], P[3], color);    // left
  if (alp2 > 90 && alp2 < 270) draw_quad(P[3], T[3], T[2], P[2], color);   // back
  if (alp2 > 180 && alp2 < 360) draw_quad(P[2], P[1], T[1], T[2], color);  // right
}

void BarPainter::draw_quad(SurfacePoint a, SurfacePoint b, SurfacePoint c, SurfacePoint d, double color) {
  std::array<PixelPoint, 4> points{};
  resume([&] {
    const auto rounded = [](SurfacePoint p) { return PixelPoint{to_int32(p.x), to_int32(p.y)}; };
    points = {rounded(a), rounded(b), rounded(c), rounded(d)};
  });
  resume([&] { canvas_.FillColor(to_color(color)); });
  resume([&] { canvas_.FillStyle(solid_fill); });
  resume([&] { canvas_.Polygon(points); });
}

double BarPainter::color_of(double z) const {  // contract 73
  const double step = (topLevel_ - bottomLevel_) / 10;
  return band_color(wafer_, band_of(z, topLevel_, step));
}

}  // namespace

// contract 13
void wafer::D2BeamPlot(PlotCanvas& Plot, double bx, double by, double fwscal, double alp2, double phi2,
                       double thet2, bool, double left, double top, double width, double height,
                       std::int16_t ShowDispl) {
  PlotArea area(Plot, left, top, width, height, ShowDispl, AreaRounding::height);
  area.clear();
  BarPainter painter(*this, Plot, {bx, by, fwscal, alp2, phi2, thet2}, area, Pi);
  painter.set_levels();
  area.locate();
  painter.rotate_sites();
  painter.sort_sites();
  painter.set_footprint();
  painter.set_scale();
  painter.paint_disc();
  painter.paint_bars();
  area.resume([&] { setMaximalMinial(maximal, minimal); });
}

}  // namespace mirolen
