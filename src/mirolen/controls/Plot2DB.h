#pragma once

#include "mirolen/controls/PerspectiveFrame.h"

namespace mirolen {

/// The bar plot: the sites as bars on the inclined wafer, one colour for each interval.
class Plot2DB : public PerspectiveFrame {
 public:
  Plot2DB(Toolkit& toolkit, Container& container);

  // Footprint of a bar in millimetres.
  double BeamWidth() const { return beam_width_; }
  void BeamWidth(double v) { set_size(beam_width_, v, "BeamWidth"); }
  double BeamHeight() const { return beam_height_; }  // contract 9
  void BeamHeight(double v) { set_size(beam_height_, v, "BeamHeight"); }
  double BeamScale() const { return beam_scale_; }
  /// Height of a bar, millimetres a unit of value.
  void BeamScale(double v) { set_size(beam_scale_, v, "BeamScale"); }

  std::int16_t PrintPlot(double left, double top, double width, double height,
                         bool DrawFrame = false) override;

  void InitProperties() override;

 protected:
  std::int16_t about_type() const override { return 9; }
  void fill_in_settings() override;
  void show_plot() override { resize_handler(); }
  void ask_options() override;
  void draw_view(bool coarse) override;

 private:
  void set_size(double& size, double v, const char* property);

  double beam_width_ = 0, beam_height_ = 0, beam_scale_ = 0;
};

}  // namespace mirolen
