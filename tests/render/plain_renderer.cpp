#include "plain_renderer.h"

#include <cmath>
#include <map>

#include "mirolen/render/Screen.h"

namespace mirolen {

RecordingCanvas CanvasSetup::canvas() const {
  RecordingCanvas canvas(kind, scale);
  canvas.twips_per_pixel = twips_per_pixel;
  if (!fails_in.empty()) canvas.log.fail_in(fails_in);
  canvas.log.fail_at(fails_at);
  canvas.log.keeps_reads = true;
  return canvas;
}

std::string describe(const CanvasSetup& setup) {
  return line_of("kind, scale, twips:", static_cast<int>(setup.kind), setup.scale.left, setup.scale.top,
                 setup.scale.width, setup.scale.height, setup.twips_per_pixel.width,
                 setup.twips_per_pixel.height) +
         line_of("; fails in " + setup.fails_in + " or at", setup.fails_at);
}

Lines drawn_things(const Lines& log) {
  std::map<std::string, std::string> set;
  Lines things;
  for (const std::string& line : log) {
    const std::size_t equals = line.find('=');
    if (line.starts_with("Print "))
      things.push_back(line + " at " + set["CurrentX"] + ' ' + set["CurrentY"] + " in " + set["ForeColor"] +
                       " font " + set["Font"]);
    else if (line.starts_with("Line "))
      things.push_back((line.ends_with(" -") ? line + " in " + set["ForeColor"] : line) + " width " +
                       set["DrawWidth"]);
    else if (line.starts_with("Circle "))
      things.push_back(line + " width " + set["DrawWidth"] + " style " + set["DrawStyle"] + " fill " +
                       set["FillStyle"] + ' ' + set["FillColor"]);
    else if (equals != std::string::npos)
      set[line.substr(0, equals)] = line.substr(equals + 1);
    else if (!line.ends_with('?'))
      things.push_back(line);
  }
  for (const auto& [property, value] : set)
    if (property == "DrawWidth" || property == "FillColor")
      things.push_back(property + " in the end " + value);
  return things;
}

void PlainRenderer::statement(const std::function<void()>& body) {
  try {
    body();
  } catch (const Failure&) {
    area = {edge(wanted.left / 4.8), edge(wanted.top / 4.8), edge(wanted.width / 4.8),
            height_edge(wanted.height / 4.8)};
  }
}

void PlainRenderer::call(const std::string& member, const std::string& line) {
  if (++calls == setup.fails_at || member == setup.fails_in) throw Failure();
  said.push_back(line);
}

void PlainRenderer::say(const std::string& member, const std::string& line) {
  statement([&] { call(member, line); });
}

void PlainRenderer::say_set(const std::string& member, double number) {
  say(member, set_line(member, number));
}

double PlainRenderer::property(const std::string& member, double value) {
  call(member, read_line(member));
  return value;
}

void PlainRenderer::clear() {
  if (ShowDispl == 1) return;
  say("Cls", "Cls");
  say("Refresh", "Refresh");
}

void PlainRenderer::refresh_picture_box() {
  if (setup.kind == CanvasKind::picture_box) say("Refresh", "Refresh");
}

double PlainRenderer::divided(double number, double by) {
  if (by == 0) throw Failure();
  return number / by;
}

double PlainRenderer::rounded_to_16_bits(double number) {
  const double whole = std::nearbyint(number);
  if (!(-32768 <= whole && whole <= 32767)) throw Failure();
  return whole;
}

PixelPoint PlainRenderer::pixel(double x, double y) {
  return {static_cast<std::int32_t>(std::nearbyint(x)), static_cast<std::int32_t>(std::nearbyint(y))};
}

double PlainRenderer::as_color(double field) {
  return std::fmod(std::fmod(std::nearbyint(field), 4294967296.0) + 4294967296.0, 4294967296.0);
}

double PlainRenderer::scale_base(double high, double low) const {
  if (high != low) return low - (high - low) * 0.1;
  return low < 0 ? 1.1 * low - 0.001 : 0.9 * low - 0.001;
}

double PlainRenderer::band_color(double value, double top, double step) const {
  const double colors[] = {w.col1, w.col2, w.col3, w.col4, w.col5, w.col6, w.col7, w.col8, w.col9, w.col10};
  double color = 0;
  if (value >= top - step) color = colors[0];
  for (int k = 1; k <= 8; ++k)
    if (top - (k + 1) * step <= value && value < top - k * step) color = colors[k];
  if (value < top - 9 * step) color = colors[9];
  return color;
}

double PlainRenderer::edge(double number) const {
  return rounded == RoundedEdges::all ? rounded_to_16_bits(number) : number;
}

double PlainRenderer::height_edge(double number) const {
  return rounded == RoundedEdges::none ? number : rounded_to_16_bits(number);
}

void PlainRenderer::find_edges(std::function<double()> left, std::function<double()> width,
                               std::function<double()> top, std::function<double()> height) {
  statement([&] { area.left = edge(left()); });
  statement([&] { area.width = edge(width()); });
  statement([&] { area.top = edge(top()); });
  statement([&] { area.height = height_edge(height()); });
}

void PlainRenderer::find_area() {
  const Screen at_screen = screen();
  if (setup.kind == CanvasKind::printer) {
    find_edges(
        [&] { return divided(wanted.left, twips_x()); }, [&] { return divided(wanted.width, twips_x()); },
        [&] { return divided(wanted.top, twips_y()); }, [&] { return divided(wanted.height, twips_y()); });
  } else if (ShowDispl == 1) {
    find_edges([&] { return divided(wanted.left, at_screen.TwipsPerPixelX); },
               [&] { return divided(wanted.width, at_screen.TwipsPerPixelX); },
               [&] { return divided(wanted.top, at_screen.TwipsPerPixelY); },
               [&] { return divided(wanted.height, at_screen.TwipsPerPixelY); });
  } else {
    find_edges([&] { return property("ScaleLeft", setup.scale.left); },
               [&] { return property("ScaleWidth", setup.scale.width); },
               [&] { return property("ScaleTop", setup.scale.top); },
               [&] { return property("ScaleHeight", setup.scale.height); });
  }
}

}  // namespace mirolen
