#pragma once

#include "mirolen/dialogs/ViewOptions.h"

namespace mirolen {

/// What the option forms of the two surfaces share: the checks of the grid's steps and of the scale.
class SurfaceOptions : public ViewOptions {
 protected:
  using ViewOptions::ViewOptions;

  std::vector<NumberCheck> checks() override;
};

}  // namespace mirolen
