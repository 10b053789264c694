#include "mirolen/controls/describe_frame.h"
#include "mirolen/controls/descriptions.h"

namespace mirolen {
namespace {

using automation::ObjectReference;
using automation::Type;

automation::ClassInfo describe_Plot2D() {
  automation::ClassBuilder<Plot2D> tell("Plot2D");
  tell.enumeration({"Sites", {{"ShowSite", -1}, {"HideSite", 0}}});
  describe::data(tell);
  describe::plotting(tell);
  describe::wafer_and_window(tell);
  describe::plot_caption(tell);
  describe::ten_interval_colors(tell);
  describe::events(tell);
  tell.property(
          "Resolution", "edge of a plot cell, mm; at most a quarter of the test diameter",
          [](const Plot2D& c) { return c.Resolution(); }, [](Plot2D& c, double v) { c.Resolution(v); })
      .property(
          "ShowSites", "marks the sites", [](const Plot2D& c) { return c.ShowSites(); },
          [](Plot2D& c, Sites v) { c.ShowSites(v); })
      .from("Sites");

  tell.stored("2DBackColor", Type::int32, std::nullopt, "BackColor")
      .stored("2DFLAT", Type::int32, 1, "WaferStyle")
      .stored("2DTESTDM", Type::int16, 194, "TestDiameter")
      .stored("2DWAFERDM", Type::int16, 200, "WaferDiameter");
  describe::stored_ten_colors(tell, "2DInterCol");
  tell.stored("StdResx2D", Type::int16, 5, "Resolution")
      .stored("StdMark2D", Type::int32, 0, "ShowSites")
      .stored("2DLegend", Type::boolean, false, "HideLegend")
      .stored("2DCaption", Type::text, std::string("Wafer"), "PlotCaption")
      .stored("2DMousePointer", Type::int16, 0, "MousePointer")
      .stored("2DMouseIcon", Type::object, ObjectReference{nullptr, typeid(Image)}, "MouseIcon");
  return tell.build();
}

}  // namespace

const automation::ClassInfo& description_of_Plot2D() {
  static const automation::ClassInfo info = describe_Plot2D();
  return info;
}

}  // namespace mirolen
