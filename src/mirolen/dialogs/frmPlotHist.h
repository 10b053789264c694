#pragma once

#include "mirolen/dialogs/OptionForm.h"

namespace mirolen {

/// The options of the histogram.
class frmPlotHist : public OptionForm {
 public:
  explicit frmPlotHist(Toolkit& toolkit);

  /// The number of classes.
  void SetValues(wafer& wafer, double resolution, Color back);
  double GetResolution() const { return tresx.value(); }
  /// White, or the system's colour of a button's face.
  Color GetBackColor() const { return background_of(whiteback); }

  Frame frmplot{this, "Histogram"};
  Label lblresx{&frmplot, "Resolution : "};
  NumberField tresx{&frmplot};
  CheckBox whiteback{&frmplot, "White background"};
  Button OKbtn{this, "OK"};
  Button cancel{this, "Cancel"};

 protected:
  std::vector<NumberCheck> checks() override;
};

}  // namespace mirolen
