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
  const std::string& PlotCaption() const { return Frplot.Caption; }
  void PlotCaption(const std::string& v);

  /// Prints the legend, by DrawFrame in a frame 2775 twips wide. left and top stay, but for the sigma plots,
  /// where those of an unframed legend come back in pixels. @return as `PrintWaferStatistic`.
  virtual std::int16_t PrintLegend(double& left, double& top, bool DrawFrame = false);

  /// The number of interval colours of this control: ten, or the three of a sigma plot.
  virtual int intervals() const { return 10; }
  /// The colour of interval 0 (top of the scale) and up; beyond intervals() it is black and cannot be set.
  Color IntervalColor(int interval) const;
  void IntervalColor(int interval, Color v);

  SurfaceSize smallest_size() const override;

  // The children. A host leaves them alone; tests look at them.
  Frame Frplot{this};
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
  PictureBox copypic{this};  // contract 15

 protected:
  MapFrame(Toolkit& toolkit, Container& container);

  void lay_out() override;
  void wipe_drawing() override;
  void forget_snapshot() override;

  /// Renders: the one place that does. @throws RunTimeError, with the mouse pointer put back.
  void RedrawPlot();
  /// What comes before the drawing, when all that waited has been painted.
  virtual void prepare_redraw() {}
  virtual void draw_plot() = 0;
  /// The ten-row legend, unless a control has another.
  virtual void fill_legend();
  /// The miniature in plan view, unless a control turns it.
  virtual void show_orientation();
  /// The same as at the last drawing, which may still be seen.
  virtual void repeat_orientation() { show_orientation(); }
  /// Where in `wafobj` a colour lies.
  virtual double& color_field(int interval);
  /// Gives a background to what a control has in its legend beyond the children of all.
  virtual void color_legend(Color) {}
  /// The widths of the legend column. It is as wide as its longest text, unless a control fixes it.
  virtual void size_legend();
  /// What happens to a control that cannot take its smallest size.
  virtual void give_up_size() {}
  /// Takes the background that the user has chosen for the plot, for all surfaces.
  void take_background(Color v);
  /// Makes the legend's frame higher and moves what stands under it, while the control is made.
  void make_room_in_legend(double twips);
  /// The size that printing a map takes.
  static constexpr double least_map = 750;
  /// Makes PLOTA and its snapshot, drawn already, a valid or a passing picture.
  void keep_snapshot() { RePlot.Picture = PLOTA.Image(); }

 private:
  void place_children();
  bool too_small() const;
  bool lay_out_legend();
  bool lay_out_bare();
  std::int32_t plot_side_ = 0;
};

}  // namespace mirolen
