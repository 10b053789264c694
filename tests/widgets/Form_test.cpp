#include "mirolen/widgets/Form.h"

#include <gtest/gtest.h>

#include "mirolen/widgets/Headless.h"

namespace mirolen {
namespace {

class FormTest : public testing::Test {
 protected:
  HeadlessToolkit toolkit;
  Form form{toolkit, "Title"};
  Button ok{&form, "OK"}, cancel{&form, "Cancel"};
  TextField field{&form};
};

TEST_F(FormTest, ARootWithACaptionThatIsNotSeenAtFirst) {
  EXPECT_EQ(form.Caption.get(), "Title");
  EXPECT_EQ(form.kind(), WidgetKind::form);
  EXPECT_EQ(form.container(), nullptr);
  EXPECT_FALSE(form.Visible);
  EXPECT_EQ(form.children(), (std::vector<Widget*>{&ok, &cancel, &field}));
}

TEST_F(FormTest, IsVisibleWhileItIsShown) {
  bool seen = false;
  toolkit.on_modal = [&](Form& shown) {
    EXPECT_EQ(&shown, &form);
    seen = shown.Visible;
    shown.Hide();
  };
  form.Show();
  EXPECT_TRUE(seen);
  EXPECT_FALSE(form.Visible);
}

TEST_F(FormTest, TheFirstFocusGoesWhereItIsTold) {
  form.FirstFocus = &field;
  form.Show();
  EXPECT_EQ(toolkit.focused, &field);
}

TEST_F(FormTest, WithoutAUserItIsCancelled) {
  int pressed = 0;
  form.CancelButton = &cancel;
  cancel.OnClick = [&] {
    ++pressed;
    form.Hide();
  };
  form.Show();
  EXPECT_EQ(pressed, 1);
  EXPECT_FALSE(form.Visible);
}

TEST_F(FormTest, AFormThatTheUserHasAnsweredIsNotCancelled) {
  int pressed = 0;
  form.CancelButton = &cancel;
  cancel.OnClick = [&] { ++pressed; };
  toolkit.on_modal = [](Form& shown) { shown.Hide(); };
  form.Show();
  EXPECT_EQ(pressed, 0);
}

TEST_F(FormTest, ClosesWithoutACancelButtonToo) {
  form.Visible = true;
  form.Close();
  EXPECT_FALSE(form.Visible);
}

TEST_F(FormTest, AnErrorInItHidesIt) {
  toolkit.on_modal = [](Form&) { throw OutOfMemory(); };
  EXPECT_THROW(form.Show(), OutOfMemory);
  EXPECT_FALSE(form.Visible);
}

TEST_F(FormTest, AFieldMayKeepTheFocus) {
  EXPECT_TRUE(form.may_leave(field, &ok));
  bool good = false;
  field.OnLeave = [&] { return good; };
  EXPECT_FALSE(form.may_leave(field, &ok));
  EXPECT_FALSE(form.may_leave(field, nullptr));
  good = true;
  EXPECT_TRUE(form.may_leave(field, &ok));
}

TEST_F(FormTest, NoFieldIsAskedOnTheWayToCancel) {
  form.CancelButton = &cancel;
  bool asked = false;
  field.OnLeave = [&] {
    asked = true;
    return false;
  };
  EXPECT_TRUE(form.may_leave(field, &cancel));
  EXPECT_FALSE(asked);
}

// ---- Choices ----

TEST_F(FormTest, ChoosingAnOptionUnchoosesItsSiblings) {
  Frame group(&form), elsewhere(&form);
  OptionButton first(&group, "a"), second(&group, "b"), third(&group, "c"), other(&elsewhere, "d");
  other.Value(true);
  first.Value(true);
  second.Value(true);
  EXPECT_FALSE(first.Value());
  EXPECT_TRUE(second.Value());
  EXPECT_FALSE(third.Value());
  EXPECT_TRUE(other.Value());
}

TEST_F(FormTest, AnOptionTellsThatItWasChosen) {
  OptionButton first(&form), second(&form);
  int clicks_first = 0, clicks_second = 0;
  first.OnClick = [&] { ++clicks_first; };
  second.OnClick = [&] {
    EXPECT_FALSE(first.Value());
    ++clicks_second;
  };
  first.Value(true);
  first.Value(true);
  EXPECT_EQ(clicks_first, 1);
  second.Value(true);
  EXPECT_EQ(clicks_second, 1);
  EXPECT_EQ(clicks_first, 1);
  second.Value(false);
  EXPECT_EQ(clicks_second, 1);
}

TEST_F(FormTest, ACheckBoxTellsEachChange) {
  CheckBox box(&form, "white");
  int clicks = 0;
  box.OnClick = [&] { ++clicks; };
  EXPECT_FALSE(box.Value());
  box.Value(true);
  EXPECT_TRUE(box.Value());
  box.Value(true);
  EXPECT_EQ(clicks, 1);
  box.Value(false);
  EXPECT_EQ(clicks, 2);
}

TEST_F(FormTest, CaptionsKeepTheirTextBesideAnAccessKey) {
  OptionButton option(&form, "Show");
  option.AccessKey = 'S';
  EXPECT_EQ(option.Caption.get(), "Show");
  EXPECT_EQ(option.AccessKey, 'S');
  EXPECT_TRUE(option.Enabled);
}

}  // namespace
}  // namespace mirolen
