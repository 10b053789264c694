#pragma once

#include "mirolen/controls/MapFrame.h"

namespace mirolen {

/// The contour plot: curves of equal value, one at the mean and others at an interval above and below it.
class Plot2DC : public MapFrame {
 public:
  Plot2DC(Toolkit& toolkit, Container& container);

  double Interval() const { return interval_; }
  /// Spacing of the curves; 0 and below become 1.
  void Interval(double v);
  std::int16_t IntervalInPercent() const { return interval_in_percent_; }
  /// 0: the interval is in percent. Any other value: it is in the unit of the measurement.
  void IntervalInPercent(std::int16_t v);
  const std::string& MeasurementUnit() const { return measurement_unit_; }
  /// Text of the unit beside the interval.
  void MeasurementUnit(const std::string& v);
  // A number that has no name in its enumeration is kept, if 16 bits hold it.
  ExconEnum marksites() const { return marksites_; }
  void marksites(ExconEnum v);
  ResoEnum Resolution() const { return resolution_; }
  void Resolution(ResoEnum v);
  DrawColEnum PlotColored() const { return plot_colored_; }
  /// Colours of the curves; the legend has rows for the ten colours alone.
  void PlotColored(DrawColEnum v);
  std::int16_t ScaleType() const { return scale_type_; }
  /// For the host.
  void ScaleType(std::int16_t v);  // contract 12

  Color MeanCurveColor() const { return color_in(wafobj.ColS2); }
  void MeanCurveColor(Color v);
  Color UpperCurveColor() const { return color_in(wafobj.ColS1); }
  void UpperCurveColor(Color v);
  Color LowerCurveColor() const { return color_in(wafobj.ColS3); }
  void LowerCurveColor(Color v);

  /// The spacing in percent of the mean, or of what stands in for a mean of 0, that `Interval` comes to; 0
  /// where that is beyond a Double.
  double distance() const;

  std::int16_t PrintPlot(double left, double top, double width, double height,
                         bool DrawFrame = false) override;
  /// Prints the compact form, without the orientation mark. @return as `PrintPlot`.
  std::int16_t PrintPlot_THN(double left, double top, double width, double height, bool DrawFrame = false);

  void InitProperties() override;

  // The legend without rows, and the interval in each of the two legends.
  Frame frleg0{&Frame1, "Legend"};
  Label lbldist0{&frleg0};
  Frame frInt{&frleg};
  Label Label8{&frInt, "Interval :"};
  Label lbldist{&frInt};

 protected:
  void ask_options() override;
  std::int16_t about_type() const override { return 5; }
  void fill_in_settings() override;
  void show_plot() override { resize_handler(); }
  void draw_plot() override;
  void color_legend(Color v) override;
  void size_legend() override {}
  void give_up_size() override { raise_size({3420, 1335}); }

 private:
  void place_legend();
  void show_interval();
  double drawn_distance() const;

  double interval_ = 0;
  std::int16_t interval_in_percent_ = 0;
  std::string measurement_unit_;
  ExconEnum marksites_{};
  ResoEnum resolution_{};
  DrawColEnum plot_colored_{};
  std::int16_t scale_type_ = 0;
};

}  // namespace mirolen
