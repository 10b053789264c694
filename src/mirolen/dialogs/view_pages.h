#pragma once

#include "mirolen/dialogs/PropertyPage.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen {

/// What the pages of the surfaces share: steps, height and angles, with a preview of the grid.
class ViewPage : public PropertyPage {
 public:
  Label lblXResolution{this, "Resolution X :"};
  TextField txtXResolution{this};
  Label lblYResolution{this, "Resolution Y :"};
  TextField txtYResolution{this};
  Label lblPlotScale{this, "Scale :"};
  TextField txtPlotScale{this};
  Label lblGridInclination{this, "Inclination :"};
  TextField txtGridInclination{this};
  Label lblGridRotation{this, "Rotation :"};
  TextField txtGridRotation{this};
  Label lblWaferRotation{this, "Wafer rotation :"};
  TextField txtWaferRotation{this};
  PictureBox Plot{this};

 protected:
  ViewPage(Widget* container, const char* text);

  Rows rows, beside;

 private:
  void show_grid();
};

class Plot3DProp : public ViewPage {
 public:
  explicit Plot3DProp(Widget* container);

  Frame frmplot{this, "Plot Type:"};
  ControlArray<OptionButton, 1, 3> optPlot{&frmplot};
};

class Plot3DSProp : public ViewPage {
 public:
  explicit Plot3DSProp(Widget* container);

  Label lblSigmaRange{this, "Sigma range :"};
  TextField txtSigmaRange{this};
};

}  // namespace mirolen
