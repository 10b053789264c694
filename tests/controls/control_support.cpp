#include "control_support.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <stdexcept>

namespace mirolen {
namespace {

/// Tells its toolkit of each call before it keeps it.
class SpySurface : public RecordingSurface {
 public:
  SpySurface(const SpyToolkit& toolkit, const PictureBox& box)
      : RecordingSurface(box.pixel_size(), {15, 15}), toolkit_(toolkit), box_(box) {}

  void clear(Color color) override { tell("clear"), RecordingSurface::clear(color); }
  void line(const Pen& pen, SurfacePoint from, SurfacePoint to) override {
    tell("line");
    RecordingSurface::line(pen, from, to);
  }
  void rectangle(const Pen& pen, const Brush& brush, const SurfaceBox& box) override {
    tell("rectangle");
    RecordingSurface::rectangle(pen, brush, box);
  }
  void ellipse(const Pen& pen, const Brush& brush, SurfacePoint centre, SurfaceSize radii) override {
    tell("ellipse");
    RecordingSurface::ellipse(pen, brush, centre, radii);
  }
  void polygon(const Pen& pen, const Brush& brush, std::span<const PixelPoint> points) override {
    tell("polygon");
    RecordingSurface::polygon(pen, brush, points);
  }
  std::shared_ptr<const Image> snapshot() const override {
    tell("snapshot");
    return RecordingSurface::snapshot();
  }
  void refresh() override { tell("refresh"), RecordingSurface::refresh(); }

 private:
  void tell(std::string_view call) const {
    if (toolkit_.on_draw) toolkit_.on_draw(box_, call);
  }

  const SpyToolkit& toolkit_;
  const PictureBox& box_;
};

void append_little_endian(std::string& bytes, double number) {
  const auto bits = std::bit_cast<std::uint64_t>(number);
  for (int shift = 0; shift < 64; shift += 8) bytes += static_cast<char>((bits >> shift) & 0xFF);
}

}  // namespace

SiteColumns square_of_sites() {
  SiteColumns sites;
  for (int i = 0; i < 25; ++i) {
    sites.x.push_back(-60 + 30 * (i % 5));
    sites.y.push_back(-60 + 30 * (i / 5));
    sites.z.push_back(i < 24 ? 4 * i : 100);
  }
  return sites;
}

SiteColumns sites_near_centre() { return {{0, 2, 0, -2, 0}, {0, 0, 2, 0, -2}, {10, 20, 30, 40, 50}}; }

SiteColumns sites_of(const ControlFrame& control) {
  SiteColumns sites;
  control.GetWaferData(sites.x, sites.y, sites.z);
  return sites;
}

std::string file_bytes(const SiteColumns& sites) {
  std::string bytes;
  for (const auto* column : {&sites.x, &sites.y, &sites.z})
    for (const double number : *column) append_little_endian(bytes, number);
  return bytes;
}

std::unique_ptr<Surface> SpyToolkit::make_surface(PictureBox& box) {
  if (!makes_surfaces) throw CanvasError("surface");
  auto surface = std::make_unique<SpySurface>(*this, box);
  surface->clear(resolve(box.BackColor));
  return surface;
}

void SpyToolkit::paint_pending() {
  ++redraws;
  HeadlessToolkit::paint_pending();
}

void Plot2DTest::narrow_labels() {
  for (int i = 1; i <= 10; ++i) {
    control.ScaleValue(i).AutoSize = false;
    control.ScaleValue(i).Left = 400;
    control.ScaleValue(i).Width = 600;
  }
}

bool Plot2DTest::picture_is_blank() const {
  for (const recorded::Call& call : recording_of(control.PLOTA))
    if (!std::holds_alternative<recorded::Clear>(call) && !std::holds_alternative<recorded::Refresh>(call))
      return false;
  return true;
}

SurfaceSize Plot2DTest::snapshot_size() const {
  const std::shared_ptr<const Image> snapshot = control.RePlot.Picture;
  return snapshot ? snapshot->size() : SurfaceSize{};
}

Twin::Twin(const PictureBox& box, const Toolkit& toolkit) : surface_(box.pixel_size(), {15, 15}) {
  canvas.ScaleMode(box.ScaleMode());
  canvas.BackColor(toolkit.resolve(box.BackColor));
}

const Recording& recording_of(const std::shared_ptr<const Image>& image) {
  if (!image) throw std::runtime_error("no image");
  return dynamic_cast<const RecordedImage&>(*image).recording();
}

std::string difference(const Recording& actual, const Recording& expected) {
  if (actual == expected) return {};
  std::size_t place = 0;
  while (place < actual.size() && place < expected.size() && actual[place] == expected[place]) ++place;
  return "call " + std::to_string(place) + " of " + std::to_string(actual.size()) + " (expected " +
         std::to_string(expected.size()) + ")";
}

std::vector<Widget*> widgets_of(Widget& root) {
  std::vector<Widget*> widgets{&root};
  for (Widget* child : root.children())
    for (Widget* widget : widgets_of(*child)) widgets.push_back(widget);
  return widgets;
}

unsigned long long wanted_seed() {
  if (const char* told = std::getenv("MIROLEN_SEED")) return std::strtoull(told, nullptr, 10);
  return std::random_device{}();
}

}  // namespace mirolen
