#pragma once

#include "mirolen/widgets/Form.h"

namespace mirolen {

/// Gives an access key to each button, option and check box of a form and to each label before a field: a
/// letter of its caption that nothing else on the form has, one that begins a word if it can be. A key that
/// is set stays if its letter is in the caption. What Return or Escape presses needs none. Only letters from
/// A to Z are on every keyboard; a caption without any that is free has no key.
void choose_access_keys(Form& form);

}  // namespace mirolen
