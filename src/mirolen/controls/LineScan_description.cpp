#include "mirolen/controls/describe_frame.h"
#include "mirolen/controls/descriptions.h"

namespace mirolen {
namespace {

using automation::Type;

automation::ClassInfo describe_LineScan() {
  auto tell = describe::frame<LineScan>("LineScan");
  describe::plot_caption(tell);
  tell.enumeration({"PlotTypeEnumLineScan", {{"vbAngle", 1}, {"vbline", 2}}})
      .property("PlotType", "line by an angle or by two points", &LineScan::PlotType, &LineScan::PlotType)
      .from("PlotTypeEnumLineScan")
      .property("angle", "degrees, 0 to 360", &LineScan::angle, &LineScan::angle)
      .property("RotationPointX", "point of the angle, mm", &LineScan::RotationPointX,
                &LineScan::RotationPointX)
      .property("RotationPointY", "point of the angle, mm", &LineScan::RotationPointY,
                &LineScan::RotationPointY)
      .property("LineStartPointX", "first point, mm", &LineScan::LineStartPointX, &LineScan::LineStartPointX)
      .property("LineStartPointY", "first point, mm", &LineScan::LineStartPointY, &LineScan::LineStartPointY)
      .property("LineEndPointX", "second point, mm", &LineScan::LineEndPointX, &LineScan::LineEndPointX)
      .property("LineEndPointY", "second point, mm", &LineScan::LineEndPointY, &LineScan::LineEndPointY)
      .property("ShowSites", "marks the sites on the line", &LineScan::ShowSites, &LineScan::ShowSites)
      .method("SetLineOrAngle", "takes mode, angle and points",
              {"PlotType", "angle", "AngleX", "AngleY", "StartX", "StartY", "EndX", "EndY"},
              [](LineScan& c, const PlotTypeEnumLineScan& PlotType, const std::int16_t& angle,
                 const double& AngleX, const double& AngleY, const double& StartX, const double& StartY,
                 const double& EndX, const double& EndY) {
                c.SetLineOrAngle(PlotType, angle, AngleX, AngleY, StartX, StartY, EndX, EndY);
              })
      .method("GetLineOrAngle", "gives the line of the mode in force; 0",
              {"angle", "StartX", "StartY", "EndX", "EndY"},
              [](LineScan& c, std::int16_t& angle, double& StartX, double& StartY, double& EndX,
                 double& EndY) { return c.GetLineOrAngle(angle, StartX, StartY, EndX, EndY); });

  describe::stored_wafer(tell, "");  // contract 45
  // Both end keys hold the x of the end: the second one is what a load leaves there. (contract 43)
  tell.stored("RotAngle", Type::int16, 0, "angle")
      .stored("1DPlotType", Type::int16, 1, "PlotType")
      .stored("1DRotationX", Type::int16, 0, "RotationPointX")
      .stored("1DRotationY", Type::int16, 0, "RotationPointY")
      .stored("1DLineStartX", Type::int16, 0, "LineStartPointX")
      .stored("1DLineStartY", Type::int16, 0, "LineStartPointY")
      .stored("1DLineEndX", Type::int16, 0, "LineEndPointX")
      .stored("1DLineEndY", Type::int16, 0, "LineEndPointX")
      .stored("1DMark", Type::int32, 0, "ShowSites");
  describe::stored_window(tell, "1D", "");
  return tell.build();
}

}  // namespace

const automation::ClassInfo& description_of_LineScan() {
  static const automation::ClassInfo info = describe_LineScan();
  return info;
}

}  // namespace mirolen
