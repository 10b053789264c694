#pragma once

#include <QSize>

namespace mirolen::qt {

/// A view that must be given the state of its widget, as Qt paints it or works by it.
class StateView {
 public:
  virtual ~StateView() = default;
  /// Takes over what the widget shows now.
  virtual void show_state() = 0;
};

/// A view with a text of its own.
class TextView {
 public:
  virtual ~TextView() = default;
  /// The size in pixels in which nothing of the text is cut.
  virtual QSize needed_size() const = 0;
};

}  // namespace mirolen::qt
