#include "mirolen/dialogs/input_fields.h"

#include "mirolen/core/translation.h"
#include "mirolen/dialogs/input_checks.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {

NumberField::NumberField(Widget* container) : TextField(container) {
  OnChange = [this] { text_changed(); };
}

void NumberField::show(double value) {
  value_ = previous_ = value;
  Text(StringFormat::plain_text(value));
}

void NumberField::text_changed() {
  const std::string first = StringFormat::plain_text(previous_);
  if (Text() == first) {
    value_ = previous_;
  } else if (Text().empty() || IsPlainDecimal(Text(), false)) {
    value_ = number_in(Text());
  } else {
    Text(first);
  }
}

std::string told_range_of_angles() { return tr("degrees, 0 to 360"); }

AngleField::AngleField(Widget* container, std::string otherwise)
    : TextField(container), last_good_(std::move(otherwise)) {
  ToolTipText = told_range_of_angles();
  OnChange = [this] { text_changed(); };
}

void AngleField::show(std::int16_t value) { Text(std::to_string(value)); }

void AngleField::text_changed() {
  const std::string text = Text();
  if (!IsAngleOrOpen(text)) return Text(last_good_);
  if (!text.empty()) last_good_ = text;
  value_ = to_int16(number_in(text));
  if (OnAngle) OnAngle();
}

}  // namespace mirolen
