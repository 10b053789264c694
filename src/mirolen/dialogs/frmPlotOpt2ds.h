#pragma once

#include "mirolen/dialogs/OptionForm.h"

namespace mirolen {

/// The options of the sigma map.
class frmPlotOpt2ds : public OptionForm {
 public:
  explicit frmPlotOpt2ds(Toolkit& toolkit);

  /// Resolution in millimetres; the range in standard deviations.
  void SetValues(wafer& wafer, double resolution, bool mark_sites, Color back, double sigma_range);
  double GetXRes() const { return tresx.value(); }
  bool GetMarkeSites() const { return marks_shown(optMark); }  // contract 10
  /// White, or the system's colour of a button's face.
  Color GetBackColor() const { return background_of(whiteback); }
  double GetSigRange() const { return SSigma.value(); }

  Frame frmplot{this, "2D Sigma Range Plot"};
  Label lblresx{&frmplot, "Resolution : "};
  NumberField tresx{&frmplot};
  Label lblsigma{&frmplot, "Sigma Range : "};
  NumberField SSigma{&frmplot};
  Frame frmmark{&frmplot, "Marked Sites:"};
  Marks optMark{&frmmark};
  CheckBox whiteback{&frmplot, "White background"};
  Button OKbtn{this, "OK"};
  Button cancel{this, "Cancel"};

 protected:
  std::vector<NumberCheck> checks() override;
};

}  // namespace mirolen
