#include "mirolen/widgets/Form.h"

#include "mirolen/widgets/access_keys.h"

namespace mirolen {

Form::Form(Toolkit& toolkit, std::string_view text) : Captioned(WidgetKind::form, toolkit, text) {
  Visible = false;
}

void Form::Show() {
  choose_access_keys(*this);
  realize();
  Visible = true;
  try {
    toolkit().run_modal(*this);
  } catch (...) {
    Hide();
    throw;
  }
  Hide();
}

void Form::Close() {
  if (CancelButton && CancelButton->OnClick) CancelButton->OnClick();
  Hide();
}

bool Form::may_leave(const TextField& field, const Widget* to) const {
  const bool cancelling = to && to == CancelButton;
  return cancelling || !field.OnLeave || field.OnLeave();
}

}  // namespace mirolen
