#include <array>

#include "mirolen/controls/LineScan.h"
#include "mirolen/dialogs/frmPlotOpt1D.h"

namespace mirolen {

void LineScan::ask_options() {
  frmPlotOpt1D form(toolkit());
  form.SetValues(wafobj,
                 {line_mode(), angle_, rotation_x_, rotation_y_, {start_x_, end_x_}, {start_y_, end_y_}},
                 show_sites_);
  if (!confirmed(form)) return;
  take_line(form);
  ShowSites(form.GetMarkeSites());
  RedrawPlot();
}

void LineScan::take_line(const frmPlotOpt1D& form) {
  std::int16_t angle = angle_;
  double x1 = start_x_, y1 = start_y_, x2 = end_x_, y2 = end_y_;
  const bool by_points = form.GetResult(angle, x1, y1, x2, y2);
  const auto tell = [this](bool changed, const char* property) {
    if (changed) notify(property);
  };
  const bool other_mode = by_points != line_mode();
  const std::array changed{x1 != start_x_, y1 != start_y_, x2 != end_x_, y2 != end_y_};
  SetLineOrAngle(by_points ? PlotTypeEnumLineScan::vbline : PlotTypeEnumLineScan::vbAngle, angle, rotation_x_,
                 rotation_y_, x1, y1, x2, y2);
  tell(other_mode, "PlotType");
  tell(changed[0], "LineStartPointX");
  tell(changed[1], "LineStartPointY");
  tell(changed[2], "LineEndPointX");
  tell(changed[3], "LineEndPointY");
}

}  // namespace mirolen
