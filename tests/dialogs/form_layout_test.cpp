#include <map>
#include <set>

#include "form_support.h"

namespace mirolen {
namespace {

template <class Kind>
class FormLayout : public ShownForm<Kind> {
 protected:
  FormLayout() { fill(this->form, this->data); }
};
TYPED_TEST_SUITE(FormLayout, AllForms);

TYPED_TEST(FormLayout, NoCaptionIsCut) { expect_whole_captions(this->form); }

TYPED_TEST(FormLayout, EverythingHasASize) {
  for (const Widget* widget : placed_below(this->form)) {
    EXPECT_GT(widget->Width.get(), 0);
    EXPECT_GE(widget->Height.get(), 225);
  }
}

TYPED_TEST(FormLayout, HoldsItsWidgetsApart) { expect_inside_and_apart(this->form); }

template <class Kind>
std::vector<const Kind*> all(const std::vector<Widget*>& widgets) {
  std::vector<const Kind*> found;
  for (const Widget* widget : widgets)
    if (const auto* one = dynamic_cast<const Kind*>(widget)) found.push_back(one);
  return found;
}

TYPED_TEST(FormLayout, FieldsAreOfOneSize) {
  for (const TextField* field : all<TextField>(placed_below(this->form))) {
    EXPECT_EQ(field->Width, Rows::field_width);
    EXPECT_EQ(field->Height, 300);
  }
}

TYPED_TEST(FormLayout, LabelsAreSpelledAlike) {
  std::set<bool> blank_before_colon;
  for (const Label* label : all<Label>(placed_below(this->form)))
    if (label->Caption.get().find(':') != std::string::npos)
      blank_before_colon.insert(label->Caption.get().find(" :") != std::string::npos);
  EXPECT_EQ(blank_before_colon.size(), 1u);
}

TYPED_TEST(FormLayout, GroupsEndTogether) {
  std::map<double, double> bottoms;  // of the columns of groups
  for (const Frame* group : all<Frame>(this->form.children())) {
    double& bottom = bottoms[group->Left];
    bottom = std::max(bottom, group->Top + group->Height);
  }
  for (const auto& [left, bottom] : bottoms) EXPECT_EQ(bottom, bottoms.begin()->second) << left;
}

TYPED_TEST(FormLayout, PicturesLieSideBySide) {
  std::set<double> tops;
  for (const PictureBox* picture : all<PictureBox>(placed_below(this->form))) tops.insert(picture->Top);
  EXPECT_LE(tops.size(), 1u);
}

TYPED_TEST(FormLayout, FitsASmallScreen) {
  EXPECT_LE(this->form.Width.get(), 640 * 15);
  EXPECT_LE(this->form.Height.get(), 440 * 15);
}

}  // namespace
}  // namespace mirolen
