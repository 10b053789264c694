#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <typeinfo>

#include "mirolen/print/PrintWafer.h"
#include "mirolen/render/Screen.h"
#include "plain_page.h"
#include "support/RecordingCanvas.h"
#include "support/site_support.h"

namespace mirolen {

/// A page to print on, and how it fails.
struct PageSetup {
  CanvasKind kind = CanvasKind::printer;
  SurfaceSize twips_per_pixel{2.4, 4.8};
  SurfaceSize screen{15, 12};
  std::string fails_in;
  int fails_at = 0;
};

std::string describe(const PageSetup& setup);

/// A recording canvas on which texts are measured in the font and the scale mode in force, each character
/// (of UTF-8) by its own width: "0" takes 60 twips in a font of 8, "4" takes 100.
class Page : public RecordingCanvas {
 public:
  explicit Page(const PageSetup& setup);

  using RecordingCanvas::Font;
  using RecordingCanvas::ScaleMode;
  void ScaleMode(std::int16_t mode) override;
  void Font(const FontSpec& font) override;
  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;

 private:
  double points_ = 8;
  bool in_pixels_ = true;
};

/// Twips of a text on a Page in twips with a font of a size.
double width_of(std::string_view text, double points = 8);
double height_of(double points);

/// What an operation is given, and what comes back in it.
struct Given {
  mirolen::wafer w;
  double left = 700, top = 1400, width = 6000, height = 4500;
  double x = 0, y = 0, r = 350;
  std::string caption = "Thickness", text = "below the plot";
  bool framed = true;
  std::string result;
};

/// What an operation leaves: the calls on its page, its error, what is given back.
struct Outcome {
  Lines lines;
  std::string error;
  Given after;
  int calls = 0;
};

using OnPage = std::function<void(std::shared_ptr<Page>, Given&)>;
Outcome outcome_of(const PageSetup& setup, const Given& given, const OnPage& operation);
void expect_equal(const Outcome& actual, const Outcome& expected, const std::string& about);

/// A wafer of 200 mm with sites spread evenly over it.
wafer sample_wafer(int sites = 12, double flat_ratio = 1);
wafer any_wafer(Random& random);
PageSetup any_page(Random& random);
/// An area and texts; one in four without a frame.
Given any_given(Random& random);

/// Screen of a setup for a while.
class ScreenOf {
 public:
  explicit ScreenOf(SurfaceSize twips) { screen() = {twips.width, twips.height, {}}; }
  ~ScreenOf() { screen() = before_; }
  ScreenOf(const ScreenOf&) = delete;
  ScreenOf& operator=(const ScreenOf&) = delete;

 private:
  Screen before_ = screen();
};

/// An operation is a generic lambda `(auto& page, Given& g)`: the same calls go to the layer and to its plain
/// restatement.
template <class Operation>
Outcome printed(const PageSetup& setup, const Given& given, Operation operation) {
  return outcome_of(setup, given, [&](std::shared_ptr<Page> page, Given& g) {
    PrintWafer print;
    print.PrinterObj = std::move(page);
    operation(print, g);
  });
}

template <class Operation>
Outcome worked_out(const PageSetup& setup, const Given& given, Operation operation) {
  return outcome_of(setup, given, [&](const std::shared_ptr<Page>& page, Given& g) {
    PlainPage plain(*page);
    operation(plain, g);
  });
}

template <class Operation>
void expect_as_worked_out(const PageSetup& setup, const Given& given, Operation operation) {
  expect_equal(printed(setup, given, operation), worked_out(setup, given, operation), describe(setup));
}

/// On a printer, a picture and another object, with square pixels and others, framed and not.
template <class Operation>
void expect_as_worked_out_everywhere(Given given, Operation operation) {
  for (const bool framed : {true, false})
    for (const CanvasKind kind : {CanvasKind::printer, CanvasKind::picture_box, CanvasKind::other})
      for (const SurfaceSize twips : {SurfaceSize{2.4, 4.8}, {7.2, 2.4}, {15, 15}}) {
        given.framed = framed;
        expect_as_worked_out({kind, twips, {15, 12}, "", 0}, given, operation);
      }
}

/// Lets each call on the page fail in its turn, and each member at every call.
template <class Operation>
void expect_as_worked_out_on_failing_pages(const Given& given, Operation operation) {
  PageSetup setup;
  const int calls = printed(setup, given, operation).calls;
  for (int number = 1; number <= calls + 1 && !testing::Test::HasFailure(); ++number) {
    setup.fails_at = number;
    expect_as_worked_out(setup, given, operation);
  }
  setup.fails_at = 0;
  for (const char* member :
       {"FontTransparent", "Font", "ScaleMode", "DrawWidth", "DrawStyle", "FillStyle", "FillColor",
        "ForeColor", "CurrentX", "CurrentY", "Print", "Line", "Circle", "Polygon", "TextWidth", "TextHeight",
        "TwipsPerPixelX", "TwipsPerPixelY", "Refresh"}) {
    setup.fails_in = member;
    expect_as_worked_out(setup, given, operation);
  }
}

}  // namespace mirolen
