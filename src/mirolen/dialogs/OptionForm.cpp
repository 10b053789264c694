#include "mirolen/dialogs/OptionForm.h"

#include <algorithm>
#include <limits>

#include "mirolen/core/palette.h"
#include "mirolen/core/translation.h"
#include "mirolen/dialogs/input_checks.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {

void OptionForm::begin_with(wafer& shown) {
  wafer_ = &shown;
  redraw_ = false;
  tell_ranges();
}

void OptionForm::tell_ranges() {
  for (const NumberCheck& check : checks())
    check.field.ToolTipText = check.unit + tr(", more than ") + StringFormat::plain_text(check.low) +
                              tr(" and less than ") + StringFormat::plain_text(check.high);
}

double OptionForm::limit(double part) const {  // contract 114
  constexpr double most = std::numeric_limits<std::int16_t>::max();
  return wafer_ ? std::min(most, round_half_even(wafer_->test_diam / part + 1)) : 0;
}

bool OptionForm::is_good() {
  std::string message;
  for (const NumberCheck& check : checks())
    CheckNumberField(check.field.Text(), check.low, check.high, message, check.label);
  if (!message.empty()) input_error(message);
  return message.empty();
}

void OptionForm::input_error(const std::string& text) {
  toolkit().message_box(text, tr("Input Error"), MessageIcon::none);
}

void OptionForm::answer_with(Button& ok, Button& cancel) {
  ok.OnClick = [this] {
    if (!is_good()) return;
    redraw_ = true;
    Hide();
  };
  cancel.OnClick = [this] {
    wafer_ = nullptr;
    redraw_ = false;
    Hide();
  };
  DefaultButton = &ok;
  CancelButton = &cancel;
}

void OptionForm::place_at_right(Button& ok, Button& cancel, const Widget& group) {
  const double left = group.Left + group.Width + Rows::gap;
  ok.Move(left, group.Top + 90, Rows::button_width, Rows::button_height);
  cancel.Move(left, ok.Top + ok.Height + Rows::gap, Rows::button_width, Rows::button_height);
  Width = left + Rows::button_width + Rows::gap;
  Height = group.Top + group.Height + Rows::gap;
}

void OptionForm::place_below(Button& ok, Button& cancel, double right, double top) {
  cancel.Move(right - Rows::button_width, top, Rows::button_width, Rows::button_height);
  ok.Move(cancel.Left - Rows::gap - Rows::button_width, top, Rows::button_width, Rows::button_height);
  Width = right + Rows::gap;
  Height = top + Rows::button_height + Rows::gap;
}

void OptionForm::show_background(CheckBox& white, Color back) { white.Value(back == QBColor(15)); }

Color OptionForm::background_of(const CheckBox& white) { return white.Value() ? QBColor(15) : button_face; }

}  // namespace mirolen
