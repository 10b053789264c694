#include "mirolen/controls/describe_frame.h"
#include "mirolen/controls/descriptions.h"

namespace mirolen {
namespace {

using automation::Type;

automation::ClassInfo describe_Plot2DC() {
  auto tell = describe::frame<Plot2DC>("Plot2DC");
  describe::plot_caption(tell);
  describe::legend_printing(tell);
  describe::interval_colors(tell, 10);
  tell.enumeration({"ExconEnum", {{"Exact", 1}, {"Converted", 2}, {"None", 3}}})
      .enumeration({"ResoEnum", {{"LowQuality", 0}, {"HighQuality", 1}, {"Automatic", 2}}})
      .enumeration({"DrawColEnum", {{"BWhitePlot", 0}, {"Three_ColorPlot", 1}, {"Ten_ColorPlot", 2}}})
      .property("Interval", "spacing of the curves", &Plot2DC::Interval, &Plot2DC::Interval)
      .property("IntervalInPercent", "0: the interval is in percent; else in the unit",
                &Plot2DC::IntervalInPercent, &Plot2DC::IntervalInPercent)
      .property("MeasurementUnit", "text of the unit", &Plot2DC::MeasurementUnit, &Plot2DC::MeasurementUnit)
      .property("marksites", "what is marked", &Plot2DC::marksites, &Plot2DC::marksites)
      .from("ExconEnum")
      .property("Resolution", "fineness of the mesh", &Plot2DC::Resolution, &Plot2DC::Resolution)
      .from("ResoEnum")
      .property("PlotColored", "colours of the curves", &Plot2DC::PlotColored, &Plot2DC::PlotColored)
      .from("DrawColEnum")
      .property("ScaleType", "for the host", &Plot2DC::ScaleType, &Plot2DC::ScaleType)
      .property("MeanCurveColor", "colour of the curve at the mean", &Plot2DC::MeanCurveColor,
                &Plot2DC::MeanCurveColor)
      .property("UpperCurveColor", "colour of the curves above it", &Plot2DC::UpperCurveColor,
                &Plot2DC::UpperCurveColor)
      .property("LowerCurveColor", "colour of the curves below it", &Plot2DC::LowerCurveColor,
                &Plot2DC::LowerCurveColor);

  tell.method(
      "PrintPlot_THN", "prints the compact form", {"left", "top", "width", "height", "DrawFrame"},
      [](Plot2DC& c, double left, double top, double width, double height, std::optional<bool> DrawFrame) {
        return c.PrintPlot_THN(left, top, width, height, DrawFrame.value_or(false));
      });

  describe::stored_wafer(tell, "2DC");
  tell.stored("2DCMeanCurveCol", Type::int32, static_cast<std::int32_t>(default_sigma_colors[1]),
              "MeanCurveColor")
      .stored("2DCUpperCurveCol", Type::int32, static_cast<std::int32_t>(default_sigma_colors[0]),
              "UpperCurveColor")
      .stored("2DCLowerCurveCol", Type::int32, static_cast<std::int32_t>(default_sigma_colors[2]),
              "LowerCurveColor");
  describe::stored_colors(tell, "2DCInterCol", default_interval_colors);
  tell.stored("StdReso", Type::int16, 0, "Resolution")  // contract 45
      .stored("StdExCon", Type::int16, 1, "marksites")
      .stored("StdDist", Type::int16, 1, "Interval")  // contract 47
      .stored("StdColor", Type::int16, 1, "PlotColored")
      .stored("StdDistPerecent", Type::int16, 0, "IntervalInPercent");  // contract 46
  describe::stored_window(tell, "2DC", "Wafer");
  return tell.build();
}

}  // namespace

const automation::ClassInfo& description_of_Plot2DC() {
  static const automation::ClassInfo info = describe_Plot2DC();
  return info;
}

}  // namespace mirolen
