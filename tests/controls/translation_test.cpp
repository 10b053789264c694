#include <gtest/gtest.h>

#include "control_support.h"
#include "support/translators.h"

namespace mirolen {
namespace {

/// Starts before the control of the fixture behind it.
struct Shouting {
  TranslatorInForce loud{shouted};
};

template <class Control>
class TranslatedControl : private Shouting, public ControlTest<Control> {};
TYPED_TEST_SUITE(TranslatedControl, AllControls);

/// The frames and buttons below a widget, but for a host's own caption.
void expect_no_english(const Widget& root, const std::string& of_the_host) {
  if (const auto* frame = dynamic_cast<const Frame*>(&root); frame && frame->Caption.get() != of_the_host) {
    EXPECT_EQ(frame->Caption.get(), shouted(frame->Caption.get()));
  }
  if (const auto* button = dynamic_cast<const Button*>(&root)) {
    EXPECT_EQ(button->Caption.get(), "PLOT- OPTIONS");
  }
  for (const Widget* child : root.children()) expect_no_english(*child, of_the_host);
}

TYPED_TEST(TranslatedControl, HasItsCaptionsInTheLanguageInForce) {
  this->plot_square();
  expect_no_english(this->control, "Wafer");
}

class TranslatedMap : private Shouting, public ControlTest<Plot2D> {};

TEST_F(TranslatedMap, KeepsTheCaptionThatIsAProperty) {
  EXPECT_EQ(control.PlotCaption(), " Wafer ");
  place();
  EXPECT_EQ(control.PlotCaption(), "Wafer");
}

TEST_F(TranslatedMap, NamesItsOrientationMark) {
  plot_square();
  EXPECT_EQ(control.FNLabel.Caption.get(), "NOTCH");
  control.WaferStyle(WaferSt::Flat);
  control.Plot();
  EXPECT_EQ(control.FNLabel.Caption.get(), "FLAT");
  EXPECT_EQ(control.WaferStyle(), WaferSt::Flat);
}

TEST_F(TranslatedMap, TellsTheFinestResolution) {
  plot_square();
  control.Resolution(40);
  control.TestDiameter(120);
  control.Plot();
  ASSERT_EQ(toolkit.messages.size(), 1u);
  EXPECT_EQ(toolkit.messages[0].text, "MAXIMAL POSSIBLE RESOLUTION IS 30 mm");
  EXPECT_EQ(toolkit.messages[0].title, "STANDARD RESOLUTION TO HIGH ");
}

class TranslatedScan : private Shouting, public ControlTest<LineScan> {};

TEST_F(TranslatedScan, TellsOfABadAngle) {
  plot_square();
  EXPECT_EQ(control.FNLabel(0).Caption.get(), "ANGLE :");
  control.angle(361);
  ASSERT_EQ(toolkit.messages.size(), 1u);
  EXPECT_EQ(toolkit.messages[0].text, "ANGLE VALUE MUST BE BETWEEN 0 AND 359");
  EXPECT_EQ(toolkit.messages[0].title, "INPUT ERROR");
}

class TranslatedContour : private Shouting, public ControlTest<Plot2DC> {};

TEST_F(TranslatedContour, TellsThatItRefuses) {
  plot_square();
  control.Interval(1e-6);
  control.Plot();
  ASSERT_FALSE(toolkit.messages.empty());
  EXPECT_EQ(toolkit.messages[0].text, "DIFFERENCE OF MEAN, MAXIMUM, AND MINIMUM TOO SMALL");
  EXPECT_EQ(toolkit.messages[0].title, "NO CONTOUR PLOT POSSIBLE");
}

class TranslatedHistogram : private Shouting, public ControlTest<Histogram> {};

TEST_F(TranslatedHistogram, MarksItsMeanAndItsLimits) {
  for (const std::int16_t type : {std::int16_t(1), std::int16_t(3)}) {
    place();
    control.PlotType(static_cast<PlotTyEnum>(type));
    ASSERT_EQ(control.load(square_of_sites()), 0);
    ASSERT_EQ(control.Plot(), 0);
    Names texts;
    for (const auto& text : calls_of<recorded::Text>(recording_of(control.histPic)))
      texts.push_back(text.text);
    EXPECT_NE(std::find(texts.begin(), texts.end(), "MEAN"), texts.end()) << type;
    EXPECT_EQ(std::find(texts.begin(), texts.end(), "Mean"), texts.end()) << type;
  }
}

}  // namespace
}  // namespace mirolen
