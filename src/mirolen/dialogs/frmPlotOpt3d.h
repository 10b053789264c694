#pragma once

#include "mirolen/dialogs/SurfaceOptions.h"

namespace mirolen {

/// The options of the surface: the steps of its grid, its height, its look and the view.
class frmPlotOpt3d : public SurfaceOptions {
 public:
  explicit frmPlotOpt3d(Toolkit& toolkit);

  /// Steps in millimetres, angles in degrees, and the look as the number of the control's enumeration.
  void SetValues(wafer& wafer, double resx, double resy, double scale, std::int16_t alp, std::int16_t phi,
                 std::int16_t thet, std::int16_t plot_type, Color back);
  /// A look without an option comes back unless the user chooses one.
  std::int16_t GetPlotType() const { return chosen(optPlot, plot_type_); }
  /// White, or the system's colour of a button's face.
  Color GetBackColor() const { return background_of(whiteback); }

  Frame frmtype{&frmplot, "Plot Type:"};
  ControlArray<OptionButton, 1, 3> optPlot{&frmtype};
  CheckBox whiteback{&frmplot, "White background"};
  Button OKbtn{this, "OK"};
  Button cancel{this, "Cancel"};

 private:
  std::int16_t plot_type_ = 0;
};

}  // namespace mirolen
