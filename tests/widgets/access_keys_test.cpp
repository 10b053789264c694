#include "mirolen/widgets/access_keys.h"

#include <gtest/gtest.h>

#include "mirolen/widgets/Headless.h"

namespace mirolen {
namespace {

class AccessKeys : public testing::Test {
 protected:
  HeadlessToolkit toolkit;
  Form form{toolkit};
};

TEST_F(AccessKeys, AreTheFirstLettersOfTheCaptions) {
  OptionButton hide(&form, "Hide");
  CheckBox white(&form, "white background");
  Button apply(&form, "Apply");
  choose_access_keys(form);
  EXPECT_EQ(hide.AccessKey, 'H');
  EXPECT_EQ(white.AccessKey, 'w');
  EXPECT_EQ(apply.AccessKey, 'A');
}

TEST_F(AccessKeys, BeginAnotherWordWhereTheFirstIsTaken) {
  OptionButton low(&form, "Low"), lower(&form, "low edge"), black(&form, "2D bars"), bars(&form, "Blue-red");
  choose_access_keys(form);
  EXPECT_EQ(low.AccessKey, 'L');
  EXPECT_EQ(lower.AccessKey, 'e');
  EXPECT_EQ(black.AccessKey, 'D');
  EXPECT_EQ(bars.AccessKey, 'B');
}

TEST_F(AccessKeys, AreWithinAWordWhereAllItsBeginningsAreTaken) {
  OptionButton show(&form, "Show"), short_one(&form, "SHort"), hide(&form, "hs so");
  choose_access_keys(form);
  EXPECT_EQ(show.AccessKey, 'S');
  EXPECT_EQ(short_one.AccessKey, 'H');
  EXPECT_EQ(hide.AccessKey, 'o');
}

TEST_F(AccessKeys, AreLettersOfEveryKeyboard) {
  Button apply(&form, "Übernehmen"), size(&form, "Ø 1"), ohm(&form, "Größe");
  OptionButton g(&form, "gör");
  choose_access_keys(form);
  EXPECT_EQ(apply.AccessKey, 'b');
  EXPECT_EQ(size.AccessKey, 0);
  EXPECT_EQ(ohm.AccessKey, 'G');
  EXPECT_EQ(g.AccessKey, 'r');
}

TEST_F(AccessKeys, AreGivenUpForACaptionWithoutAnother) {
  OptionButton first(&form, "abc"), second(&form, "ad"), third(&form, "da"), last(&form, "a");
  choose_access_keys(form);
  EXPECT_EQ(first.AccessKey, 'b');
  EXPECT_EQ(second.AccessKey, 'a');
  EXPECT_EQ(third.AccessKey, 'd');
  EXPECT_EQ(last.AccessKey, 0) << "three captions have but a and d";
}

TEST_F(AccessKeys, ThatAreSetAreNotGivenUp) {
  OptionButton set(&form, "ab"), other(&form, "a");
  set.AccessKey = 'a';
  choose_access_keys(form);
  EXPECT_EQ(set.AccessKey, 'a');
  EXPECT_EQ(other.AccessKey, 0);
}

TEST_F(AccessKeys, AreMissingWhereNoLetterIsLeft) {
  OptionButton first(&form, "a"), second(&form, "A"), third(&form, "");
  choose_access_keys(form);
  EXPECT_EQ(first.AccessKey, 'a');
  EXPECT_EQ(second.AccessKey, 0);
  EXPECT_EQ(third.AccessKey, 0);
}

TEST_F(AccessKeys, ThatAreSetStayIfTheCaptionHasThem) {
  OptionButton free(&form, "Show"), set(&form, "Shut"), foreign(&form, "Zeigen");
  set.AccessKey = 's';
  foreign.AccessKey = 'S';
  choose_access_keys(form);
  EXPECT_EQ(free.AccessKey, 'h');
  EXPECT_EQ(set.AccessKey, 's');
  EXPECT_EQ(foreign.AccessKey, 'Z');
}

TEST_F(AccessKeys, BelongToLabelsBeforeAField) {
  Frame group(&form, "Group");
  Label head(&group, "Head"), size(&group, "Size");
  TextField field(&group);
  Label last(&group, "Last");
  choose_access_keys(form);
  EXPECT_EQ(head.AccessKey, 0);
  EXPECT_EQ(size.AccessKey, 'S');
  EXPECT_EQ(last.AccessKey, 0);
}

TEST_F(AccessKeys, AreSparedWhereReturnAndEscapeDo) {
  Button ok(&form, "OK"), cancel(&form, "Cancel");
  OptionButton converted(&form, "Converted");
  form.DefaultButton = &ok;
  form.CancelButton = &cancel;
  choose_access_keys(form);
  EXPECT_EQ(ok.AccessKey, 0);
  EXPECT_EQ(cancel.AccessKey, 0);
  EXPECT_EQ(converted.AccessKey, 'C');
}

TEST_F(AccessKeys, AreThereWhenAFormIsShownAndStayWhenItIsAgain) {
  OptionButton first(&form, "Show"), second(&form, "Short");
  for (int time = 0; time < 2; ++time) {
    form.Show();
    EXPECT_EQ(first.AccessKey, 'S');
    EXPECT_EQ(second.AccessKey, 'h');
  }
}

}  // namespace
}  // namespace mirolen
