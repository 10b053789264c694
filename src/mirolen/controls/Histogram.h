#pragma once

#include "mirolen/controls/ControlFrame.h"
#include "mirolen/widgets/ControlArray.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen {

/// The distribution of the values as bars with a Gauss curve, on any side of the chart. It has no snapshot:
/// every plot draws.
class Histogram : public ControlFrame {
 public:
  Histogram(Toolkit& toolkit, Container& container);

  PlotTyEnum PlotType() const { return plot_type_; }
  /// Where the base line lies; a value that there is not becomes vbbottom.
  void PlotType(PlotTyEnum v);
  double Resolution() const { return resolution_; }
  /// Number of classes, rounded to 16 bits; what rounds to 0 becomes 10.
  void Resolution(double v);
  Color BeamColor() const { return color_in(wafobj.ColS2); }
  void BeamColor(Color v);
  Color GaussCurveColor() const { return color_in(wafobj.ColS1); }
  void GaussCurveColor(Color v);

  using ControlFrame::BackColor;
  using ControlFrame::HideLegend;
  /// Hides the button of the options.
  void HideLegend(bool v) override;
  void BackColor(Color v) override;
  void clear() override;

  /// Sets the limits that the chart marks, in any order, and draws at once if there is a plot. The scale
  /// stays.
  /// @return true for numbers.
  bool SetPlotLimit(double LPL, double UPL) override;
  void ReleasePlotLimit() override;

  /// Places the chart, in twips, for charts side by side.
  void SetChartDim(double topC, double heightC);
  /// 0 takes the border off the frame.
  void Borderstyle(std::int16_t Bstyle);
  /// Sets control limits, for all histograms of the thread; the next plots show them.
  void ShowControlLimit(double LCLs, double UCLs);
  void ResetControlLimit();

  /// As that of all plots, but @return 0 printed; 1 nothing to print, or on; 2 the control is too small.
  std::int16_t PrintPlot(double left, double top, double width, double height,
                         bool DrawFrame = false) override;
  /// The same without a frame, over the whole area.
  std::int16_t PrintPlot_THN(double left, double top, double width, double height);

  void InitProperties() override;
  SurfaceSize smallest_size() const override { return {2100, 2100}; }

  Frame frmhist{this, "Histogram"};
  PictureBox histPic{&frmhist};
  PictureBox PLOTA{&histPic};
  ControlArray<LineShape, 0, 4> Line1{&PLOTA};
  LineShape Line2{&histPic};
  LineShape Line3{&histPic};
  ControlArray<Label, 0, 2> lblX{&histPic};
  Button Command1{this, "Plot- Options"};
  PictureBox copypic{this};  // contract 15

 protected:
  std::int16_t about_type() const override { return 7; }
  void fill_in_settings() override {}
  void show_plot() override;
  void ask_options() override;
  void lay_out() override;
  void wipe_drawing() override;
  void forget_snapshot() override {}
  /// Its limits are marks: the scale is that of the data, also of the next.
  bool keeps_limits() const override { return false; }

 private:
  void place_chart();
  void place_lines();
  void RedrawPlot();
  template <class Print>
  std::int16_t print_chart(Place place, Print print) const;
  void set_limits(bool set, double low, double high);

  PlotTyEnum plot_type_ = PlotTyEnum::vbbottom;
  std::int16_t resolution_ = 10;
  double ChartTop = 0, ChartHeight = 0;
};

}  // namespace mirolen
