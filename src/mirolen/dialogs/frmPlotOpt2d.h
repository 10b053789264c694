#pragma once

#include "mirolen/dialogs/OptionForm.h"

namespace mirolen {

/// The options of the colour map.
class frmPlotOpt2d : public OptionForm {
 public:
  explicit frmPlotOpt2d(Toolkit& toolkit);

  /// Resolution in millimetres; the marks are shown or not; the background is ticked for white.
  void SetValues(wafer& wafer, double resolution, bool mark_sites, Color back);
  double GetXRes() const { return tresx.value(); }
  bool GetMarkeSites() const { return marks_shown(optMark); }  // contract 10
  /// White, or the system's colour of a button's face.
  Color GetBackColor() const { return background_of(whiteback); }

  Frame frmplot{this, "2D Plot"};
  Label lblresx{&frmplot, "Resolution : "};
  NumberField tresx{&frmplot};
  Frame frmmark{&frmplot, "Marked Sites:"};
  Marks optMark{&frmmark};
  CheckBox whiteback{&frmplot, "White background"};
  Button OKbtn{this, "OK"};
  Button cancel{this, "Cancel"};

 protected:
  std::vector<NumberCheck> checks() override;
};

}  // namespace mirolen
