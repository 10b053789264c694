#pragma once

#include "mirolen/dialogs/ViewOptions.h"

namespace mirolen {

/// What the option forms of the two surfaces share: the checks of the grid's steps and of the scale, and the
/// white background.
class SurfaceOptions : public ViewOptions {
 public:
  /// White, or the system's colour of a button's face.
  Color GetBackColor() const { return background_of(whiteback); }

  CheckBox whiteback{&frmplot, "White background"};

 protected:
  using ViewOptions::ViewOptions;

  std::vector<NumberCheck> checks() override;
};

}  // namespace mirolen
