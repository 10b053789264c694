#include <gtest/gtest.h>

#include "qt/form_user.h"
#include "qt/nine_faces.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;

/// What becomes of a number that is entered.
enum class Takes { decimals, whole_numbers, degrees };

/// A text that is typed into a field, or an option that is clicked, and the property where it arrives.
struct Entry {
  const char* text;
  const char* property;
  Takes takes;
};
struct Choice {
  const char* caption;
  const char* property;
  double value;
};

struct FaceWithOptions {
  const char* name;
  std::vector<Entry> fields;
  std::vector<Choice> choices;
  const char* complaint;  ///< About fields that are all empty.
};
void PrintTo(const FaceWithOptions& face, std::ostream* stream) { *stream << face.name; }

constexpr Takes decimals = Takes::decimals, whole = Takes::whole_numbers, degrees = Takes::degrees;
const Choice marks{"Show", "ShowSites", -1}, on_white{"White background", "BackColor", white};
const Choice on_grey{"White background", "BackColor", static_cast<std::int32_t>(button_face)};

const std::vector<FaceWithOptions> checked_faces{
    {"Plot2D", {{"10", "Resolution", decimals}}, {marks, on_white}, "Resolution can not be empty\n"},
    {"Plot2DS",
     {{"10", "Resolution", decimals}, {"1.5", "SigmaRange", decimals}},
     {marks, on_white},
     "Resolution can not be empty\nSigma Range can not be empty\n"},
    {"Plot2DC",
     {{"25", "Interval", decimals}},
     {{"High", "Resolution", 1}, {"None", "marksites", 3}, {"Ten colors", "PlotColored", 2}, on_white},
     "Interval can not be empty\n"},
    {"Plot2DB",
     {{"8", "BeamWidth", decimals},
      {"9", "BeamHeight", decimals},
      {"7.5", "BeamScale", decimals},
      {"10", "GridRotation", degrees},
      {"80", "GridInclination", degrees},
      {"200", "WaferRotation", degrees}},
     {},
     "Bar width can not be empty\nBar depth can not be empty\nScale factor can not be empty\n"},
    {"Plot3D",
     {{"8", "XResolution", decimals},
      {"9", "YResolution", decimals},
      {"7", "PlotScale", whole},
      {"10", "GridRotation", degrees},
      {"80", "GridInclination", degrees},
      {"200", "WaferRotation", degrees}},
     {{"Wire Frame", "PlotType", 3}, on_white},
     "X Resolution can not be empty\nY Resolution can not be empty\nScale Factor can not be empty\n"},
    {"Plot3DS",
     {{"8", "XResolution", decimals},
      {"9", "YResolution", decimals},
      {"7", "PlotScale", whole},
      {"1.5", "SigmaRange", decimals},
      {"10", "GridRotation", degrees},
      {"80", "GridInclination", degrees},
      {"200", "WaferRotation", degrees}},
     {on_white},
     "X Resolution can not be empty\nY Resolution can not be empty\nScale Factor can not be empty\n"
     "Sigma Range can not be empty\n"},
    {"Histogram", {{"4", "Resolution", whole}}, {on_grey}, "Resolution can not be empty\n"}};
const FaceWithOptions line_scan{"LineScan", {{"70", "angle", degrees}}, {marks}, nullptr};

class OptionForms : public testing::TestWithParam<FaceWithOptions> {
 protected:
  OptionForms() {
    face->resize(600, 450);
    face->show();
    QTest::qWait(0);
    load_slope(*face);
    face->Plot();
    before_ = settings();
    picture_before_ = picture();
  }

  void answer(const std::function<void(QWidget&)>& user) { answer_options(*face, user); }
  template <class Act>
  void for_each_field(QWidget& dialog, Act act) {
    qsizetype number = 0;
    for (const Entry& entry : GetParam().fields) act(field(dialog, number++), entry);
  }
  void enter_all(QWidget& dialog) {
    for_each_field(dialog, [](QLineEdit& at, const Entry& entry) { enter(at, entry.text); });
    for (const Choice& choice : GetParam().choices) click(dialog, choice.caption);
  }
  void expect(const char* property, double value) {
    const automation::Variant got = automation::get(face->by_name(), property);
    EXPECT_EQ(std::get<double>(automation::converted(got, automation::Type::real)), value) << property;
  }
  void expect_nothing_changed() {
    EXPECT_TRUE(settings() == before_);
    EXPECT_EQ(picture(), picture_before_);
  }
  void expect_drawn_anew() { EXPECT_NE(picture(), picture_before_); }

  const std::unique_ptr<qt::PlotWidget> face = make_face(GetParam().name);
  MessageReader reader;

 private:
  /// All stored properties.
  std::vector<automation::Variant> settings() const {
    std::vector<automation::Variant> values;
    for (const automation::StoredKey& stored : face->by_name().info->stored)
      values.push_back(automation::get(face->by_name(), stored.property));
    return values;
  }
  /// Without the mark of the focus.
  QImage picture() {
    if (QWidget* const focus = face->focusWidget()) focus->clearFocus();
    return face->grab().toImage();
  }

  std::vector<automation::Variant> before_;
  QImage picture_before_;
};
using CheckedOptionForms = OptionForms;
INSTANTIATE_TEST_SUITE_P(Seven, CheckedOptionForms, testing::ValuesIn(checked_faces));
INSTANTIATE_TEST_SUITE_P(Seven, OptionForms, testing::ValuesIn(checked_faces));
INSTANTIATE_TEST_SUITE_P(Line, OptionForms, testing::Values(line_scan));

TEST_P(OptionForms, OpenByTheButtonOfTheFace) {
  answer_form([&] { click(*face, "Plot- Options"); },
              [](QWidget& dialog) { EXPECT_EQ(dialog.windowTitle(), "Define Plot Options"); });
}

TEST_P(OptionForms, TakeNoTextThatIsNoNumber) {
  answer([&](QWidget& dialog) {
    for_each_field(dialog, [](QLineEdit& at, const Entry& entry) {
      const QString before = at.text();
      for (const char* bad : {"x", "-", ".", "e"}) {
        enter(at, bad);
        EXPECT_EQ(at.text(), before) << entry.property << ' ' << bad;
      }
      enter(at, "7");
      QTest::keyClicks(&at, "d");
      EXPECT_EQ(at.text(), entry.takes == degrees ? "7" : before) << entry.property;
    });
  });
  expect_nothing_changed();
}

TEST_P(CheckedOptionForms, TellAllBadFieldsInOneBoxAndStayOpen) {
  answer([&](QWidget& dialog) {
    for_each_field(dialog, [](QLineEdit& at, const Entry&) { enter(at, ""); });
    press(Qt::Key_Return);
    EXPECT_EQ(reader.texts, QStringList{GetParam().complaint});
    EXPECT_EQ(reader.title, "Input Error");
    EXPECT_TRUE(dialog.isVisible());
  });
  expect_nothing_changed();
}

TEST_P(OptionForms, ChangeNothingWhenTheyAreCancelled) {
  for (const bool by_key : {true, false}) {
    answer([&](QWidget& dialog) {
      enter_all(dialog);
      by_key ? press(Qt::Key_Escape) : click(dialog, "Cancel");
      EXPECT_FALSE(dialog.isVisible());
    });
    expect_nothing_changed();
  }
  EXPECT_EQ(reader.texts, QStringList());
}

TEST_P(OptionForms, ChangeNothingWhenTheyAreTakenAsTheyAre) {
  answer([&](QWidget& dialog) {
    press(Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  expect_nothing_changed();
}

TEST_P(OptionForms, BringWhatIsEnteredIntoThePlot) {
  answer([&](QWidget& dialog) {
    enter_all(dialog);
    press(Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  for (const Entry& entry : GetParam().fields) expect(entry.property, std::stod(entry.text));
  for (const Choice& choice : GetParam().choices) expect(choice.property, choice.value);
  expect_drawn_anew();
  EXPECT_EQ(reader.texts, QStringList());
}

TEST_P(OptionForms, TakeTheCommaOfTheLocaleAndNoPoint) {
  const CommaInForce comma;
  answer([&](QWidget& dialog) {
    for_each_field(dialog, [](QLineEdit& at, const Entry& entry) {
      const QString before = at.text();
      enter(at, "2.");
      EXPECT_EQ(at.text(), entry.takes == degrees ? "2" : before) << entry.property;
      enter(at, "2,");
      EXPECT_EQ(at.text(), entry.takes == degrees ? "2" : "2,") << entry.property;
      QTest::keyClicks(&at, "75");
    });
    press(Qt::Key_Return);
  });
  for (const Entry& entry : GetParam().fields)
    if (entry.takes != degrees) expect(entry.property, entry.takes == whole ? 3 : 2.75);
  expect_drawn_anew();
}

TEST(ARedrawThatCutsTheResolution, TellsItAndLetsTheUserChooseAnother) {
  ShownPlot plot;
  MessageReader reader;
  plot.face.setResolution(40);
  plot.face.setTestDiameter(120);
  answer_form([&] { plot.face.Plot(); },
              [&](QWidget& dialog) {
                EXPECT_EQ(reader.texts, QStringList{"Maximal possible resolution is 30 mm"});
                EXPECT_EQ(reader.title, "Standard resolution to high ");
                EXPECT_EQ(field(dialog, 0).text(), "30");
                enter(field(dialog, 0), "20");
                press(Qt::Key_Return);
              });
  EXPECT_EQ(plot.face.Resolution(), 20);
}

}  // namespace
}  // namespace mirolen
