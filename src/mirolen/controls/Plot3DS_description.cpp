#include "mirolen/controls/describe_frame.h"
#include "mirolen/controls/descriptions.h"

namespace mirolen {
namespace {

using automation::Type;

automation::ClassInfo describe_Plot3DS() {
  auto tell = describe::frame<Plot3DS>("Plot3DS");
  describe::plot_caption(tell);
  describe::sigma_legend_printing(tell);
  describe::interval_colors(tell, 3);
  describe::view(tell);
  describe::surface(tell);
  describe::sigma_range(tell);

  describe::stored_wafer(tell, "3DS", Type::int16);
  describe::stored_colors(tell, "3DSInterCol", default_sigma_colors);
  tell.stored("StdResx3DS", Type::int16, 5, "XResolution")
      .stored("StdResy3DS", Type::int16, 5, "YResolution");
  describe::stored_view(tell, "3DS");
  tell.stored("StdSigRange3DS", Type::real, 0.5, "SigmaRange")
      .stored("StdD3Scale3DS", Type::int16, 40, "PlotScale");
  describe::stored_window(tell, "3DS", "Wafer");
  return tell.build();
}

}  // namespace

const automation::ClassInfo& description_of_Plot3DS() {
  static const automation::ClassInfo info = describe_Plot3DS();
  return info;
}

}  // namespace mirolen
