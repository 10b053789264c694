#include "trial.h"

namespace mirolen {
namespace {

class TroubledPeer : public Peer {
 public:
  TroubledPeer(const Widget& widget, TroubledToolkit& toolkit) : widget_(widget), toolkit_(toolkit) {}
  ~TroubledPeer() override { toolkit_.screen.erase(&widget_); }

  void changed() override {
    toolkit_.peers.step();
    toolkit_.screen[&widget_] = shown_of(widget_);
  }
  void refresh() override { toolkit_.peers.step(); }
  std::uintptr_t handle() const override {
    toolkit_.peers.step();
    return 1;
  }

 private:
  const Widget& widget_;
  TroubledToolkit& toolkit_;
};

/// Each call is a step.
class TroubledSurface : public RecordingSurface {
 public:
  TroubledSurface(Trouble& trouble, SurfaceSize size) : RecordingSurface(size, {15, 15}), trouble_(trouble) {}

  void clear(Color color) override { trouble_.step(), RecordingSurface::clear(color); }
  void line(const Pen& pen, SurfacePoint from, SurfacePoint to) override {
    trouble_.step();
    RecordingSurface::line(pen, from, to);
  }
  void rectangle(const Pen& pen, const Brush& brush, const SurfaceBox& box) override {
    trouble_.step();
    RecordingSurface::rectangle(pen, brush, box);
  }
  void ellipse(const Pen& pen, const Brush& brush, SurfacePoint centre, SurfaceSize radii) override {
    trouble_.step();
    RecordingSurface::ellipse(pen, brush, centre, radii);
  }
  void polygon(const Pen& pen, const Brush& brush, std::span<const PixelPoint> points) override {
    trouble_.step();
    RecordingSurface::polygon(pen, brush, points);
  }
  void arc(const Pen& pen, SurfacePoint centre, SurfaceSize radii, double start, double end) override {
    trouble_.step();
    RecordingSurface::arc(pen, centre, radii, start, end);
  }
  void text(const FontSpec& font, Color color, std::optional<Color> background, SurfacePoint place,
            std::string_view text) override {
    trouble_.step();
    RecordingSurface::text(font, color, background, place, text);
  }
  SurfaceSize measure(const FontSpec& font, std::string_view text) const override {
    trouble_.step();
    return RecordingSurface::measure(font, text);
  }
  void flood_fill(const Brush& brush, PixelPoint seed, Color boundary) override {
    trouble_.step();
    RecordingSurface::flood_fill(brush, seed, boundary);
  }
  std::shared_ptr<const Image> snapshot() const override {
    trouble_.step();
    return RecordingSurface::snapshot();
  }
  void restore(const Image& image) override { trouble_.step(), RecordingSurface::restore(image); }
  void refresh() override { trouble_.step(), RecordingSurface::refresh(); }

 private:
  Trouble& trouble_;
};

std::string looks_of(const Widget& widget) {
  const Shown shown = shown_of(widget);
  return std::to_string(static_cast<int>(widget.kind())) + " at " + std::to_string(shown.left) + " " +
         std::to_string(shown.top) + " of " + std::to_string(shown.width) + " " +
         std::to_string(shown.height) + " colour " + std::to_string(shown.back) + " \"" + shown.caption +
         "\"";
}

/// What can be seen of a recording.
Recording marks_of(Recording recording) {
  std::erase_if(recording, [](const auto& call) { return std::holds_alternative<recorded::Refresh>(call); });
  return recording;
}

/// Where a picture does not end in the drawing of another, which starts with an empty picture: a drawing
/// covers the one before.
std::string difference_of_last_drawings(const Recording& actual, const Recording& expected) {
  const Recording all = marks_of(actual);
  Recording drawing = marks_of(expected);
  if (!drawing.empty()) drawing.erase(drawing.begin());
  if (all.size() < drawing.size()) return difference(all, drawing);
  return difference(Recording(all.end() - static_cast<std::ptrdiff_t>(drawing.size()), all.end()), drawing);
}

const ImageBox* snapshot_beside(const Widget& widget) {
  return widget.container() ? dynamic_cast<const ImageBox*>(widget.container()->children().front()) : nullptr;
}

/// Whether a snapshot stands in for the plot.
bool is_stretched(UserControl& control) {
  for (const Widget* widget : widgets_of(control))
    if (const ImageBox* snapshot = snapshot_beside(*widget)) return snapshot->Stretch;
  return false;
}

std::vector<Widget*> seen_widgets_of(UserControl& control, bool with_plot) {
  std::vector<Widget*> seen;
  for (Widget* widget : widgets_of(control))
    if (widget->is_seen() && (with_plot || !snapshot_beside(*widget))) seen.push_back(widget);
  return seen;
}

}  // namespace

Shown shown_of(const Widget& widget) {
  const auto* captioned = dynamic_cast<const Captioned*>(&widget);
  return {widget.Left,
          widget.Top,
          widget.Width,
          widget.Height,
          widget.Visible,
          widget.BackColor,
          captioned ? captioned->Caption.get() : std::string()};
}

std::unique_ptr<Peer> TroubledToolkit::make_peer(Widget& widget) {
  return std::make_unique<TroubledPeer>(widget, *this);
}

std::unique_ptr<Surface> TroubledToolkit::make_surface(PictureBox& box) {
  pictures.step();
  auto surface = std::make_unique<TroubledSurface>(pictures, box.pixel_size());
  surface->clear(resolve(box.BackColor));
  return surface;
}

SurfaceSize TroubledToolkit::measure(const FontSpec& font, std::string_view text) const {
  const_cast<TroubledToolkit*>(this)->peers.step();
  return HeadlessToolkit::measure(font, text);
}

std::string difference_of_looks(UserControl& actual, UserControl& expected) {
  const bool with_plot = !is_stretched(actual) && !is_stretched(expected);
  const std::vector<Widget*> ours = seen_widgets_of(actual, with_plot),
                             theirs = seen_widgets_of(expected, with_plot);
  if (ours.size() != theirs.size()) return "another number of widgets is seen";
  for (std::size_t i = 0; i < ours.size(); ++i) {
    if (looks_of(*ours[i]) != looks_of(*theirs[i]))
      return looks_of(*ours[i]) + ", not " + looks_of(*theirs[i]);
    const auto* box = dynamic_cast<const PictureBox*>(ours[i]);
    if (!box) continue;
    const auto& other = dynamic_cast<const PictureBox&>(*theirs[i]);
    const std::string parts = difference_of_last_drawings(recording_of(*box), recording_of(other));
    if (!parts.empty()) return "the picture " + looks_of(*box) + " in " + parts;
  }
  return {};
}

std::string difference_of_snapshots(const ImageBox& actual, const ImageBox& expected) {
  return difference_of_last_drawings(recording_of(actual.Picture), recording_of(expected.Picture));
}

}  // namespace mirolen
