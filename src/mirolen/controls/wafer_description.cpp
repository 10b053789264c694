#include "mirolen/automation/ClassBuilder.h"
#include "mirolen/controls/descriptions.h"
#include "mirolen/render/Companions.h"

namespace mirolen {
namespace {

using automation::ClassBuilder;

void describe_looks(ClassBuilder<wafer>& tell) {
  constexpr double wafer::*colors[10] = {&wafer::col1, &wafer::col2, &wafer::col3, &wafer::col4,
                                         &wafer::col5, &wafer::col6, &wafer::col7, &wafer::col8,
                                         &wafer::col9, &wafer::col10};
  for (int i = 0; i < 10; ++i)
    tell.field("col" + std::to_string(i + 1), "colour of an interval, col1 at the top of the scale",
               colors[i]);
  tell.field("ColS1", "colour above the sigma range", &wafer::ColS1)
      .field("ColS2", "colour inside the sigma range", &wafer::ColS2)
      .field("ColS3", "colour below the sigma range", &wafer::ColS3)
      .field("flat_ratio", "exactly 1 for a notch, anything else for a flat", &wafer::flat_ratio)
      .field("WafDiam", "wafer diameter, mm", &wafer::WafDiam)
      .field("WaferOrigRad", "half of the wafer diameter, mm", &wafer::WaferOrigRad)
      .field("test_diam", "test diameter, mm", &wafer::test_diam)
      .field("changeResx", "set when a surface's resolution changes", &wafer::changeResx)
      .field("Save", "for the host", &wafer::Save)
      .field("NewFile", "for the host", &wafer::NewFile);
}

void describe_texts(ClassBuilder<wafer>& tell) {
  tell.field("Meas_unit", "unit of the values", &wafer::Meas_unit);
  for (const auto& [name, text] : {std::pair{"FileDT", &wafer::FileDT},
                                   {"filename", &wafer::filename},
                                   {"DirFileName", &wafer::DirFileName},
                                   {"Recognize", &wafer::Recognize},
                                   {"Special", &wafer::Special},
                                   {"equip", &wafer::equip},
                                   {"wafer", &wafer::wafer},
                                   {"Operator", &wafer::Operator},
                                   {"FAB", &wafer::FAB},
                                   {"lot", &wafer::lot},
                                   {"meq", &wafer::meq}})
    tell.field(name, "header text", text);
}

void describe_statistics(ClassBuilder<wafer>& tell) {
  tell.field("mean", "mean of the values", &wafer::mean)
      .field("StdDev", "sample deviation", &wafer::StdDev)
      .field("maxi", "largest value", &wafer::maxi)
      .field("mini", "smallest value", &wafer::mini)
      .field("maximal", "upper plot limit", &wafer::maximal)
      .field("minimal", "lower plot limit", &wafer::minimal)
      .field("HiLo", "spread of the plot limits in percent", &wafer::HiLo)
      .field("Low", "scale base", &wafer::Low)
      .field("range", "upper minus lower plot limit", &wafer::range)
      .field("Summe_Value", "sum of the values", &wafer::Summe_Value)
      .field("NptLCL", "sites below the lower control limit", &wafer::NptLCL)
      .field("NptUCL", "sites above the upper control limit", &wafer::NptUCL)
      .field("vLcl", "lower plot limit of a histogram", &wafer::vLcl)
      .field("vUcl", "upper plot limit of a histogram", &wafer::vUcl)
      .field("FW_NUll", "a value was zero", &wafer::FW_NUll)
      .field("FW_Negativ", "a value was negative", &wafer::FW_Negativ)
      .field("maxHauf", "largest class count of a histogram", &wafer::maxHauf)
      .field("GaussMax", "scale of the Gauss curve", &wafer::GaussMax)
      .method("MaxMin", "computes all statistics and the index", {}, [](wafer& w) { w.MaxMin(); })
      .method("setMaximalMinial", "sets the plot limits", {"maxim", "minim"},  // contract 2
              [](wafer& w, double maxim, double minim) { w.setMaximalMinial(maxim, minim); })
      // contract 2
      .method("Globlal_Value_Sub_Mean", "sum of the squared distances from a value", {"glmean"},
              [](const wafer& w, const double& glmean) { return w.Globlal_Value_Sub_Mean(glmean); })
      .method("Points_OutCL", "counts the sites beyond control limits", {"LCL", "UCL"},
              [](wafer& w, const double& LCL, const double& UCL) { w.Points_OutCL(LCL, UCL); })
      .method("Gauss", "height of the Gauss curve", {"hist_x"},
              [](const wafer& w, double hist_x) { return w.Gauss(hist_x); });
}

void describe_store(ClassBuilder<wafer>& tell) {
  tell.method("reset", "empties the store", {}, [](wafer& w) { w.reset(); })
      .method("SetNop", "makes room for sites", {"Number"}, [](wafer& w, double Number) { w.SetNop(Number); })
      .method("GetNop", "number of sites", {}, [](const wafer& w) { return w.GetNop(); })
      .method("SetGridValue", "appends a site", {"x", "y", "Z"},
              [](wafer& w, double x, double y, double Z) { w.SetGridValue(x, y, Z); })
      .method("SetGridValueD", "writes a site, unless there are fewer", {"i", "x", "y", "Z"},
              [](wafer& w, std::int16_t i, double x, double y, double Z) { w.SetGridValueD(i, x, y, Z); })
      .method(
          "OverwriteGridValue", "writes a site", {"i", "x", "y", "Z"},
          [](wafer& w, std::int16_t i, double x, double y, double Z) { w.OverwriteGridValue(i, x, y, Z); })
      .method("GetGridValue", "position and value of a site", {"ind", "gr"},
              [](const wafer& w, std::int16_t ind, Array& gr) { return w.GetGridValue(ind, gr); })
      .method("Interpolation", "the value at a point, mm", {"Xa", "Ya"},
              [](const wafer& w, double Xa, double Ya) { return w.Interpolation(Xa, Ya); })
      .method("Interpolation_Einfach", "the same by a scan of all sites", {"Xa", "Ya"},  // contract 3
              [](const wafer& w, double Xa, double Ya) { return w.Interpolation_Einfach(Xa, Ya); });
}

using Canvas = std::shared_ptr<PlotCanvas>;
using Label = std::shared_ptr<CaptionLabel>;

/// @throws InvalidArgument for an object that was left out.
template <class T>
T& present(const std::shared_ptr<T>& object) {
  if (!object) throw InvalidArgument("a drawing member needs its objects");
  return *object;
}

// Legends and axis labels take collections of widgets, which have no value at the interface: they, and the
// marks of a line scan, are called in C++ alone.
void describe_outline(ClassBuilder<wafer>& tell) {
  tell.method("FormatLbl", "a value as the text of a caption", {"dummy"},
              [](const wafer& w, double dummy) { return w.FormatLbl(dummy); })
      .method(
          "FlatNotchShow", "draws the outline with its flat or notch",
          {"FNLabel", "FNPic", "x0", "y0", "halb_a", "phi", "thet"},
          [](const wafer& w, Label FNLabel, Canvas FNPic, double& x0, double& y0, double halb_a, double phi,
             double thet) { w.FlatNotchShow(FNLabel.get(), present(FNPic), x0, y0, halb_a, phi, thet); })
      .method(
          "FlatNotchShow1", "the same as an open arc",
          {"FNLabel", "FNPic", "x0", "y0", "halb_a", "phi", "thet"},
          [](const wafer& w, Label FNLabel, Canvas FNPic, double& x0, double& y0, double halb_a, double phi,
             double thet) { w.FlatNotchShow1(FNLabel.get(), present(FNPic), x0, y0, halb_a, phi, thet); })
      .method("draw_indicator", "lays a scan line across a small wafer picture",
              {"Iline", "plus", "Plotopt", "phi", "x1", "y1", "x2", "y2", "x3", "y3", "Plot"},
              [](wafer& w, std::shared_ptr<IndicatorLine> Iline, std::shared_ptr<IndicatorMark> plus,
                 std::int16_t Plotopt, std::int16_t phi, double x1, double y1, double x2, double y2,
                 double x3, double y3, Canvas Plot) {
                w.draw_indicator(present(Iline), present(plus), Plotopt, phi, x1, y1, x2, y2, x3, y3,
                                 present(Plot));
              });
}

void describe_maps(ClassBuilder<wafer>& tell) {
  tell.method("D2Plot", "paints the colour map (PlotStyle 5) or the sigma map",
              {"Plot", "res", "PlotStyle", "SigmaRange", "marksites", "left", "top", "width", "height",
               "ShowDispl"},
              [](wafer& w, Canvas Plot, double res, std::int16_t PlotStyle, double SigmaRange,
                 std::int16_t marksites, double left, double top, double width, double height,
                 std::int16_t ShowDispl) {
                w.D2Plot(present(Plot), res, PlotStyle, SigmaRange, marksites, left, top, width, height,
                         ShowDispl);
              })
      .method("D2Number", "writes the values at their sites",
              {"Plot", "left", "top", "width", "height", "ShowDispl"},
              [](wafer& w, Canvas Plot, double left, double top, double width, double height,
                 std::int16_t ShowDispl) { w.D2Number(present(Plot), left, top, width, height, ShowDispl); })
      .method(
          "GridPosPlot", "writes the numbers of the sites",
          {"Plot", "left", "top", "width", "height", "ShowDispl"},
          [](wafer& w, Canvas Plot, double left, double top, double width, double height,
             std::int16_t ShowDispl) { w.GridPosPlot(present(Plot), left, top, width, height, ShowDispl); })
      .method("D2Contour", "draws curves of equal value",
              {"Plot", "st", "distance", "marked_sites", "reso", "colored", "left", "top", "width", "height",
               "ShowDispl"},
              [](wafer& w, Canvas Plot, std::int16_t st, double distance, std::int16_t marked_sites,
                 std::int16_t reso, std::int16_t colored, double& left, double& top, double& width,
                 double& height, std::int16_t& ShowDispl) {
                w.D2Contour(present(Plot), st, distance, marked_sites, reso, colored, left, top, width,
                            height, ShowDispl);
              });
}

void describe_perspectives(ClassBuilder<wafer>& tell) {
  tell.method("D3Plot", "draws the surface",
              {"Plot", "resx", "resy", "fwscal", "alp2", "phi2", "thet2", "PlotStyle", "SigmaRange", "fprint",
               "left", "top", "width", "height", "ShowDispl"},
              [](wafer& w, Canvas Plot, double resx, double resy, double fwscal, double alp2, double phi2,
                 double thet2, std::int16_t PlotStyle, double SigmaRange, bool& fprint, double& left,
                 double& top, double& width, double& height, std::int16_t& ShowDispl) {
                w.D3Plot(present(Plot), resx, resy, fwscal, alp2, phi2, thet2, PlotStyle, SigmaRange, fprint,
                         left, top, width, height, ShowDispl);
              })
      .method("D2BeamPlot", "draws the sites as bars",
              {"Plot", "bx", "by", "fwscal", "alp2", "phi2", "thet2", "fprint", "left", "top", "width",
               "height", "ShowDispl"},
              [](wafer& w, Canvas Plot, double bx, double by, double fwscal, double alp2, double phi2,
                 double thet2, bool& fprint, double& left, double& top, double& width, double& height,
                 std::int16_t& ShowDispl) {
                w.D2BeamPlot(present(Plot), bx, by, fwscal, alp2, phi2, thet2, fprint, left, top, width,
                             height, ShowDispl);
              });
}

void describe_charts(ClassBuilder<wafer>& tell) {
  tell.method("Statistic", "draws the histogram",
              {"PlotType", "Plot", "histPic", "x0", "y0", "breite", "hoehe", "stat_resol", "laenge", "left",
               "top", "ShowDisp"},
              [](wafer& w, const std::int16_t& PlotType, Canvas Plot, Canvas histPic, double& x0, double& y0,
                 double& breite, double& hoehe, double stat_resol, std::int16_t& laenge, double& left,
                 double& top, std::int16_t& ShowDisp) {
                w.Statistic(PlotType, present(Plot), present(histPic), x0, y0, breite, hoehe, stat_resol,
                            laenge, left, top, ShowDisp);
              })
      .method("D1Plot", "draws the cross-section along a line",
              {"Plot", "resol", "phi", "D1Angle", "x1", "y1", "x2", "y2", "DrawCol", "left", "top", "width",
               "height", "ShowDisp"},
              [](wafer& w, Canvas Plot, std::int16_t& resol, std::int16_t& phi, bool& D1Angle, double& x1,
                 double& y1, double& x2, double& y2, Color& DrawCol, double& left, double& top, double& width,
                 double& height, std::int16_t& ShowDisp) {
                w.D1Plot(present(Plot), resol, phi, D1Angle, x1, y1, x2, y2, DrawCol, left, top, width,
                         height, ShowDisp);
              })
      .method("D1Plot_AdjustLines", "draws the grid of the cross-section",
              {"Plot", "left", "top", "width", "height"},
              [](const wafer& w, Canvas Plot, double& left, double& top, double& width, double& height) {
                w.D1Plot_AdjustLines(present(Plot), left, top, width, height);
              });
}

automation::ClassInfo describe_wafer() {
  ClassBuilder<wafer> tell("wafer");
  describe_store(tell);
  describe_statistics(tell);
  describe_looks(tell);
  describe_texts(tell);
  describe_outline(tell);
  describe_maps(tell);
  describe_perspectives(tell);
  describe_charts(tell);
  return tell.build();
}

}  // namespace

const automation::ClassInfo& description_of_wafer() {
  static const automation::ClassInfo info = describe_wafer();
  return info;
}

}  // namespace mirolen
