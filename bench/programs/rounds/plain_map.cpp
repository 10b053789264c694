#include "rounds/plain_map.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <vector>

#include "mirolen/core/palette.h"

namespace mirolen::bench {
namespace {

class PlainMap {
 public:
  PlainMap(const PlainWafer& source, Surface& surface, int cells);
  void draw();

 private:
  double norm(double z) const { return (z - low_) * scale_ / (source_.maximal - low_); }
  double value(int i, int j) const { return norm(source_.Interpolation(i * step_, j * step_)); }
  double node(int i, int j) const;
  std::vector<double> line(int j) const;
  PixelPoint pixel(int i, int j) const;
  void draw_cell(int i, int j, double zA, double zB, double zC, double zD);
  Color color_of(double zc) const;

  const PlainWafer& source_;
  Surface& surface_;
  int n_;
  double step_, scale_ = 0, low_ = 0, band_ = 0;
};

PlainMap::PlainMap(const PlainWafer& source, Surface& surface, int cells)
    : source_(source), surface_(surface), n_(cells / 2), step_(step_of(cells)) {
  const double free = std::min(surface.size().width, surface.size().height) - 6;
  scale_ = free / (2 * n_ * step_);
  const double high = source.maximal, low = source.minimal;
  low_ = low - (high - low) * 0.1;
  band_ = scale_ * (1 - (high - low) * 0.1 / (high - low_)) / 10;
}

double PlainMap::node(int i, int j) const {
  const double x = i * step_, y = j * step_, radius = source_.test_diam / 2;
  const bool inside = y > -0.5 * source_.WafDiam && x * x + y * y <= radius * radius;
  return inside ? value(i, j) : norm(low_);
}

std::vector<double> PlainMap::line(int j) const {
  std::vector<double> nodes;
  for (int i = n_; i >= -n_; --i) nodes.push_back(node(i, j));
  return nodes;
}

PixelPoint PlainMap::pixel(int i, int j) const {
  const double x = surface_.size().width / 2 + i * step_ * scale_;
  const double y = surface_.size().height / 2 - j * step_ * scale_;
  return {static_cast<std::int32_t>(half_even(x)), static_cast<std::int32_t>(half_even(y))};
}

void PlainMap::draw() {
  const SurfaceSize size = surface_.size();
  const double radius = scale_ * source_.test_diam / 2;
  surface_.clear(QBColor(15));
  surface_.ellipse({QBColor(15), 1, Pen::Style::solid}, {QBColor(15), true},
                   {size.width / 2, size.height / 2}, {radius, radius});
  std::vector<double> above = line(n_);
  for (int j = n_; j > -n_; --j) {
    const std::vector<double> below = line(j - 1);
    for (int i = n_; i > -n_; --i) {
      const auto at = static_cast<std::size_t>(n_ - i);
      draw_cell(i, j, above[at], above[at + 1], below[at + 1], below[at]);
    }
    above = below;
  }
}

void PlainMap::draw_cell(int i, int j, double zA, double zB, double zC, double zD) {
  const int outside = (zA == 0) + (zB == 0) + (zC == 0) + (zD == 0);
  if (outside > 2) return;
  if (zA == 0) zA = value(i, j);
  if (zB == 0) zB = value(i - 1, j);
  if (zC == 0) zC = value(i - 1, j - 1);
  if (zD == 0) zD = value(i, j - 1);
  const double zc = (zA + zB + zD + zC) / 4;
  if (zc == 0) return;
  const PixelPoint corners[] = {pixel(i, j), pixel(i - 1, j), pixel(i - 1, j - 1), pixel(i, j - 1)};
  surface_.polygon({0, 1, Pen::Style::none}, {color_of(zc), true}, corners);
}

Color PlainMap::color_of(double zc) const {
  for (int band = 1; band < 10; ++band)
    if (zc >= scale_ - band * band_) return default_interval_colors[static_cast<std::size_t>(band - 1)];
  return default_interval_colors[9];
}

}  // namespace

PlainWafer plain_loaded(const Sites& sites) {
  PlainWafer made;
  made.WafDiam = wafer_diameter;
  made.WaferOrigRad = wafer_diameter / 2;
  made.test_diam = test_diameter;
  if (made.LoadSiteArrays(false, Array(sites.x), Array(sites.y), Array(sites.z)) != 0)
    throw std::runtime_error("the sites cannot be loaded");
  return made;
}

void draw_plain_map(const PlainWafer& source, Surface& surface, int cells) {
  PlainMap(source, surface, cells).draw();
}

}  // namespace mirolen::bench
