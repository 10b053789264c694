#pragma once

#include <cstdint>
#include <string_view>

namespace mirolen {

/// A mouse event: the button (left 1, right 2, middle 4; on a move the sum of those held), the keys held
/// (shift 1, control 2, alt 4) and the place in the coordinates of what was hit.
struct MouseEvent {
  std::int16_t Button = 0;
  std::int16_t Shift = 0;
  float x = 0;
  float y = 0;
  friend bool operator==(const MouseEvent&, const MouseEvent&) = default;
};

/// What the host's form gives one control: a place, and an ear for its notices. It outlives the control.
class Container {
 public:
  virtual ~Container() = default;

  /// Sets the scale mode of the form that the control lies on. @throws RunTimeError where a form has none.
  virtual void ScaleMode(std::int16_t mode) = 0;
  /// A property has changed, told under its own name.
  virtual void changed(std::string_view property) = 0;

  virtual void Click() = 0;
  virtual void DblClick() = 0;
  virtual void MouseDown(const MouseEvent& event) = 0;
  virtual void MouseMove(const MouseEvent& event) = 0;
  virtual void MouseUp(const MouseEvent& event) = 0;
};

}  // namespace mirolen
