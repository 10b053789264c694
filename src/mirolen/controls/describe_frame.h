#pragma once

#include <span>

#include "mirolen/automation/ClassBuilder.h"
#include "mirolen/controls/ControlFrame.h"
#include "mirolen/core/palette.h"

// The parts of a control's description that several controls share. Each control's own file puts them
// together.
namespace mirolen::describe {

using automation::ClassBuilder;
using automation::ObjectReference;
using automation::Type;

template <class Control>
void data(ClassBuilder<Control>& tell) {
  tell.method(
          "SetWaferData", "loads sites from arrays of the lower bound 1, in mm, mm and the unit of the value",
          {"x", "y", "Z"},
          [](Control& c, const Array& x, const Array& y, const Array& Z) { return c.SetWaferData(x, y, Z); })
      .method("SetDataFile", "loads sites from a binary file", {"datafile", "nops"},
              [](Control& c, const std::string& datafile, const double& nops) {
                return c.SetDataFile(datafile, nops);
              })
      .method("GetWaferData", "fills the arrays with the sites; their number", {"x", "y", "Z"},
              [](Control& c, Array& x, Array& y, Array& Z) { return c.GetWaferData(x, y, Z); })
      .method("Interpolation", "the value at a point, in mm", {"x", "y"},
              [](Control& c, const double& x, const double& y) { return c.Interpolation(x, y); })
      .read_only("mean", "mean of the values", &Control::mean)  // contract 5
      .read_only("Maximum", "largest value", &Control::Maximum)
      .read_only("Minimum", "smallest value", &Control::Minimum)
      .read_only("range", "largest minus smallest value", &Control::range)
      .read_only("HiLo", "|max - min| / |max + min| in percent", &Control::HiLo)
      .read_only("StdDev", "sample deviation", &Control::StdDev)
      .read_only("StdDevPercent", "deviation in percent of the mean, 0 unless that is positive",
                 &Control::StdDevPercent);
}

template <class Control>
void plotting(ClassBuilder<Control>& tell) {
  tell.method("Plot", "draws; 0, or 1 without data", {}, [](Control& c) { return c.Plot(); })
      .method("ShowPlotOption", "lets the user change how the plot is drawn", {},
              [](Control& c) { c.ShowPlotOption(); })
      .method("clear", "erases the drawing, keeps the data", {}, [](Control& c) { c.clear(); })
      .method("SetPlotNotVaild", "makes the next plot draw afresh", {},  // contract 1
              [](Control& c) { c.SetPlotNotVaild(); })
      .method("SetPlotLimit", "sets the ends of the scale; True if taken", {"LPL", "UPL"},
              [](Control& c, const double& LPL, const double& UPL) { return c.SetPlotLimit(LPL, UPL); })
      .method("ReleasePlotLimit", "puts the scale back to the data", {},
              [](Control& c) { c.ReleasePlotLimit(); });
}

template <class Control>
void about(ClassBuilder<Control>& tell) {
  tell.method("About", "shows the About box", {}, [](Control& c) { c.About(); });
}

template <class Control>
void wafer_and_window(ClassBuilder<Control>& tell) {
  tell.enumeration({"WaferSt", {{"Flat", 2}, {"Notch", 1}}})
      .property("WaferDiameter", "mm; setting it empties the store", &Control::WaferDiameter,
                &Control::WaferDiameter)
      .property("TestDiameter", "mm; the circle in which sites count", &Control::TestDiameter,
                &Control::TestDiameter)
      .property("WaferStyle", "orientation mark", &Control::WaferStyle, &Control::WaferStyle)
      .from("WaferSt")
      .property("HideLegend", "hides the legend", &Control::HideLegend, &Control::HideLegend)
      .property("BackColor", "background", &Control::BackColor, &Control::BackColor)
      .read_only("hdc", "device context of the control", &Control::hdc)
      .read_only("hwnd", "window of the control", &Control::hwnd)
      .property("MousePointer", "shape of the mouse pointer", &Control::MousePointer, &Control::MousePointer)
      .object(
          "MouseIcon", "picture of the mouse pointer", [](const Control& c) { return c.MouseIcon(); },
          [](Control& c, std::shared_ptr<const Image> v) { c.MouseIcon(std::move(v)); })
      .object(
          "PrinterObj", "what the print members draw on", [](const Control& c) { return c.PrinterObj; },
          [](Control& c, std::shared_ptr<PlotCanvas> v) { c.PrinterObj = std::move(v); });
}

template <class Control>
void printing(ClassBuilder<Control>& tell) {
  tell.method("PrintPlot", "prints the plot into an area, in twips of the page",
              {"left", "top", "width", "height", "DrawFrame"},
              [](Control& c, double left, double top, double width, double height,
                 std::optional<bool> DrawFrame) {
                return c.PrintPlot(left, top, width, height, DrawFrame.value_or(false));
              })
      .method("PrintWaferStatistic", "prints the statistics; keeps the unit", {"left", "top", "units"},
              [](Control& c, const double& left, const double& top, const std::string& units) {
                return c.PrintWaferStatistic(left, top, units);
              })
      .method("PrintWaferSize", "prints the size of the wafer", {"left", "top"},
              [](Control& c, const double& left, const double& top) { return c.PrintWaferSize(left, top); });
}

template <class Control>
void legend_printing(ClassBuilder<Control>& tell) {
  tell.method("PrintLegend", "prints the legend", {"left", "top", "DrawFrame"},
              [](Control& c, double& left, double& top, std::optional<bool> DrawFrame) {
                return c.PrintLegend(left, top, DrawFrame.value_or(false));
              });
}

/// The sigma plots print theirs in two ways.
template <class Control>
void sigma_legend_printing(ClassBuilder<Control>& tell) {
  legend_printing(tell);
  tell.method("PrintLegend_No_Frame", "prints the legend; left and top come back in pixels", {"left", "top"},
              [](Control& c, double& left, double& top) { return c.PrintLegend_No_Frame(left, top); });
}

template <class Control>
void plot_caption(ClassBuilder<Control>& tell) {
  tell.property("PlotCaption", "caption of the plot's frame", &Control::PlotCaption, &Control::PlotCaption);
}

template <class Control>
void interval_colors(ClassBuilder<Control>& tell, int count) {
  for (int i = 0; i < count; ++i)
    tell.property(
        "IntervalColor" + std::to_string(i), "colour of an interval, 0 at the top of the scale",
        [i](const Control& c) { return c.IntervalColor(i); },
        [i](Control& c, Color v) { c.IntervalColor(i, v); });
}

template <class Control>
void cells(ClassBuilder<Control>& tell) {
  tell.enumeration({"Sites", {{"ShowSite", -1}, {"HideSite", 0}}})
      .property("Resolution", "edge of a plot cell, mm; at most a quarter of the test diameter",
                &Control::Resolution, &Control::Resolution)
      .property("ShowSites", "marks the sites", &Control::ShowSites, &Control::ShowSites)
      .from("Sites");
}

template <class Control>
void sigma_range(ClassBuilder<Control>& tell) {
  tell.property("SigmaRange", "half of the range round the mean, in deviations", &Control::SigmaRange,
                &Control::SigmaRange);
}

template <class Control>
void view(ClassBuilder<Control>& tell) {
  tell.field("EnableRotation", "read by nothing: dragging always turns the plot", &Control::EnableRotation)
      .property("WaferRotation", "degrees, 0 to 359", &Control::WaferRotation, &Control::WaferRotation)
      .property("GridRotation", "degrees, 0 to 91", &Control::GridRotation, &Control::GridRotation)
      .property("GridInclination", "degrees, 0 to 91; 90 is seen from above", &Control::GridInclination,
                &Control::GridInclination);
}

template <class Control>
void surface(ClassBuilder<Control>& tell) {
  tell.property("XResolution", "step of the grid, mm", &Control::XResolution, &Control::XResolution)
      .property("YResolution", "step of the grid, mm", &Control::YResolution, &Control::YResolution)
      .property("PlotScale", "height factor", &Control::PlotScale, &Control::PlotScale);
}

template <class Control>
void events(ClassBuilder<Control>& tell) {
  tell.event({"Click", {}}).event({"DblClick", {}});
  for (const char* name : {"MouseDown", "MouseMove", "MouseUp"})
    tell.event(
        {name, {{"Button", Type::int16}, {"Shift", Type::int16}, {"x", Type::real}, {"y", Type::real}}});
}

/// What every control has.
template <class Control>
ClassBuilder<Control> frame(const char* name) {
  ClassBuilder<Control> tell(name);
  data(tell);
  plotting(tell);
  wafer_and_window(tell);
  printing(tell);
  about(tell);
  events(tell);
  return tell;
}

/// The first keys of every control, under the prefix of its names.
template <class Control>
void stored_wafer(ClassBuilder<Control>& tell, const std::string& prefix, Type style = Type::int32) {
  tell.stored(prefix + "BackColor", Type::int32, std::nullopt, "BackColor")
      .stored(prefix + "FLAT", style, 1, "WaferStyle")              // contract 48
      .stored(prefix + "TESTDM", Type::int16, 194, "TestDiameter")  // contract 47, 50
      .stored(prefix + "WAFERDM", Type::int16, 200, "WaferDiameter");
}

template <class Control>
void stored_colors(ClassBuilder<Control>& tell, const std::string& key, std::span<const Color> defaults) {
  for (std::size_t i = 0; i < defaults.size(); ++i)
    tell.stored(key + std::to_string(i), Type::int32, static_cast<std::int32_t>(defaults[i]),
                "IntervalColor" + std::to_string(i));
}

/// The angles of the plots in perspective, whose names end in that of the control.
template <class Control>
void stored_view(ClassBuilder<Control>& tell, const std::string& control) {
  tell.stored("StdAlp" + control, Type::int16, 40, "GridRotation")
      .stored("StdPhi" + control, Type::int16, 40, "WaferRotation")
      .stored("StdThet" + control, Type::int16, 35, "GridInclination");
}

/// The last keys of every control; one without a caption has no such key.
template <class Control>
void stored_window(ClassBuilder<Control>& tell, const std::string& prefix,
                   std::optional<std::string> caption) {
  tell.stored(prefix + "Legend", Type::boolean, false, "HideLegend");
  if (caption) tell.stored(prefix + "Caption", Type::text, *caption, "PlotCaption");
  tell.stored(prefix + "MousePointer", Type::int16, 0, "MousePointer")
      .stored(prefix + "MouseIcon", Type::object, ObjectReference{nullptr, typeid(Image)}, "MouseIcon");
}

}  // namespace mirolen::describe
