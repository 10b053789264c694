#include "mirolen/dialogs/PropertyPage.h"

#include "mirolen/core/translation.h"
#include "mirolen/dialogs/input_checks.h"
#include "mirolen/dialogs/input_fields.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

using automation::converted;
using automation::Type;
using automation::Variant;

double number_of(const Variant& value) { return std::get<double>(converted(value, Type::real)); }

bool is_angle(const std::string& text) { return !text.empty() && IsAngleOrOpen(text); }

}  // namespace

bool PropertyPage::is_decimal(const std::string& text) { return IsPlainDecimal(text, false); }

std::string PropertyPage::above_zero(const std::string& unit) { return unit + tr(", more than ") + "0"; }

void PropertyPage::quietly(const std::function<void()>& step) {
  try {
    step();
  } catch (const RunTimeError&) {
  }
}

void PropertyPage::SelectionChanged(const Selection& selected) {
  selected_ = selected;
  if (!selected_.empty())
    for (const Step& read : read_) read(selected_.front());
  set_changed(false);
}

bool PropertyPage::ApplyChanges() { return apply_to(Controls(selected_).first(selected_.empty() ? 0 : 1)); }

bool PropertyPage::ApplyToAll() { return apply_to(selected_); }

bool PropertyPage::apply_to(Controls controls) {
  if (controls.empty()) return true;
  bool fits = true;
  quietly([&] { fits = write_together(controls); });
  for (const automation::Object& control : controls)
    for (const Step& write : write_) quietly([&] { write(control); });
  set_changed(!fits);
  return fits;
}

void PropertyPage::set_changed(bool changed) {
  changed_ = changed;
  if (OnChanged) OnChanged();
}

void PropertyPage::shows(TextField& field, const char* property, Check check, double otherwise,
                         std::function<void()> then) {
  field.OnChange = [=, this, &field] {
    if (!check(field.Text())) return field.Text(StringFormat::plain_text(otherwise));
    if (then) quietly(then);
    set_changed(true);
  };
  read_.push_back([=, &field](const automation::Object& control) {
    field.Text(StringFormat::plain_text(number_of(get(control, property))));
  });
}

void PropertyPage::number(TextField& field, const char* property, const std::string& tip, double otherwise) {
  field.ToolTipText = tip;
  shows(field, property, is_decimal, otherwise);
  write_.push_back(
      [=, &field](const automation::Object& control) { let(control, property, number_in(field.Text())); });
}

void PropertyPage::angle(TextField& field, const char* property, double otherwise,
                         std::function<void()> then) {
  field.ToolTipText = told_range_of_angles();
  shows(field, property, is_angle, otherwise, std::move(then));
  write_.push_back(
      [=, &field](const automation::Object& control) { let(control, property, number_in(field.Text())); });
}

void PropertyPage::tick(CheckBox& box, const char* property, Variant on, Variant off) {
  const auto is_set = [](const Variant& value) { return number_of(value) != 0; };
  box.OnClick = [this] { set_changed(true); };
  read_.push_back([=, &box](const automation::Object& control) {
    box.Value(is_set(get(control, property)) == is_set(on));
  });
  write_.push_back(
      [=, &box](const automation::Object& control) { let(control, property, box.Value() ? on : off); });
}

void PropertyPage::choice(std::vector<OptionButton*> buttons, int first, const char* property,
                          const std::function<void()>& then) {
  for (OptionButton* button : buttons)
    button->OnClick = [=, this] {
      if (then) quietly(then);
      set_changed(true);
    };
  read_.push_back([=](const automation::Object& control) {
    const double value = number_of(get(control, property));
    double option = first;
    for (OptionButton* button : buttons) button->Value(value == option++);
  });
  write_.push_back([=](const automation::Object& control) {
    double option = first;
    for (const OptionButton* button : buttons) {
      if (button->Value()) let(control, property, option);
      ++option;
    }
  });
}

}  // namespace mirolen
