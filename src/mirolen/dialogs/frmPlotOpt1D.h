#pragma once

#include <array>

#include "mirolen/dialogs/OptionForm.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen {

/// Where a line scan cuts the wafer: by an angle about a point, which the form does not change, or by two
/// points.
struct ScanLine {
  bool by_points = false;
  std::int16_t angle = 0;
  double rotation_x = 0, rotation_y = 0;
  std::array<double, 2> x{}, y{};  // start, end
};

/// The options of the line scan.
class frmPlotOpt1D : public OptionForm {
 public:
  explicit frmPlotOpt1D(Toolkit& toolkit);

  void SetValues(wafer& wafer, const ScanLine& line, bool mark_sites);
  /// Gives back the angle, or the points in millimetres, as optline says; the others stay. @return whether it
  /// is the points.
  bool GetResult(std::int16_t& angle, double& StartX, double& StartY, double& EndX, double& EndY) const;
  bool GetMarkeSites() const { return marks_shown(optMark); }  // contract 10

  Frame frmline{this, "Line"};
  ControlArray<OptionButton, 0, 2> optline{&frmline};  // by an angle, by two points
  Label lblangle{&frmline, "Angle: "};
  AngleField AngleValue{&frmline};
  Label lblx{&frmline, "X"};
  Label lbly{&frmline, "Y"};
  /// The fields of a point, in the order in which the Tab key passes them.
  struct PointFields {
    explicit PointFields(Widget* container) : x(container), y(container) {}
    TextField x, y;
  };
  Label lblstart{&frmline, "Start point:"};
  PointFields start{&frmline};
  Label lblend{&frmline, "End point:"};
  PointFields end{&frmline};
  /// The coordinates of the start (0) and of the end (1). @throws SubscriptOutOfRange.
  TextField& resx(int i) { return point(i).x; }
  TextField& resy(int i) { return point(i).y; }

  Frame frmwafer{this, "Wafer"};
  PictureBox FNPlot{&frmwafer};
  LineShape FNLine{&FNPlot};
  Shape picplus{&frmwafer};
  Frame frmmark{this, "Marked Sites:"};
  Marks optMark{&frmmark};
  Button OKbtn{this, "OK"};
  Button cancel{this, "Cancel"};

 protected:
  std::vector<NumberCheck> checks() override { return {}; }
  bool is_good() override;

 private:
  PointFields& point(int i);
  void place_line_group();
  void place_wafer_group();
  void enable_fields();
  void watch(TextField& field, double& stored, int i);
  bool leave(TextField& field, double& stored, int i);
  bool leave_all();
  void show_wafer();

  ScanLine line_;
};

}  // namespace mirolen
