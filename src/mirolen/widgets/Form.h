#pragma once

#include <string>

#include "mirolen/widgets/widgets.h"

namespace mirolen {

/// A window of its own: the root of a tree of widgets, which the user has to answer before anything else.
/// Width and Height are its inner size; it is seen while `Show` runs. Its children are passed by the Tab key
/// in the order of their creation.
class Form : public Captioned {
 public:
  explicit Form(Toolkit& toolkit, std::string_view text = {});

  Button* DefaultButton = nullptr;  ///< What Return presses.
  Button* CancelButton = nullptr;   ///< What Escape presses, and the closing of the window.
  Widget* FirstFocus = nullptr;     ///< Has the focus when the form appears; null: the first that can.

  /// Chooses the access keys, makes the peers, shows the form modally, and comes back when it is hidden.
  void Show();
  /// Ends Show.
  void Hide() { Visible = false; }
  /// What closing the window does: CancelButton is pressed, and the form is hidden in any case.
  void Close();

  /// Whether the focus may go from one of the form's fields to another widget, which may be none: the field's
  /// OnLeave says so. On the way to CancelButton nobody is asked.
  bool may_leave(const TextField& field, const Widget* to) const;
};

}  // namespace mirolen
