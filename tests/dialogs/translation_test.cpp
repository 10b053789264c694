#include "fake_control.h"
#include "form_support.h"
#include "mirolen/dialogs/PropertyDialog.h"
#include "mirolen/dialogs/frmAbout.h"
#include "support/translators.h"

namespace mirolen {
namespace {

/// All captions and tool tips below a widget, and its own.
std::vector<std::string> texts_of(const Widget& root) {
  std::vector<std::string> texts{root.ToolTipText};
  if (const auto* captioned = dynamic_cast<const Captioned*>(&root)) texts.push_back(captioned->Caption);
  for (const Widget* child : root.children())
    for (const std::string& text : texts_of(*child)) texts.push_back(text);
  return texts;
}

void expect_all_shouted(const Widget& root) {
  bool any = false;
  for (const std::string& text : texts_of(root)) {
    EXPECT_EQ(text, shouted(text));
    any = any || !text.empty();
  }
  EXPECT_TRUE(any);
}

/// Starts before the form of the fixture behind it.
struct Shouting {
  TranslatorInForce loud{shouted};
};

template <class Kind>
class TranslatedForm : private Shouting, public ShownForm<Kind> {};
TYPED_TEST_SUITE(TranslatedForm, AllForms);

TYPED_TEST(TranslatedForm, HasNoTextInEnglish) {
  fill(this->form, this->data);
  expect_all_shouted(this->form);
}

TYPED_TEST(TranslatedForm, WorksAsTheEnglishOne) {
  fill(this->form, this->data);
  EXPECT_TRUE(this->ok());
  EXPECT_TRUE(this->form.Redraw());
}

TEST(TranslatedMessages, NameTheBadFields) {
  HeadlessToolkit toolkit;
  wafer data;
  data.WafDiam = data.test_diam = 200;
  {
    const TranslatorInForce loud(shouted);
    frmPlotOpt2ds form(toolkit);
    fill(form, data);
    form.tresx.Text("");
    form.SSigma.Text("0");
    form.OKbtn.OnClick();
  }
  frmPlotOpt2ds form(toolkit);
  fill(form, data);
  form.tresx.Text("");
  form.OKbtn.OnClick();
  ASSERT_EQ(toolkit.messages.size(), 2u);
  EXPECT_EQ(toolkit.messages[0].text, "RESOLUTION CAN NOT BE EMPTY\nSIGMA RANGE NOT VALID\n");
  EXPECT_EQ(toolkit.messages[0].title, "INPUT ERROR");
  EXPECT_EQ(toolkit.messages[1].text, "Resolution can not be empty\n");
  EXPECT_EQ(toolkit.messages[1].title, "Input Error");
}

TEST(TranslatedMessages, TellOfPointsThatDoNotFit) {
  HeadlessToolkit toolkit;
  wafer data;
  data.WafDiam = data.test_diam = 200;
  const TranslatorInForce loud(shouted);
  frmPlotOpt1D form(toolkit);
  form.SetValues(data, {.by_points = true}, false);
  form.OKbtn.OnClick();
  form.resx(0).Text("x");
  form.resx(0).OnLeave();
  form.resx(0).Text("101");
  form.resx(0).OnLeave();
  std::vector<std::string> told;
  for (const auto& message : toolkit.messages) told.push_back(message.text);
  EXPECT_EQ(told, (std::vector<std::string>{"START POINT AND END POINT ARE IDENTICAL. THIS IS NOT ALLOWED.",
                                            "ENTER A NUMERIC EXPERSSION", "TESTDIAMETER EXEDED"}));
}

TEST(TranslatedAbout, NamesEachControl) {
  HeadlessToolkit toolkit;
  const TranslatorInForce loud(shouted);
  for (std::int16_t type = 1; type <= 9; ++type) {
    frmAbout form(toolkit);
    form.SetTitle(type);
    expect_all_shouted(form);
  }
}

TEST(TranslatedPages, HaveNoTextInEnglish) {
  HeadlessToolkit toolkit;
  const TranslatorInForce loud(shouted);
  for (const PageKind& kind : page_kinds()) {
    Form owner(toolkit);
    const auto page = kind.make(&owner);
    expect_all_shouted(owner);
  }
}

}  // namespace
}  // namespace mirolen
