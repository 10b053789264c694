#include "mirolen/render/RecordingSurface.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <ostream>

namespace mirolen {
namespace {

struct Player {
  Surface& onto;
  void operator()(const recorded::Clear& call) const { onto.clear(call.color); }
  void operator()(const recorded::Line& call) const { onto.line(call.pen, call.from, call.to); }
  void operator()(const recorded::Rectangle& call) const { onto.rectangle(call.pen, call.brush, call.box); }
  void operator()(const recorded::Ellipse& call) const {
    onto.ellipse(call.pen, call.brush, call.centre, call.radii);
  }
  void operator()(const recorded::Arc& call) const {
    onto.arc(call.pen, call.centre, call.radii, call.start, call.end);
  }
  void operator()(const recorded::Polygon& call) const { onto.polygon(call.pen, call.brush, call.points); }
  void operator()(const recorded::Text& call) const {
    onto.text(call.font, call.color, call.background, call.place, call.text);
  }
  void operator()(const recorded::FloodFill& call) const {
    onto.flood_fill(call.brush, call.seed, call.boundary);
  }
  void operator()(const recorded::Refresh&) const { onto.refresh(); }
};

/// One call as one JSON object; every field brings its comma.
class JsonLine {
 public:
  JsonLine(std::ostream& out, std::string_view call) : out_(out) { out_ << "{\"call\":\"" << call << '"'; }
  ~JsonLine() { out_ << "}\n"; }
  JsonLine(const JsonLine&) = delete;
  JsonLine& operator=(const JsonLine&) = delete;

  JsonLine& field(std::string_view name, double value) {
    name_of(name);
    number(value);
    return *this;
  }
  JsonLine& field(std::string_view name, bool value) {
    name_of(name);
    out_ << (value ? "true" : "false");
    return *this;
  }
  JsonLine& field(std::string_view name, SurfacePoint point) {
    name_of(name);
    pair(point.x, point.y);
    return *this;
  }
  JsonLine& field(std::string_view name, std::string_view text) {
    name_of(name);
    out_ << '"';
    for (const char c : text) character(c);
    out_ << '"';
    return *this;
  }
  JsonLine& field(std::string_view name, std::span<const PixelPoint> points) {
    name_of(name);
    out_ << '[';
    for (const PixelPoint& point : points) {
      if (&point != points.data()) out_ << ',';
      pair(point.x, point.y);
    }
    out_ << ']';
    return *this;
  }
  JsonLine& color(std::string_view name, Color value) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%02X%02X%02X", value & 0xFF, value >> 8 & 0xFF,
                  value >> 16 & 0xFF);
    return field(name, std::string_view(text.data()));
  }
  JsonLine& pen(const Pen& pen) {
    constexpr std::array<std::string_view, 6> styles{"solid",    "dash",         "dot",
                                                     "dash_dot", "dash_dot_dot", "none"};
    return color("pen", pen.color)
        .field("width", double(pen.width))
        .field("style", styles[static_cast<std::size_t>(pen.style)]);
  }
  JsonLine& brush(const Brush& brush) { return color("brush", brush.color).field("solid", brush.solid); }

 private:
  void name_of(std::string_view name) { out_ << ",\"" << name << "\":"; }
  void pair(double x, double y) {
    out_ << '[';
    number(x);
    out_ << ',';
    number(y);
    out_ << ']';
  }
  void number(double value) {
    if (!is_finite(value)) {
      out_ << "null";  // JSON has no word for it
      return;
    }
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    out_ << std::string_view(text.data(), static_cast<std::size_t>(end - text.data()));
  }
  void character(char c) {
    if (c == '"' || c == '\\')
      out_ << '\\' << c;
    else if (static_cast<unsigned char>(c) >= 0x20)
      out_ << c;
    else {
      std::array<char, 8> text{};
      std::snprintf(text.data(), text.size(), "\\u%04x", static_cast<unsigned>(c));
      out_ << text.data();
    }
  }

  std::ostream& out_;
};

struct Writer {
  std::ostream& out;
  void operator()(const recorded::Clear& call) const { JsonLine(out, "clear").color("color", call.color); }
  void operator()(const recorded::Line& call) const {
    JsonLine(out, "line").pen(call.pen).field("from", call.from).field("to", call.to);
  }
  void operator()(const recorded::Rectangle& call) const {
    JsonLine(out, "rectangle")
        .pen(call.pen)
        .brush(call.brush)
        .field("from", call.box.from)
        .field("to", call.box.to);
  }
  void operator()(const recorded::Ellipse& call) const {
    JsonLine(out, "ellipse")
        .pen(call.pen)
        .brush(call.brush)
        .field("centre", call.centre)
        .field("radii", SurfacePoint{call.radii.width, call.radii.height});
  }
  void operator()(const recorded::Arc& call) const {
    JsonLine(out, "arc")
        .pen(call.pen)
        .field("centre", call.centre)
        .field("radii", SurfacePoint{call.radii.width, call.radii.height})
        .field("start", call.start)
        .field("end", call.end);
  }
  void operator()(const recorded::Polygon& call) const {
    JsonLine(out, "polygon").pen(call.pen).brush(call.brush).field("points", std::span(call.points));
  }
  void operator()(const recorded::Text& call) const {
    JsonLine line(out, "text");
    line.field("font", std::string_view(call.font.Name))
        .field("size", call.font.size)
        .field("bold", call.font.bold)
        .field("underline", call.font.underline)
        .color("color", call.color);
    if (call.background) line.color("background", *call.background);
    line.field("place", call.place).field("text", std::string_view(call.text));
  }
  void operator()(const recorded::FloodFill& call) const {
    JsonLine(out, "flood_fill")
        .brush(call.brush)
        .field("seed", SurfacePoint{double(call.seed.x), double(call.seed.y)})
        .color("boundary", call.boundary);
  }
  void operator()(const recorded::Refresh&) const { JsonLine(out, "refresh"); }
};

std::size_t characters(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

}  // namespace

void replay(const Recording& recording, Surface& onto) {
  for (const recorded::Call& call : recording) std::visit(Player{onto}, call);
}

void write_json_lines(const Recording& recording, std::ostream& out) {
  for (const recorded::Call& call : recording) std::visit(Writer{out}, call);
}

void RecordingSurface::clear(Color color) {
  recording_.clear();
  recording_.emplace_back(recorded::Clear{color});
}

void RecordingSurface::line(const Pen& pen, SurfacePoint from, SurfacePoint to) {
  recording_.emplace_back(recorded::Line{pen, from, to});
}

void RecordingSurface::rectangle(const Pen& pen, const Brush& brush, const SurfaceBox& box) {
  recording_.emplace_back(recorded::Rectangle{pen, brush, box});
}

void RecordingSurface::ellipse(const Pen& pen, const Brush& brush, SurfacePoint centre, SurfaceSize radii) {
  recording_.emplace_back(recorded::Ellipse{pen, brush, centre, radii});
}

void RecordingSurface::arc(const Pen& pen, SurfacePoint centre, SurfaceSize radii, double start, double end) {
  recording_.emplace_back(recorded::Arc{pen, centre, radii, start, end});
}

void RecordingSurface::polygon(const Pen& pen, const Brush& brush, std::span<const PixelPoint> points) {
  recording_.emplace_back(recorded::Polygon{pen, brush, {points.begin(), points.end()}});
}

void RecordingSurface::text(const FontSpec& font, Color color, std::optional<Color> background,
                            SurfacePoint place, std::string_view text) {
  recording_.emplace_back(recorded::Text{font, color, background, place, std::string(text)});
}

SurfaceSize RecordingSurface::measure(const FontSpec& font, std::string_view text) const {
  const double pixels_per_point_x = 20 / twips_per_pixel_.width;
  const double pixels_per_point_y = 20 / twips_per_pixel_.height;
  return {0.6 * font.size * static_cast<double>(characters(text)) * pixels_per_point_x,
          1.2 * font.size * pixels_per_point_y};
}

void RecordingSurface::flood_fill(const Brush& brush, PixelPoint seed, Color boundary) {
  recording_.emplace_back(recorded::FloodFill{brush, seed, boundary});
}

std::shared_ptr<const Image> RecordingSurface::snapshot() const {
  return std::make_shared<RecordedImage>(size_, recording_);
}

void RecordingSurface::restore(const Image& image) {
  const auto* recorded_image = dynamic_cast<const RecordedImage*>(&image);
  if (!recorded_image) return;
  for (const recorded::Call& call : recorded_image->recording())
    if (!std::holds_alternative<recorded::Clear>(call)) recording_.push_back(call);
}

void RecordingSurface::refresh() { recording_.emplace_back(recorded::Refresh{}); }

}  // namespace mirolen
