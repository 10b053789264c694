#pragma once

#include <cstdint>

#include "mirolen/widgets/Form.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen {

/// Names the library, its version and the kind of control that shows it.
class frmAbout : public Form {
 public:
  explicit frmAbout(Toolkit& toolkit);

  /// Takes the title and the icon of a type of control, 1 to 9; any other has no icon and its title no end.
  void SetTitle(std::int16_t type);

  PictureBox picIcon{this};
  Label lblTitle{this}, lblVersion{this}, lblDescription{this};
  Button cmdOK{this, "OK"};
};

}  // namespace mirolen
