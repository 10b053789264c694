#include "mirolen/controls/describe_frame.h"
#include "mirolen/controls/descriptions.h"

namespace mirolen {
namespace {

using automation::Type;

automation::ClassInfo describe_Histogram() {
  auto tell = describe::frame<Histogram>("Histogram");
  tell.enumeration({"PlotTyEnum", {{"vbbottom", 1}, {"vbTop", 2}, {"vbLeft", 3}, {"vbRight", 4}}})
      .property("PlotType", "where the base line lies", &Histogram::PlotType, &Histogram::PlotType)
      .from("PlotTyEnum")
      .property("Resolution", "number of classes", &Histogram::Resolution, &Histogram::Resolution)
      .property("BeamColor", "colour of the bars", &Histogram::BeamColor, &Histogram::BeamColor)
      .property("GaussCurveColor", "colour of the curve", &Histogram::GaussCurveColor,
                &Histogram::GaussCurveColor)
      .method("SetChartDim", "places the chart, in twips", {"topC", "heightC"},
              [](Histogram& c, const double& topC, const double& heightC) { c.SetChartDim(topC, heightC); })
      .method("Borderstyle", "0 takes the border off", {"Bstyle"},
              [](Histogram& c, const std::int16_t& Bstyle) { c.Borderstyle(Bstyle); })
      .method("ShowControlLimit", "sets the control limits of all histograms", {"LCLs", "UCLs"},
              [](Histogram& c, const double& LCLs, const double& UCLs) { c.ShowControlLimit(LCLs, UCLs); })
      .method("ResetControlLimit", "takes the control limits away", {},
              [](Histogram& c) { c.ResetControlLimit(); });

  tell.method("PrintPlot_THN", "prints the chart over the whole area", {"left", "top", "width", "height"},
              [](Histogram& c, double left, double top, double width, double height) {
                return c.PrintPlot_THN(left, top, width, height);
              });

  describe::stored_wafer(tell, "");  // contract 45
  tell.stored("StdBeamColor", Type::int32, static_cast<std::int32_t>(QBColor(2)), "BeamColor")
      .stored("StdGaussCurveColor", Type::int32, static_cast<std::int32_t>(QBColor(4)), "GaussCurveColor")
      .stored("StdStatResol", Type::int16, 10, "Resolution")
      .stored("StdPlotType", Type::int16, 1, "PlotType");
  describe::stored_window(tell, "", std::nullopt);
  return tell.build();
}

}  // namespace

const automation::ClassInfo& description_of_Histogram() {
  static const automation::ClassInfo info = describe_Histogram();
  return info;
}

}  // namespace mirolen
