#pragma once

#include "mirolen/dialogs/PropertyPage.h"

namespace mirolen {

/// The line scan's angle.
class LineScanAngleProp : public PropertyPage {
 public:
  explicit LineScanAngleProp(Widget* container);

  Label lblAngle{this, "Angle :"};
  TextField txtAngle{this};
};

/// The cells and marks of a map.
class Plot2DProp : public PropertyPage {
 public:
  explicit Plot2DProp(Widget* container);

  Label lblResolution{this, "Resolution :"};
  TextField txtResolution{this};
  CheckBox chkShowSites{this, "Show sites"};
};

/// The same and the range of a sigma map.
class Plot2DSProp : public PropertyPage {
 public:
  explicit Plot2DSProp(Widget* container);

  Label lblResolution{this, "Resolution :"};
  TextField txtResolution{this};
  Label lblSigmaRange{this, "Sigma range :"};
  TextField txtSigmaRange{this};
  CheckBox chkShowSites{this, "Show sites"};
};

/// The curves of a contour plot. The options stand under the numbers of their enumerations.
class Plot2DCProp : public PropertyPage {
 public:
  explicit Plot2DCProp(Widget* container);

  Label lblInterval{this, "Interval :"};
  TextField txtInterval{this};
  CheckBox chkPercent{this, "Interval in percent"};  ///< Ticked for an IntervalInPercent of 0.
  Frame frmquali{this, "Quality:"};
  ControlArray<OptionButton, 0, 3> OptQuali{&frmquali};
  Frame frmmark{this, "Marked Sites:"};
  ControlArray<OptionButton, 1, 3> OptExcon{&frmmark};
  Frame frmcol{this, "Colors:"};
  ControlArray<OptionButton, 0, 3> Optcol{&frmcol};
};

/// The classes and the orientation of a histogram.
class HistogrammProp : public PropertyPage {  // contract 11
 public:
  explicit HistogrammProp(Widget* container);

  Label lblResolution{this, "Resolution :"};
  TextField txtResolution{this};
  Frame frmplot{this, "Base Line:"};
  ControlArray<OptionButton, 1, 4> optPlot{&frmplot};
};

}  // namespace mirolen
