#include <map>
#include <set>

#include "form_support.h"

namespace mirolen {
namespace {

template <class Kind>
class FormLayout : public ShownForm<Kind> {
 protected:
  FormLayout() { fill(this->form, this->data); }

  /// What has a place of its own: not the lines and marks on pictures.
  std::vector<Widget*> placed() const {
    std::vector<Widget*> widgets;
    for (Widget* widget : below(this->form))
      if (widget->kind() != WidgetKind::line && widget->kind() != WidgetKind::shape)
        widgets.push_back(widget);
    return widgets;
  }
};
TYPED_TEST_SUITE(FormLayout, AllForms);

/// The caption, the room that its widget leaves for it, and the access key.
struct Text {
  std::string caption;
  double room;
  char key;
};
std::optional<Text> text_of(const Widget& widget) {
  constexpr double mark = 255, edge = 120;
  if (const auto* label = dynamic_cast<const Label*>(&widget))
    return Text{label->Caption, label->Width, label->AccessKey};
  if (const auto* button = dynamic_cast<const Button*>(&widget))
    return Text{button->Caption, button->Width - 2 * edge, button->AccessKey};
  if (const auto* option = dynamic_cast<const OptionButton*>(&widget))
    return Text{option->Caption, option->Width - mark, option->AccessKey};
  if (const auto* box = dynamic_cast<const CheckBox*>(&widget))
    return Text{box->Caption, box->Width - mark, box->AccessKey};
  if (const auto* frame = dynamic_cast<const Frame*>(&widget))
    return Text{frame->Caption, frame->Width - 2 * edge, 0};
  return std::nullopt;
}

TYPED_TEST(FormLayout, NoCaptionIsCut) {
  for (const Widget* widget : this->placed())
    if (const auto text = text_of(*widget)) {
      EXPECT_LE(this->toolkit.measure({}, text->caption).width * 15, text->room) << text->caption;
    }
}

TYPED_TEST(FormLayout, EverythingHasACaptionAndASize) {
  for (const Widget* widget : this->placed()) {
    EXPECT_GT(widget->Width.get(), 0);
    EXPECT_GE(widget->Height.get(), 225);
    if (const auto text = text_of(*widget)) {
      EXPECT_NE(text->caption, "");
    }
  }
}

TYPED_TEST(FormLayout, EverythingLiesWithinItsContainer) {
  for (const Widget* widget : this->placed()) {
    EXPECT_GE(widget->Left.get(), 0);
    EXPECT_GE(widget->Top.get(), 0);
    EXPECT_LE(widget->Left + widget->Width, widget->container()->Width.get());
    EXPECT_LE(widget->Top + widget->Height, widget->container()->Height.get());
  }
}

TYPED_TEST(FormLayout, NothingCoversAnything) {
  const std::vector<Widget*> widgets = this->placed();
  for (const Widget* a : widgets)
    for (const Widget* b : widgets) {
      if (a == b || a->container() != b->container()) continue;
      const bool apart = a->Left + a->Width <= b->Left || b->Left + b->Width <= a->Left ||
                         a->Top + a->Height <= b->Top || b->Top + b->Height <= a->Top;
      EXPECT_TRUE(apart) << static_cast<int>(a->kind()) << ' ' << static_cast<int>(b->kind());
    }
}

template <class Kind>
std::vector<const Kind*> all(const std::vector<Widget*>& widgets) {
  std::vector<const Kind*> found;
  for (const Widget* widget : widgets)
    if (const auto* one = dynamic_cast<const Kind*>(widget)) found.push_back(one);
  return found;
}

TYPED_TEST(FormLayout, FieldsAreOfOneSize) {
  for (const TextField* field : all<TextField>(this->placed())) {
    EXPECT_EQ(field->Width, Rows::field_width);
    EXPECT_EQ(field->Height, 300);
  }
}

TYPED_TEST(FormLayout, LabelsAreSpelledAlike) {
  std::set<bool> blank_before_colon;
  for (const Label* label : all<Label>(this->placed()))
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
  for (const PictureBox* picture : all<PictureBox>(this->placed())) tops.insert(picture->Top);
  EXPECT_LE(tops.size(), 1u);
}

TYPED_TEST(FormLayout, AccessKeysAreLettersOfTheirCaptionsAndDiffer) {
  std::set<int> keys;
  for (const Widget* widget : this->placed()) {
    const auto text = text_of(*widget);
    if (!text || text->key == 0) continue;
    EXPECT_NE(text->caption.find(text->key), std::string::npos) << text->caption;
    EXPECT_TRUE(keys.insert(std::toupper(text->key)).second) << text->caption;
  }
}

TYPED_TEST(FormLayout, FitsASmallScreen) {
  EXPECT_LE(this->form.Width.get(), 640 * 15);
  EXPECT_LE(this->form.Height.get(), 440 * 15);
}

}  // namespace
}  // namespace mirolen
