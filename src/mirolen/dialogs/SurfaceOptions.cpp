#include "mirolen/dialogs/SurfaceOptions.h"

namespace mirolen {

std::vector<OptionForm::NumberCheck> SurfaceOptions::checks() {
  return {{tresx, "X Resolution ", 0.001, limit(4), "mm"},
          {tresy, "Y Resolution ", 0.001, limit(4), "mm"},
          {tscale, "Scale Factor ", 1e-7, 1000, "height of the surface"}};
}

}  // namespace mirolen
