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
  const bool line_before = line_mode();
  const std::array before{start_x_, start_y_, end_x_, end_y_};
  SetLineOrAngle(by_points ? PlotTypeEnumLineScan::vbline : PlotTypeEnumLineScan::vbAngle, angle, rotation_x_,
                 rotation_y_, x1, y1, x2, y2);
  const auto tell = [this](bool changed, const char* property) {
    if (changed) notify(property);
  };
  const std::array now{start_x_, start_y_, end_x_, end_y_};
  tell(line_mode() != line_before, "PlotType");
  tell(now[0] != before[0], "LineStartPointX");
  tell(now[1] != before[1], "LineStartPointY");
  tell(now[2] != before[2], "LineEndPointX");
  tell(now[3] != before[3], "LineEndPointY");
}

}  // namespace mirolen
