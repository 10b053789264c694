#pragma once

#include "mirolen/dialogs/OptionForm.h"

namespace mirolen {

/// The options of the contour plot. Mesh, marks and colours are the numbers of the control's enumerations; a
/// number without an option comes back unless the user chooses one.
class frmPlotOpt2DC : public OptionForm {
 public:
  explicit frmPlotOpt2DC(Toolkit& toolkit);

  /// The interval of the curves in its unit; mesh, marks, colours.
  void SetValues(wafer& wafer, double dist, std::int16_t reso, std::int16_t mark_sites,
                 std::int16_t show_color, Color back);
  double GetDist() const { return tdist.value(); }
  std::int16_t GetReso() const { return chosen(OptQuali, reso_); }
  std::int16_t GetMarkeSites() const { return chosen(OptExcon, marks_); }  // contract 10
  std::int16_t GetShowColor() const { return chosen(Optcol, color_); }
  /// White, or the system's colour of a button's face.
  Color GetBackColor() const { return background_of(whiteback); }

  Frame frmplot{this, "2D Contour Plot"};
  Label lbldist{&frmplot, "Interval : "};
  NumberField tdist{&frmplot};
  CheckBox whiteback{&frmplot, "White background"};
  Frame frmquali{this, "Quality:"};
  ControlArray<OptionButton, 0, 3> OptQuali{&frmquali};
  Frame frmmark{this, "Marked Sites:"};
  ControlArray<OptionButton, 1, 3> OptExcon{&frmmark};
  Frame frmcol{this, "Colors:"};
  ControlArray<OptionButton, 0, 3> Optcol{&frmcol};
  Button OKbtn{this, "OK"};
  Button cancel{this, "Cancel"};

 protected:
  std::vector<NumberCheck> checks() override;

 private:
  void name_options();
  void place_groups();

  std::int16_t reso_ = 0, marks_ = 0, color_ = 0;
};

}  // namespace mirolen
