#include "form_support.h"
#include "support/CommaInForce.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

/// A user without a plan: types, chooses, ticks and presses.
class Monkey {
 public:
  Monkey(Form& form, Random& random) : form_(form), widgets_(below(form)), random_(random) {}

  void act() {
    Widget* widget = widgets_[below_limit(widgets_.size())];
    if (auto* field = dynamic_cast<TextField*>(widget))
      type(*field);
    else if (auto* option = dynamic_cast<OptionButton*>(widget))
      option->Value(true);
    else if (auto* box = dynamic_cast<CheckBox*>(widget))
      box->Value(!box->Value());
  }

 private:
  std::size_t below_limit(std::size_t limit) { return random_() % limit; }

  void type(TextField& field) {
    static const std::string keys = "0123456789012345678901234567890.,-+eEdD x";
    if (below_limit(3) == 0) field.Text("");
    for (std::size_t n = below_limit(6); n > 0; --n)
      field.Text(field.Text() + keys[below_limit(keys.size())]);
    if (below_limit(2) == 0) form_.may_leave(field, nullptr);
  }

  Form& form_;
  std::vector<Widget*> widgets_;
  Random& random_;
};

bool between(double low, double value, double high) { return low < value && value < high; }
bool angle(double value) { return value >= 0 && value <= 360; }
bool white_or_face(Color color) { return color == QBColor(15) || color == button_face; }

bool within(const frmPlotOpt2d& f) {
  return between(0.01, f.GetXRes(), 51) && white_or_face(f.GetBackColor());
}
bool within(const frmPlotOpt2ds& f) {
  return between(0.001, f.GetXRes(), 51) && between(0.001, f.GetSigRange(), 1000) &&
         white_or_face(f.GetBackColor());
}
bool within(const frmPlotOpt2DC& f) {
  return between(0.009, f.GetDist(), 1000) && f.GetReso() >= 0 && f.GetReso() <= 2 &&
         f.GetMarkeSites() >= 1 && f.GetMarkeSites() <= 3 && f.GetShowColor() >= 0 && f.GetShowColor() <= 2 &&
         white_or_face(f.GetBackColor());
}
bool angles_within(const ViewOptions& f) {
  return angle(f.GetAlp()) && angle(f.GetPhi()) && angle(f.GetThet());
}
bool within(const frmPlotOpt2DB& f) {
  return between(0.001, f.GetResx(), 101) && between(0.001, f.GetResy(), 101) &&
         between(1e-7, f.GetPlotSccale(), 1000) && angles_within(f);
}
bool steps_within(const SurfaceOptions& f) {
  return between(0.001, f.GetResx(), 51) && between(0.001, f.GetResy(), 51) &&
         between(1e-7, f.GetPlotSccale(), 1000) && angles_within(f);
}
bool within(const frmPlotOpt3d& f) {
  return steps_within(f) && f.GetPlotType() >= 1 && f.GetPlotType() <= 3 && white_or_face(f.GetBackColor());
}
bool within(const frmPlotOpt3ds& f) {
  return steps_within(f) && between(0.001, f.GetSigRange(), 1000) && white_or_face(f.GetBackColor());
}
bool within(const frmPlotHist& f) {
  return between(1, f.GetResolution(), 1000) && white_or_face(f.GetBackColor());
}
bool within(const frmPlotOpt1D& f) {
  std::int16_t degrees = 0;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 1;
  f.GetResult(degrees, x1, y1, x2, y2);
  return angle(degrees) && x1 * x1 + y1 * y1 <= 100 * 100 && x2 * x2 + y2 * y2 <= 100 * 100 &&
         !(x1 == x2 && y1 == y2);
}

template <class Kind>
class Typing : public RandomInput {
 protected:
  /// Confirmed forms of many that were filled at random.
  int confirmed_forms() {
    int confirmed = 0;
    for (int round = rounds(300); round > 0; --round) {
      HeadlessToolkit own;
      Kind form(own);
      fill(form, data_);
      form.Visible = true;
      Monkey monkey(form, random);
      for (int i = 0; i < 20; ++i) monkey.act();
      form.DefaultButton->OnClick();
      EXPECT_EQ(form.Redraw(), !form.Visible);
      EXPECT_TRUE(form.Redraw() ? within(form) : !own.messages.empty()) << round;
      confirmed += form.Redraw();
    }
    return confirmed;
  }

 private:
  wafer data_ = wafer_of_200_mm();
};
TYPED_TEST_SUITE(Typing, AllForms);

TYPED_TEST(Typing, NeverCrashesAndOkKeepsTheLimits) { EXPECT_GT(this->confirmed_forms(), 0); }

TYPED_TEST(Typing, NorWithADecimalComma) {
  const CommaInForce comma;
  EXPECT_GT(this->confirmed_forms(), 0);
}

/// A form in a locale with a decimal comma.
class CommaForm : CommaInForce, public testing::Test {};

TEST_F(CommaForm, ShowsAndTakesTheComma) {
  HeadlessToolkit toolkit;
  wafer data;
  data.test_diam = 200;
  frmPlotOpt2d form(toolkit);
  form.SetValues(data, 2.5, false, button_face);
  EXPECT_EQ(form.tresx.Text(), "2,5");
  EXPECT_EQ(form.tresx.ToolTipText.get(), "mm, more than 0,01 and less than 51");
  form.tresx.Text("50,99");
  form.OKbtn.OnClick();
  EXPECT_TRUE(form.Redraw());
  EXPECT_EQ(form.GetXRes(), 50.99);
  form.tresx.Text("3.5");
  EXPECT_EQ(form.tresx.Text(), "2,5");
}

TEST_F(CommaForm, PointsOfALineHaveTheComma) {
  HeadlessToolkit toolkit;
  wafer data;
  data.test_diam = 200;
  frmPlotOpt1D form(toolkit);
  form.SetValues(data, {true, 0, 0, 0, {-0.5, 1}, {0, 0}}, false);
  EXPECT_EQ(form.resx(0).Text(), "-0,5");
  form.resx(0).Text("1,5");
  EXPECT_TRUE(form.may_leave(form.resx(0), nullptr));
  form.resx(0).Text("2.5");
  EXPECT_FALSE(form.may_leave(form.resx(0), nullptr));
  EXPECT_EQ(form.resx(0).Text(), "1,5");
}

}  // namespace
}  // namespace mirolen
