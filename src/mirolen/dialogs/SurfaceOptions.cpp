#include "mirolen/dialogs/SurfaceOptions.h"

#include "mirolen/core/translation.h"

namespace mirolen {

std::vector<OptionForm::NumberCheck> SurfaceOptions::checks() {
  return {{tresx, tr("X Resolution "), 0.001, limit(4), tr("mm")},
          {tresy, tr("Y Resolution "), 0.001, limit(4), tr("mm")},
          {tscale, tr("Scale Factor "), 1e-7, 1000, tr("height of the surface")}};  // contract 115
}

}  // namespace mirolen
