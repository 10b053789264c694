#pragma once

#include "mirolen/automation/ClassBuilder.h"
#include "mirolen/controls/ControlFrame.h"
#include "mirolen/core/palette.h"

// The parts of a control's description that several controls share. The keys of stored properties differ from
// control to control and stand with each.
namespace mirolen::describe {

using automation::ClassBuilder;
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
      .read_only("mean", "mean of the values", [](const Control& c) { return c.mean(); })
      .read_only("Maximum", "largest value", [](const Control& c) { return c.Maximum(); })
      .read_only("Minimum", "smallest value", [](const Control& c) { return c.Minimum(); })
      .read_only("range", "largest minus smallest value", [](const Control& c) { return c.range(); })
      .read_only("HiLo", "|max - min| / |max + min| in percent", [](const Control& c) { return c.HiLo(); })
      .read_only("StdDev", "sample deviation", [](const Control& c) { return c.StdDev(); })
      .read_only("StdDevPercent", "deviation in percent of the mean, 0 unless that is positive",
                 [](const Control& c) { return c.StdDevPercent(); });
}

template <class Control>
void plotting(ClassBuilder<Control>& tell) {
  tell.method("Plot", "draws; 0, or 1 without data", {}, [](Control& c) { return c.Plot(); })
      .method("clear", "erases the drawing, keeps the data", {}, [](Control& c) { c.clear(); })
      .method("SetPlotNotVaild", "makes the next plot draw afresh", {},
              [](Control& c) { c.SetPlotNotVaild(); })
      .method("SetPlotLimit", "sets the ends of the scale; True if taken", {"LPL", "UPL"},
              [](Control& c, const double& LPL, const double& UPL) { return c.SetPlotLimit(LPL, UPL); })
      .method("ReleasePlotLimit", "puts the scale back to the data", {},
              [](Control& c) { c.ReleasePlotLimit(); });
}

template <class Control>
void wafer_and_window(ClassBuilder<Control>& tell) {
  tell.enumeration({"WaferSt", {{"Flat", 2}, {"Notch", 1}}})
      .property(
          "WaferDiameter", "mm; setting it empties the store",
          [](const Control& c) { return c.WaferDiameter(); },
          [](Control& c, double v) { c.WaferDiameter(v); })
      .property(
          "TestDiameter", "mm; the circle in which sites count",
          [](const Control& c) { return c.TestDiameter(); }, [](Control& c, double v) { c.TestDiameter(v); })
      .property(
          "WaferStyle", "orientation mark", [](const Control& c) { return c.WaferStyle(); },
          [](Control& c, WaferSt v) { c.WaferStyle(v); })
      .from("WaferSt")
      .property(
          "HideLegend", "hides the legend", [](const Control& c) { return c.HideLegend(); },
          [](Control& c, bool v) { c.HideLegend(v); })
      .property(
          "BackColor", "background", [](const Control& c) { return c.BackColor(); },
          [](Control& c, Color v) { c.BackColor(v); })
      .read_only("hdc", "device context of the control", [](const Control& c) { return c.hdc(); })
      .read_only("hwnd", "window of the control", [](const Control& c) { return c.hwnd(); })
      .property(
          "MousePointer", "shape of the mouse pointer", [](const Control& c) { return c.MousePointer(); },
          [](Control& c, std::int16_t v) { c.MousePointer(v); })
      .object(
          "MouseIcon", "picture of the mouse pointer", [](const Control& c) { return c.MouseIcon(); },
          [](Control& c, std::shared_ptr<const Image> v) { c.MouseIcon(std::move(v)); })
      .object(
          "PrinterObj", "what the print members draw on", [](const Control& c) { return c.PrinterObj; },
          [](Control& c, std::shared_ptr<PlotCanvas> v) { c.PrinterObj = std::move(v); });
}

template <class Control>
void plot_caption(ClassBuilder<Control>& tell) {
  tell.property(
      "PlotCaption", "caption of the plot's frame", [](const Control& c) { return c.PlotCaption(); },
      [](Control& c, const std::string& v) { c.PlotCaption(v); });
}

template <class Control>
void ten_interval_colors(ClassBuilder<Control>& tell) {
  for (int i = 0; i < 10; ++i)
    tell.property(
        "IntervalColor" + std::to_string(i), "colour of an interval, 0 at the top of the scale",
        [i](const Control& c) { return c.IntervalColor(i); },
        [i](Control& c, Color v) { c.IntervalColor(i, v); });
}

/// The stored keys of the ten colours: a name that ends in the digit of its property.
template <class Control>
void stored_ten_colors(ClassBuilder<Control>& tell, const std::string& key) {
  constexpr int defaults[10] = {4, 12, 14, 10, 6, 2, 3, 9, 1, 5};
  for (int i = 0; i < 10; ++i)
    tell.stored(key + std::to_string(i), Type::int32, static_cast<std::int32_t>(QBColor(defaults[i])),
                "IntervalColor" + std::to_string(i));
}

template <class Control>
void events(ClassBuilder<Control>& tell) {
  tell.event({"Click", {}}).event({"DblClick", {}});
  for (const char* name : {"MouseDown", "MouseMove", "MouseUp"})
    tell.event(
        {name, {{"Button", Type::int16}, {"Shift", Type::int16}, {"x", Type::real}, {"y", Type::real}}});
}

}  // namespace mirolen::describe
