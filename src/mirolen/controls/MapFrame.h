#pragma once

#include "mirolen/controls/ControlFrame.h"
#include "mirolen/widgets/ControlArray.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen {

/// What the controls share that show a plot of the whole wafer: the plot's frame with its picture and its
/// snapshot, and the column at the right with the legend, the orientation mark and the button of the options.
///
/// While the snapshot is valid, a change of size stretches it and draws nothing.
class MapFrame : public ControlFrame {
 public:
  using ControlFrame::BackColor;
  using ControlFrame::HideLegend;

  void clear() override;
  void HideLegend(bool v) override;
  void BackColor(Color v) override;
  std::string PlotCaption() const { return Frplot.Caption; }
  void PlotCaption(const std::string& v);

  // The children. A host leaves them alone; tests look at them.
  Frame Frplot{this, " Wafer "};
  ImageBox RePlot{&Frplot};  // below PLOTA, and seen when that is hidden
  PictureBox PLOTA{&Frplot};
  Frame frmove{this};
  Frame Frame1{&frmove};
  Frame frleg{&Frame1, "Legend"};
  PictureBox legende{&frleg};
  ControlArray<Shape, 1, 10> scalCol{&legende};
  ControlArray<Label, 1, 10> ScaleValue{&legende};
  Label FNLabel{&frmove, "Flat"};
  PictureBox FNPic{&frmove};
  Button Command1{&frmove, "Plot- Options"};
  PictureBox copypic{this};

 protected:
  MapFrame(Toolkit& toolkit, Container& container);

  void lay_out() override;
  void wipe_drawing() override;
  void forget_snapshot() override;

  /// Renders: the one place that does. @throws RunTimeError, with the mouse pointer put back.
  void RedrawPlot();
  /// What comes before the drawing, while the host's events have been handled.
  virtual void prepare_redraw() = 0;
  virtual void draw_plot() = 0;
  virtual void fill_legend() = 0;
  virtual void show_orientation() = 0;

 private:
  void place_children();
  bool lay_out_legend();
  bool lay_out_bare();
  double plot_side_ = 0;
};

}  // namespace mirolen
