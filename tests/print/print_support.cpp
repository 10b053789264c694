#include "print_support.h"

#include <cmath>

namespace mirolen {

std::string describe(const PageSetup& setup) {
  return line_of("kind, twips, screen:", static_cast<int>(setup.kind), setup.twips_per_pixel.width,
                 setup.twips_per_pixel.height, setup.screen.width, setup.screen.height) +
         line_of("; fails in " + setup.fails_in + " or at", setup.fails_at);
}

double width_of(std::string_view text, double points) {
  double twips = 0;
  for (const std::string& character : characters_of(std::string(text)))
    twips += (60 + static_cast<unsigned char>(character.front()) % 6 * 10) * points / 8;
  return twips;
}

double height_of(double points) { return 23.1 * points; }

Page::Page(const PageSetup& setup) : RecordingCanvas(setup.kind, {0, 0, 4958, 3508}) {
  twips_per_pixel = setup.twips_per_pixel;
  if (!setup.fails_in.empty()) log.fail_in(setup.fails_in);
  log.fail_at(setup.fails_at);
  log.keeps_reads = true;
}

void Page::ScaleMode(std::int16_t mode) {
  RecordingCanvas::ScaleMode(mode);
  in_pixels_ = mode == pixels;
}

void Page::Font(const FontSpec& font) {
  RecordingCanvas::Font(font);
  points_ = font.size;
}

double Page::TextWidth(std::string_view text) const {
  log.read("TextWidth");
  return width_of(text, points_) / (in_pixels_ ? twips_per_pixel.width : 1);
}

double Page::TextHeight(std::string_view) const {
  log.read("TextHeight");
  return height_of(points_) / (in_pixels_ ? twips_per_pixel.height : 1);
}

Outcome outcome_of(const PageSetup& setup, const Given& given, const OnPage& operation) {
  const ScreenOf screen(setup.screen);
  Outcome outcome;
  outcome.after = given;
  const auto page = std::make_shared<Page>(setup);
  try {
    operation(page, outcome.after);
  } catch (const RunTimeError& error) {
    outcome.error = typeid(error).name();
  }
  outcome.lines = page->log.lines;
  outcome.calls = page->log.number_of_calls();
  return outcome;
}

void expect_equal(const Outcome& actual, const Outcome& expected, const std::string& about) {
  const auto scaled = [](double number) { return 1e-12 * (1 + std::abs(number)); };
  EXPECT_EQ(actual.error, expected.error) << about;
  EXPECT_EQ(difference(actual.lines, expected.lines, 1e-7), "") << about;
  const Given &a = actual.after, &e = expected.after;
  for (double Given::*member :
       {&Given::left, &Given::top, &Given::width, &Given::height, &Given::x, &Given::y, &Given::r})
    EXPECT_NEAR(a.*member, e.*member, scaled(e.*member)) << about;
  EXPECT_EQ(a.text, e.text) << about;
  EXPECT_EQ(a.result, e.result) << about;
  EXPECT_EQ(a.w.Low, e.w.Low) << about;
  EXPECT_EQ(a.w.maxHauf, e.w.maxHauf) << about;
  EXPECT_EQ(a.w.Meas_unit, e.w.Meas_unit) << about;
}

wafer sample_wafer(int sites, double flat_ratio) {
  wafer made;
  set_diameters(made, 200, 190);
  made.flat_ratio = flat_ratio;
  SiteList list;
  for (int i = 0; i < sites; ++i) {
    const double radius = 90 * std::sqrt((i + 0.5) / sites), x = radius * std::cos(2.4 * i),
                 y = radius * std::sin(2.4 * i);
    list.push_back({x, y, 40 + x / 20 - y / 15 + (x * x + y * y) / 700});
  }
  store(made, list);
  if (sites > 0) made.MaxMin();
  made.Meas_unit = "µm";
  return made;
}

wafer any_wafer(Random& random) {
  wafer made;
  const double diameter = between(random, 50.0, 400.0), scale = std::pow(10, between(random, -9, 6));
  const double test = diameter * between(random, 0.7, 1.0), offset = between(random, -10.0, 10.0);
  set_diameters(made, diameter, test);
  made.flat_ratio = chance(random, 0.5) ? 1 : between(random, 0.5, 1.1);
  SiteList list;
  for (int left = between(random, 1, 25); left > 0; --left) {
    const double angle = between(random, 0.0, 6.3), radius = test / 2 * std::sqrt(between(random, 0.0, 1.0));
    list.push_back(
        {radius * std::cos(angle), radius * std::sin(angle), scale * (offset + between(random, -3.0, 3.0))});
  }
  store(made, list);
  made.MaxMin();
  if (chance(random, 0.4)) made.setMaximalMinial(scale * (offset + 1), scale * (offset - 2));
  made.Meas_unit = one_of(random, std::vector<std::string>{"", "nm", "Ω per square, measured", "µm"});
  return made;
}

PageSetup any_page(Random& random) {
  PageSetup setup;
  setup.kind = one_of(
      random, std::vector<CanvasKind>{CanvasKind::printer, CanvasKind::picture_box, CanvasKind::other});
  setup.twips_per_pixel = {between(random, 1.0, 20.0), between(random, 1.0, 20.0)};
  setup.screen = {between(random, 5.0, 20.0), between(random, 5.0, 20.0)};
  if (chance(random, 0.2)) setup.fails_at = between(random, 1, 200);
  return setup;
}

Given any_given(Random& random) {
  Given given;
  given.w = any_wafer(random);
  given.left = between(random, -500.0, 4000.0);
  given.top = between(random, -500.0, 4000.0);
  given.width = between(random, 500.0, 9000.0);
  given.height = between(random, 500.0, 9000.0);
  given.framed = chance(random, 0.75);
  if (chance(random, 0.3)) given.caption = "";
  if (chance(random, 0.5)) given.text = "Größe und Verteilung, αβγ, more than fits below a small plot";
  return given;
}

}  // namespace mirolen
