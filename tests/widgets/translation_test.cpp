#include <gtest/gtest.h>

#include "mirolen/widgets/Form.h"
#include "mirolen/widgets/Headless.h"
#include "support/translators.h"

namespace mirolen {
namespace {

struct Captions : Form {
  explicit Captions(Toolkit& toolkit) : Form(toolkit, "Form") {}
  Frame frame{this, "Frame"};
  Label label{this, "Label "};
  Button button{this, "Button"};
  OptionButton option{this, "Option"};
  CheckBox check{this, "Check"};
  Label none{this};
};

void expect_captions(const Captions& form, const std::vector<std::string>& captions) {
  EXPECT_EQ(
      (std::vector<std::string>{form.Caption, form.frame.Caption, form.label.Caption, form.button.Caption,
                                form.option.Caption, form.check.Caption, form.none.Caption}),
      captions);
}

TEST(TranslatedCaptions, AreThoseToldAtConstruction) {
  HeadlessToolkit toolkit;
  const TranslatorInForce loud(shouted);
  expect_captions(Captions(toolkit), {"FORM", "FRAME", "LABEL ", "BUTTON", "OPTION", "CHECK", ""});
}

TEST(TranslatedCaptions, AreNotThoseSetLater) {
  HeadlessToolkit toolkit;
  const TranslatorInForce loud(shouted);
  Captions form(toolkit);
  form.frame.Caption = "of the host";
  EXPECT_EQ(form.frame.Caption.get(), "of the host");
}

TEST(TranslatedCaptions, StayWhatTheyAreWhenTheLanguageChanges) {
  HeadlessToolkit toolkit;
  Captions form(toolkit);
  const TranslatorInForce loud(shouted);
  form.changed();
  expect_captions(form, {"Form", "Frame", "Label ", "Button", "Option", "Check", ""});
}

}  // namespace
}  // namespace mirolen
