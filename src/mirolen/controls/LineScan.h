#pragma once

#include <vector>

#include "mirolen/controls/ControlFrame.h"
#include "mirolen/widgets/ControlArray.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen {

class frmPlotOpt1D;

/// The marks of the sites on the curve of a line scan.
class MarkArray : public SiteMarks {
 public:
  explicit MarkArray(Widget* container) : container_(container) { add(); }

  int count() const override { return static_cast<int>(marks_.size()); }
  void add() override;
  void hide_all() override;
  void show(int mark, double left, double top, const std::string& tool_tip) override;
  const Shape& operator()(int mark) const { return *marks_.at(static_cast<std::size_t>(mark)); }

 private:
  Widget* container_;
  std::vector<std::unique_ptr<Shape>> marks_;
};

/// The cross-section of the wafer along a line, told by an angle about a point or by two points.
class LineScan : public ControlFrame {
 public:
  LineScan(Toolkit& toolkit, Container& container);

  PlotTypeEnumLineScan PlotType() const { return plot_type_; }
  /// Another number than those of the modes is kept, if 16 bits hold it, and counts as vbAngle.
  void PlotType(PlotTypeEnumLineScan v);
  std::int16_t angle() const { return angle_; }
  /// Degrees, 0 to 360 (which is 0); another value is refused with a message. Draws at once.
  void angle(std::int16_t v);

  // Millimetres, rounded to 16 bits; the next plot shows them.
  std::int16_t RotationPointX() const { return to_int16(rotation_x_); }
  void RotationPointX(std::int16_t v) { set_point(rotation_x_, v, "RotationPointX"); }
  std::int16_t RotationPointY() const { return to_int16(rotation_y_); }
  void RotationPointY(std::int16_t v) { set_point(rotation_y_, v, "RotationPointY"); }
  std::int16_t LineStartPointX() const { return to_int16(start_x_); }
  void LineStartPointX(std::int16_t v) { set_point(start_x_, v, "LineStartPointX"); }
  std::int16_t LineStartPointY() const { return to_int16(start_y_); }
  void LineStartPointY(std::int16_t v) { set_point(start_y_, v, "LineStartPointY"); }
  std::int16_t LineEndPointX() const { return to_int16(end_x_); }
  void LineEndPointX(std::int16_t v) { set_point(end_x_, v, "LineEndPointX"); }
  std::int16_t LineEndPointY() const { return to_int16(end_y_); }
  void LineEndPointY(std::int16_t v) { set_point(end_y_, v, "LineEndPointY"); }

  bool ShowSites() const { return show_sites_; }
  /// Marks the sites that lie on the line.
  void ShowSites(bool v);

  /// Takes the mode and, for the angle, angle and point, for the line its two points; all of them within 16
  /// bits, also those that the mode does not take.
  void SetLineOrAngle(PlotTypeEnumLineScan PlotType, std::int16_t angle, double AngleX, double AngleY,
                      double StartX, double StartY, double EndX, double EndY);
  /// Gives what `SetLineOrAngle` takes, in the mode in force; the point of the angle as the start. @return 0.
  std::int16_t GetLineOrAngle(std::int16_t& angle, double& StartX, double& StartY, double& EndX,
                              double& EndY) const;

  using ControlFrame::BackColor;
  using ControlFrame::HideLegend;
  /// Hides the strip with the panels and the button.
  void HideLegend(bool v) override;
  void BackColor(Color v) override;
  void clear() override;
  const std::string& PlotCaption() const { return PlotFrame.Caption; }
  void PlotCaption(const std::string& v);

  std::int16_t PrintPlot(double left, double top, double width, double height,
                         bool DrawFrame = false) override;

  void InitProperties() override;
  SurfaceSize smallest_size() const override { return {4000, LegendShown ? 2850. : 1770.}; }

  Frame PlotFrame{this};
  ControlArray<Label, 0, 5> lblX{&PlotFrame};
  ControlArray<Label, 0, 5> lblY{&PlotFrame};
  Shape plus{&PlotFrame};  // the picture of a mark, never shown itself
  PictureBox PLOTA{&PlotFrame};
  MarkArray picgrid{&PLOTA};
  ControlArray<Frame, 0, 2> FNLabel{this};
  PictureBox FNPic{&FNLabel(0)};
  LineShape FNLine{&FNPic};
  Shape picplus{&FNLabel(0)};
  TextField AngleValue{&FNLabel(0)};
  UpDown UpDown1{&FNLabel(0)};
  PictureBox Picture1{&FNLabel(1)};
  LineShape Line1{&Picture1};
  Shape Picture2{&FNLabel(1)};
  Button btnoptions{this, "Plot- Options"};

 protected:
  std::int16_t about_type() const override { return 6; }
  void fill_in_settings() override {}
  void show_plot() override;
  void ask_options() override;
  /// A form without a scale mode does not end the handler here.
  void set_scale_of_host() override {
    quietly([this] { ControlFrame::set_scale_of_host(); });
  }
  void lay_out() override;
  void wipe_drawing() override;
  void forget_snapshot() override {}

 private:
  void place_children();
  void set_point(double& coordinate, std::int16_t v, const char* property);
  void show_panels();
  void RedrawPlot();
  void show_outline();
  void redraw_angle();
  void redraw_line();
  void draw_by_angle();
  void draw_curve(bool by_angle);
  void write_labels();
  void tell_angle();
  void angle_text_changed();
  void turn_spinner();
  void angle_key(int key);
  double left_of_chart();
  void lay_out_chart();
  void place_labels();
  void take_line(const frmPlotOpt1D& form);
  bool line_mode() const { return plot_type_ == PlotTypeEnumLineScan::vbline; }
  /// The mode as the renderers take it.
  std::int16_t mode() const {
    return static_cast<std::int16_t>(line_mode() ? PlotTypeEnumLineScan::vbline
                                                 : PlotTypeEnumLineScan::vbAngle);
  }

  PlotTypeEnumLineScan plot_type_ = PlotTypeEnumLineScan::vbAngle;
  std::int16_t angle_ = 0, told_angle_ = 0;
  double rotation_x_ = 0, rotation_y_ = 0;
  double start_x_ = 0, start_y_ = 0, end_x_ = 0, end_y_ = 0;
  bool show_sites_ = false;
  bool emptied_ = false;
};

}  // namespace mirolen
