#include "mirolen/controls/describe_frame.h"
#include "mirolen/controls/descriptions.h"

namespace mirolen {
namespace {

using automation::Type;

automation::ClassInfo describe_Plot2D() {
  auto tell = describe::frame<Plot2D>("Plot2D");
  describe::plot_caption(tell);
  describe::legend_printing(tell);
  describe::interval_colors(tell, 10);
  describe::cells(tell);
  tell.method("PrintGridPlot", "prints the numbers of the sites, framed", {"left", "top", "width", "height"},
              [](Plot2D& c, const double& left, const double& top, const double& width,
                 const double& height) { return c.PrintGridPlot(left, top, width, height); });

  describe::stored_wafer(tell, "2D");
  describe::stored_colors(tell, "2DInterCol", default_interval_colors);  // contract 44
  // contract 47
  tell.stored("StdResx2D", Type::int16, 5, "Resolution").stored("StdMark2D", Type::int32, 0, "ShowSites");
  describe::stored_window(tell, "2D", "Wafer");
  return tell.build();
}

}  // namespace

const automation::ClassInfo& description_of_Plot2D() {
  static const automation::ClassInfo info = describe_Plot2D();
  return info;
}

}  // namespace mirolen
