#pragma once

#include "mirolen/dialogs/OptionForm.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen {

/// What the option forms of the plots in perspective share: a size in two directions, a scale, and the angles
/// of the view, with a preview of the grid and one of the wafer.
class ViewOptions : public OptionForm {
 public:
  /// The angles in degrees: rotation of the grid, rotation of the wafer, inclination of both.
  std::int16_t GetAlp() const { return talph.value(); }
  std::int16_t GetPhi() const { return tphi.value(); }
  std::int16_t GetThet() const { return tthet.value(); }
  /// Sizes in millimetres.
  double GetResx() const { return tresx.value(); }
  double GetResy() const { return tresy.value(); }
  double GetPlotSccale() const { return tscale.value(); }  // contract 10

  Frame frmplot;
  Label lblresx{&frmplot, "Resolution X:"};
  NumberField tresx{&frmplot};
  Label lblresy{&frmplot, "Resolution Y:"};
  NumberField tresy{&frmplot};
  Label lblscale{&frmplot, "Scale:"};
  NumberField tscale{&frmplot};
  Frame frmgrid{this, "Grid"};
  Label lblalph{&frmgrid, "Rotation:"};
  AngleField talph{&frmgrid};
  Label lblthet{&frmgrid, "Inclination:"};
  AngleField tthet{&frmgrid, "90"};
  PictureBox Plot{&frmgrid};
  Frame frmwafer{this, "Wafer"};
  Label lblphi{&frmwafer, "Rotation:"};
  AngleField tphi{&frmwafer};
  PictureBox FNPlot{&frmwafer};

 protected:
  ViewOptions(Toolkit& toolkit, const char* plot);

  /// Sizes in millimetres and angles in degrees, as the Get members give them.
  void show_view(wafer& wafer, double resx, double resy, double scale, std::int16_t alp, std::int16_t phi,
                 std::int16_t thet);
  /// The first group's rows, which a form may add to.
  Rows place_plot_group();
  /// All groups side by side, and the buttons below.
  void place_all(Button& ok, Button& cancel);

 private:
  void show_grid();
  void show_wafer();
};

}  // namespace mirolen
