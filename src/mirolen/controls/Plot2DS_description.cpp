#include "mirolen/controls/describe_frame.h"
#include "mirolen/controls/descriptions.h"

namespace mirolen {
namespace {

using automation::Type;

automation::ClassInfo describe_Plot2DS() {
  auto tell = describe::frame<Plot2DS>("Plot2DS");
  describe::plot_caption(tell);
  describe::sigma_legend_printing(tell);
  describe::interval_colors(tell, 3);
  describe::cells(tell);
  describe::sigma_range(tell);

  describe::stored_wafer(tell, "2DS");
  describe::stored_colors(tell, "2DSInterCol", default_sigma_colors);
  tell.stored("StdResx2DS", Type::int16, 5, "Resolution")
      .stored("StdMark2DS", Type::int32, 0, "ShowSites")
      .stored("StdSigRange2DS", Type::real, 0.5, "SigmaRange");
  describe::stored_window(tell, "2DS", "Wafer");
  return tell.build();
}

}  // namespace

const automation::ClassInfo& description_of_Plot2DS() {
  static const automation::ClassInfo info = describe_Plot2DS();
  return info;
}

}  // namespace mirolen
