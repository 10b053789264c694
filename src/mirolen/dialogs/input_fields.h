#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "mirolen/widgets/widgets.h"

namespace mirolen {

/// A field for a number. What the user types there stays a plain decimal number or empty: any other text goes
/// back to the number that was shown first.
class NumberField : public TextField {
 public:
  explicit NumberField(Widget* container);

  /// The number of the text: 0 for an empty one, and the very number shown while its text is unchanged.
  double value() const { return value_; }
  void show(double value);

 private:
  void text_changed();

  double value_ = 0, previous_ = 0;
};

/// The tool tip of a field for an angle.
std::string told_range_of_angles();

/// A field for whole degrees from 0 to 360. Any other text goes back to the last number that was good, or to
/// one of its own where there was none. Empty stays empty and is 0.
class AngleField : public TextField {
 public:
  explicit AngleField(Widget* container, std::string otherwise = "0");

  std::int16_t value() const { return value_; }
  void show(std::int16_t value);

  /// Another angle has been entered.
  std::function<void()> OnAngle;

 private:
  void text_changed();

  std::string last_good_;
  std::int16_t value_ = 0;
};

}  // namespace mirolen
