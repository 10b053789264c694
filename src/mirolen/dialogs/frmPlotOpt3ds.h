#pragma once

#include "mirolen/dialogs/SurfaceOptions.h"

namespace mirolen {

/// The options of the sigma surface: as those of the surface, with the range in standard deviations in place
/// of the look.
class frmPlotOpt3ds : public SurfaceOptions {
 public:
  explicit frmPlotOpt3ds(Toolkit& toolkit);

  /// Steps in millimetres, angles in degrees, the range in standard deviations.
  void SetValues(wafer& wafer, double resx, double resy, double scale, std::int16_t alp, std::int16_t phi,
                 std::int16_t thet, double sigma_range, Color back);
  double GetSigRange() const { return SSigma.value(); }
  /// White, or the system's colour of a button's face.
  Color GetBackColor() const { return background_of(whiteback); }

  Label lblsigma{&frmplot, "Sigma Range:"};
  NumberField SSigma{&frmplot};
  CheckBox whiteback{&frmplot, "White background"};
  Button OKbtn{this, "OK"};
  Button cancel{this, "Cancel"};

 protected:
  std::vector<NumberCheck> checks() override;
};

}  // namespace mirolen
