#include "mirolen/controls/describe_frame.h"
#include "mirolen/controls/descriptions.h"

namespace mirolen {
namespace {

using automation::Type;

automation::ClassInfo describe_Plot2DN() {
  auto tell = describe::frame<Plot2DN>("Plot2DN");
  describe::plot_caption(tell);
  describe::legend_printing(tell);
  describe::interval_colors(tell, 10);
  tell.method(
      "PrintGridNumber", "prints the numbers of the sites", {"left", "top", "width", "height", "DrawFrame"},
      [](Plot2DN& c, double left, double top, double width, double height, std::optional<bool> DrawFrame) {
        return c.PrintGridNumber(left, top, width, height, DrawFrame.value_or(false));
      });

  describe::stored_wafer(tell, "2DN");
  describe::stored_colors(tell, "2DNInterCol", default_interval_colors);
  describe::stored_window(tell, "2DN", "Wafer");
  return tell.build();
}

}  // namespace

const automation::ClassInfo& description_of_Plot2DN() {
  static const automation::ClassInfo info = describe_Plot2DN();
  return info;
}

}  // namespace mirolen
