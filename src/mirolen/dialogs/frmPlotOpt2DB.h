#pragma once

#include "mirolen/dialogs/ViewOptions.h"

namespace mirolen {

/// The options of the bar plot: width, depth and scale of the bars, and the view.
class frmPlotOpt2DB : public ViewOptions {
 public:
  explicit frmPlotOpt2DB(Toolkit& toolkit);

  /// The size of a bar in millimetres, its height factor, and the angles in degrees.
  void SetValues(wafer& wafer, double resx, double resy, double scale, std::int16_t alp, std::int16_t phi,
                 std::int16_t thet) {
    show_view(wafer, resx, resy, scale, alp, phi, thet);
  }

  Button OKbtn{this, "OK"};
  Button cancel{this, "Cancel"};

 protected:
  std::vector<NumberCheck> checks() override;
};

}  // namespace mirolen
