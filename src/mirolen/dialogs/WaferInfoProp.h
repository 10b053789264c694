#pragma once

#include "mirolen/core/wafer.h"
#include "mirolen/dialogs/PropertyPage.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen {

/// What all controls have: the size of the wafer, its orientation mark, the legend.
class WaferInfoProp : public PropertyPage {
 public:
  explicit WaferInfoProp(Widget* container);

  Label lblWaferDiameter{this, "Wafer diameter :"};
  TextField txtWaferDiameter{this};
  Label lblTestDiameter{this, "Test diameter :"};
  TextField txtTestDiameter{this};
  ControlArray<OptionButton, 1, 2> nfbox{this};
  PictureBox FNPic{this};
  Label FNLabel{this};
  CheckBox showLeg{this, "Hide Plot Legend:"};

 protected:
  /// The diameters, which have to fit each other. One that is the control's own is not written, as writing
  /// that of the wafer empties the store.
  bool write_together(Controls controls) override;

 private:
  void show_mark();

  wafer shown_;
};

}  // namespace mirolen
