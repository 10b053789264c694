#include "form_support.h"

namespace mirolen {
namespace {

const char* const not_numeric = "Enter a numeric experssion";
const char* const too_far = "Testdiameter exeded";
const char* const identical = "Start point and end point are identical. This is not allowed.";

class LineForm : public ShownForm<frmPlotOpt1D> {
 protected:
  LineForm() { fill(form, data); }

  struct Result {
    bool by_points;
    double angle, x1, y1, x2, y2;
    friend bool operator==(const Result&, const Result&) = default;
  };
  Result result() const {
    std::int16_t angle = -7;
    double x1 = -1001, y1 = -1002, x2 = -1003, y2 = -1004;
    const bool by_points = form.GetResult(angle, x1, y1, x2, y2);
    return {by_points, static_cast<double>(angle), x1, y1, x2, y2};
  }
  /// Types into a field and goes on to another one. @return whether the focus may go.
  bool type_and_leave(TextField& field, const char* text) {
    field.Text(text);
    return form.may_leave(field, &form.OKbtn);
  }
  void by_points() { form.optline(1).Value(true); }
};

TEST_F(LineForm, ShowsWhatItWasGiven) {
  EXPECT_TRUE(form.optline(0).Value());
  EXPECT_EQ(form.AngleValue.Text(), "30");
  EXPECT_EQ(form.resx(0).Text(), "-10");
  EXPECT_EQ(form.resy(0).Text(), "-30");
  EXPECT_EQ(form.resx(1).Text(), "20");
  EXPECT_EQ(form.resy(1).Text(), "40");
  EXPECT_FALSE(form.GetMarkeSites());
  form.SetValues(data, {true, 30, 0, 0, {1, 2}, {3, 4}}, true);
  EXPECT_TRUE(form.optline(1).Value());
  EXPECT_TRUE(form.GetMarkeSites());
  EXPECT_THROW(form.resx(2), SubscriptOutOfRange);
}

TEST_F(LineForm, GivesTheAngleAloneOrThePointsAlone) {
  EXPECT_EQ(result(), (Result{false, 30, -1001, -1002, -1003, -1004}));
  by_points();
  EXPECT_EQ(result(), (Result{true, -7, -10, -30, 20, 40}));
}

TEST_F(LineForm, FieldsOfTheOtherModeAreOff) {
  EXPECT_TRUE(form.AngleValue.Enabled);
  EXPECT_FALSE(form.resx(0).Enabled);
  EXPECT_FALSE(form.resy(1).Enabled);
  by_points();
  EXPECT_FALSE(form.AngleValue.Enabled);
  EXPECT_TRUE(form.resx(0).Enabled);
  EXPECT_TRUE(form.resy(1).Enabled);
}

TEST_F(LineForm, AGoodPointIsTaken) {
  by_points();
  EXPECT_TRUE(type_and_leave(form.resx(0), "-12.5"));
  EXPECT_TRUE(type_and_leave(form.resy(0), "+3"));
  EXPECT_TRUE(type_and_leave(form.resx(1), ".5"));
  EXPECT_TRUE(type_and_leave(form.resy(1), "0"));
  EXPECT_EQ(message(), "");
  EXPECT_EQ(result(), (Result{true, -7, -12.5, 3, 0.5, 0}));
}

TEST_F(LineForm, APointIsTakenOnLeavingOnly) {
  by_points();
  form.resx(0).Text("55");
  EXPECT_EQ(result().x1, -10);
}

TEST_F(LineForm, WhatIsNoNumberGoesBackAndKeepsTheFocus) {
  by_points();
  for (const char* bad : {"", "x", "-", "1e1", " ", "1.2.3"}) {
    EXPECT_FALSE(type_and_leave(form.resx(0), bad)) << bad;
    EXPECT_EQ(message(), not_numeric);
    EXPECT_EQ(form.resx(0).Text(), "-10");
    EXPECT_FALSE(type_and_leave(form.resy(1), bad)) << bad;
    EXPECT_EQ(message(), not_numeric);
    EXPECT_EQ(form.resy(1).Text(), "40");
  }
  EXPECT_EQ(result(), (Result{true, -7, -10, -30, 20, 40}));
}

TEST_F(LineForm, APointBeyondTheTestDiameterSetsXToZeroAndKeepsTheFocus) {
  by_points();
  EXPECT_FALSE(type_and_leave(form.resx(0), "96"));  // 96, -30
  EXPECT_EQ(message(), too_far);
  EXPECT_EQ(form.resx(0).Text(), "0");
  EXPECT_EQ(result().x1, -10);
  EXPECT_FALSE(type_and_leave(form.resy(1), "100.1"));  // 20, 100.1
  EXPECT_EQ(message(), too_far);
  EXPECT_EQ(form.resx(1).Text(), "0");
  EXPECT_EQ(form.resy(1).Text(), "100.1");
}

TEST_F(LineForm, APointOnTheTestDiameterIsGood) {
  by_points();
  form.resx(0).Text("60");
  EXPECT_TRUE(type_and_leave(form.resy(0), "80"));
  EXPECT_FALSE(type_and_leave(form.resy(0), "80.001"));
  EXPECT_EQ(message(), too_far);
}

TEST_F(LineForm, HugeCoordinatesAreBeyond) {
  by_points();
  EXPECT_FALSE(type_and_leave(form.resx(0), ("1" + std::string(300, '0')).c_str()));
  EXPECT_EQ(message(), too_far);
}

TEST_F(LineForm, NobodyIsAskedOnTheWayToCancel) {
  by_points();
  form.resx(0).Text("x");
  EXPECT_TRUE(form.may_leave(form.resx(0), &form.cancel));
  EXPECT_EQ(message(), "");
}

TEST_F(LineForm, IdenticalPointsAreRefused) {
  by_points();
  type_and_leave(form.resx(1), "-10");
  type_and_leave(form.resy(1), "-30");
  EXPECT_FALSE(ok());
  EXPECT_EQ(message(), identical);
  EXPECT_FALSE(form.Redraw());
  type_and_leave(form.resy(1), "-30.5");
  EXPECT_TRUE(ok());
  EXPECT_EQ(message(), "");
}

TEST_F(LineForm, IdenticalPointsDoNotMatterToAnAngle) {
  form.SetValues(data, {false, 30, 0, 0, {0, 0}, {0, 0}}, false);
  EXPECT_TRUE(ok());
  EXPECT_EQ(message(), "");
}

TEST_F(LineForm, OkTakesAFieldThatWasNotLeft) {
  by_points();
  form.resx(0).Text("11");
  EXPECT_TRUE(ok());
  EXPECT_EQ(result().x1, 11);
}

TEST_F(LineForm, OkRefusesAFieldThatWasNotLeft) {
  by_points();
  form.resy(1).Text("x");
  EXPECT_FALSE(ok());
  EXPECT_EQ(message(), not_numeric);
  form.resx(1).Text("500");
  EXPECT_FALSE(ok());
  EXPECT_EQ(message(), too_far);
  EXPECT_EQ(toolkit.focused, nullptr) << "the focus stays";
}

TEST_F(LineForm, ABadFieldLeavesTheOtherOfItsPointAlone) {
  by_points();
  for (const char* bad : {"x", "", "1e9"}) {
    form.resy(0).Text(bad);
    EXPECT_FALSE(ok()) << bad;
    EXPECT_EQ(message(), not_numeric) << bad;
    EXPECT_EQ(form.resx(0).Text(), "-10") << bad;
    EXPECT_EQ(form.resy(0).Text(), "-30") << bad;
  }
  EXPECT_TRUE(ok());
  EXPECT_EQ(result(), (Result{true, -7, -10, -30, 20, 40}));
}

TEST_F(LineForm, APointOfTheHostBeyondTheTestDiameterIsRefusedAtOk) {
  form.SetValues(data, {true, 0, 0, 0, {150, 0}, {0, 10}}, false);
  EXPECT_FALSE(ok());
  EXPECT_EQ(message(), too_far);
}

TEST_F(LineForm, APointThatShowsAnExponentCanStay) {
  form.SetValues(data, {true, 0, 0, 0, {1e-20, 0}, {1.0 / 3, 10}}, false);
  EXPECT_EQ(form.resx(0).Text(), "1E-20");
  EXPECT_TRUE(ok());
  EXPECT_EQ(message(), "");
  EXPECT_EQ(result(), (Result{true, -7, 1e-20, 1.0 / 3, 0, 10}));
}

TEST_F(LineForm, TheAngleFallsBackToTheLastGoodOne) {
  for (const char* bad : {"361", "-1", "4.5", "x"}) {
    form.AngleValue.Text(bad);
    EXPECT_EQ(form.AngleValue.Text(), "30") << bad;
  }
  form.AngleValue.Text("360");
  EXPECT_EQ(result().angle, 360);
  form.AngleValue.Text("");
  EXPECT_EQ(result().angle, 0);
  EXPECT_TRUE(ok());
}

TEST_F(LineForm, TheLittleWaferShowsTheLine) {
  form.AngleValue.Text("0");  // from the bottom upward
  EXPECT_EQ(form.FNLine.X1.get(), form.FNLine.X2.get());
  EXPECT_GT(form.FNLine.Y1.get(), form.FNLine.Y2.get());
  form.AngleValue.Text("180");
  EXPECT_LT(form.FNLine.Y1.get(), form.FNLine.Y2.get());
  EXPECT_TRUE(form.picplus.Visible);
  form.SetValues(data, {true, 0, 0, 0, {-50, 50}, {0, 0}}, false);
  EXPECT_EQ(form.FNLine.Y1.get(), form.FNLine.Y2.get());
  EXPECT_LT(form.FNLine.X1.get(), form.FNLine.X2.get());
  EXPECT_TRUE(type_and_leave(form.resy(1), "30"));
  EXPECT_GT(form.FNLine.Y1.get(), form.FNLine.Y2.get());
}

TEST_F(LineForm, ALineThatCannotBeDrawnIsNoError) {
  form.SetValues(data, {false, 90, 500, 500, {0, 0}, {0, 0}}, false);
  form.AngleValue.Text("45");
  EXPECT_TRUE(ok());
}

}  // namespace
}  // namespace mirolen
