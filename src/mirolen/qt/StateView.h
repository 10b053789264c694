#pragma once

namespace mirolen::qt {

/// A view that Qt itself paints, so that it must be given the state of its widget.
class StateView {
 public:
  virtual ~StateView() = default;
  /// Takes over what the widget shows now.
  virtual void show_state() = 0;
};

}  // namespace mirolen::qt
