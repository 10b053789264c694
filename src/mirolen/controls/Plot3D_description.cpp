#include "mirolen/controls/describe_frame.h"
#include "mirolen/controls/descriptions.h"

namespace mirolen {
namespace {

using automation::Type;

automation::ClassInfo describe_Plot3D() {
  auto tell = describe::frame<Plot3D>("Plot3D");
  describe::plot_caption(tell);
  describe::legend_printing(tell);
  describe::interval_colors(tell, 10);
  describe::view(tell);
  describe::surface(tell);
  tell.enumeration({"PlotTypeEnum", {{"PolyEdge", 1}, {"HiddenWireFrame", 2}, {"WireFrame", 3}}})
      .property("PlotType", "look of the surface", &Plot3D::PlotType, &Plot3D::PlotType)
      .from("PlotTypeEnum");

  describe::stored_wafer(tell, "3D", Type::int16);
  describe::stored_colors(tell, "2DInterCol", default_interval_colors);  // contract 44
  tell.stored("StdResx3D", Type::int16, 5, "XResolution").stored("StdResy3D", Type::int16, 5, "YResolution");
  describe::stored_view(tell, "3D");
  tell.stored("StdD3PlotType", Type::int32, 1, "PlotType")
      .stored("StdD3Scale3D", Type::int16, 40, "PlotScale");
  describe::stored_window(tell, "3D", "Wafer");
  return tell.build();
}

}  // namespace

const automation::ClassInfo& description_of_Plot3D() {
  static const automation::ClassInfo info = describe_Plot3D();
  return info;
}

}  // namespace mirolen
