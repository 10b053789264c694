#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "mirolen/core/Array.h"
#include "mirolen/core/DecimalSeparator.h"
#include "mirolen/core/QuickSearch.h"
#include "mirolen/core/SiteIndex.h"
#include "mirolen/core/numbers.h"
#include "mirolen/core/palette.h"

namespace mirolen {

class CaptionLabel;
class ColorBox;
class IndicatorLine;
class IndicatorMark;
class Painter;
class PlotCanvas;
class SiteMarks;
class ValueLabel;

/// The ten colour boxes and value labels of a legend, first row first.
using LegendBoxes = std::array<ColorBox*, 10>;
using LegendLabels = std::array<ValueLabel*, 10>;
/// The labels of an axis.
using AxisLabels = std::array<CaptionLabel*, 5>;

/// A measured wafer: its sites, what is computed from them, its colours and texts, and the renderers that
/// draw it.
///
/// A site is a position x, y in millimetres from the wafer's centre and one measured value z. Sites are
/// numbered from 1 in the order of loading; 32,767 is the largest number. To load: `reset`, `SetNop`, one
/// `SetGridValue` a site, `MaxMin`; or `LoadSiteArrays` and `LoadSiteFile`, which do all that. Before
/// `MaxMin` has run, statistics are those of the data before and interpolation has no index.
///
/// Members throw RunTimeError and its kin where their comment says so. One thread at a time; separate wafers
/// may work on separate threads, each on canvases of its own, as long as nobody changes the C locale or the
/// translator meanwhile. They share the decimal separator: that of the wafer made last.
class wafer {
 public:
  // ---- Colours, as numbers that carry a colour value ----
  /// The ten interval colours, top of the scale first. A field of exactly 15.0 leaves its cells unpainted.
  double col1 = default_interval_colors[0], col2 = default_interval_colors[1];
  double col3 = default_interval_colors[2], col4 = default_interval_colors[3];
  double col5 = default_interval_colors[4], col6 = default_interval_colors[5];
  double col7 = default_interval_colors[6], col8 = default_interval_colors[7];
  double col9 = default_interval_colors[8], col10 = default_interval_colors[9];
  /// The sigma colours: above, inside and below the range. (contract 42)
  double ColS1 = default_sigma_colors[0], ColS2 = default_sigma_colors[1], ColS3 = default_sigma_colors[2];

  // ---- Flags ----
  std::int16_t Save = 0, NewFile = 0;  ///< For the host; the library neither reads nor writes them.
  bool FW_NUll = false;     ///< A stored value was zero, or nearer to zero than 1e-15. (contract 2)
  bool FW_Negativ = false;  ///< A stored value was negative. (contract 2)
  bool changeResx = true;   ///< Set when a surface's resolution changes; for the host. (contract 12)

  // ---- Source file, for the host ----
  std::string FileDT, filename, DirFileName;  // contract 12

  // ---- Statistics of the last `MaxMin`, in the unit of z ----
  double mean = 0, StdDev = 0;      ///< StdDev is the sample deviation (divisor n - 1).
  double maxi = 0, mini = 0;        ///< Largest and smallest value.
  double maximal = 0, minimal = 0;  ///< Plot limits: `maxi`, `mini` unless limits were set.
  double HiLo = 0;                ///< |maximal - minimal| / |maximal + minimal| in percent; 0 for a sum of 0.
  double Low = 0;                 ///< Scale base: `minimal`, or a little below it where the limits are equal.
  double range = 0;               ///< maximal - minimal.
  double Summe_Value = 0;         ///< Sum of all values. (contract 3)
  double NptLCL = 0, NptUCL = 0;  ///< Sites below and above the control limits of `Points_OutCL`.
  double vLcl = 0, vUcl = 0;      ///< Plot limits of a histogram.

  // ---- The wafer itself, lengths in millimetres ----
  double WafDiam = 0;       ///< Wafer diameter.
  double WaferOrigRad = 0;  ///< Half of `WafDiam`; write it together with that.
  double test_diam = 0;     ///< Test diameter: the circle inside which sites count.
  double flat_ratio = 0;    ///< Exactly 1.0 for a notch; the controls write 0.98 for a flat.

  // ---- Texts of report headers ----
  std::string Meas_unit;  ///< Unit of z.
  // contract 4, 12
  std::string Recognize, Special, equip, wafer, Operator, FAB, lot, meq;

  // ---- Results of the histogram chart ----
  std::int32_t maxHauf = 0;  ///< Largest class count. (contract 3)
  double GaussMax = 0;       ///< Scale of the Gauss curve.

  // ---- Store ----
  /// Empties the store. Diameters, colours, texts and statistics keep their values.
  void reset();
  /// Makes room for Number sites, all zero, and forgets those before. An error leaves the store as it was.
  /// @throws InvalidArgument if not finite, SubscriptOutOfRange if negative, OutOfMemory beyond 16,777,216.
  void SetNop(double Number);
  /// The number of sites that there is room for.
  double GetNop() const { return Nop; }
  /// Appends a site; one for which there is no more room is dropped without a word. A value nearer to zero
  /// than 1e-15 is stored as 0. @throws InvalidArgument, storing nothing, for a number that is not finite.
  void SetGridValue(double x, double y, double Z);
  /// Writes site i, 1 or more; one beyond `GetNop` is dropped without a word. Statistics stay as they are.
  /// @throws SubscriptOutOfRange for i below 1, InvalidArgument as `SetGridValue`.
  void SetGridValueD(std::int16_t i, double x, double y, double Z);  // contract 14
  /// As `SetGridValueD`, but @throws SubscriptOutOfRange for every i that is not a site.
  void OverwriteGridValue(std::int16_t i, double x, double y, double Z);  // contract 14
  /// Puts x and y of site ind into gr(1) and gr(2) and returns its z.
  /// @throws SubscriptOutOfRange if there is no such site or gr lacks one of the two elements.
  double GetGridValue(std::int16_t ind, Array& gr) const;

  // ---- Statistics ----
  /// Computes all statistics, puts the plot limits back to the data's extremes and, from 10 sites up, builds
  /// the spatial index. Cost: two passes over the sites.
  /// @throws SubscriptOutOfRange on an empty store or for a site more than about half an index cell beyond
  /// the wafer's edge, OverflowError where a sum leaves the range of Double, DivisionByZero for a wafer of
  /// diameter 0.
  void MaxMin();
  /// Sets the plot limits and what follows from them (`range`, `HiLo`, `Low`). The order is not checked.
  /// @throws OverflowError, and changes nothing then.
  void setMaximalMinial(double maxim, double minim);  // contract 2
  /// Sum of (z - glmean)^2 over all sites; 0 without any. @throws OverflowError.
  double Globlal_Value_Sub_Mean(double glmean) const;  // contract 2
  /// Counts the sites strictly below LCL into `NptLCL` and strictly above UCL into `NptUCL`.
  void Points_OutCL(double LCL, double UCL);  // contract 14
  /// Height of the Gauss curve of `mean` and `StdDev` at hist_x; its peak is 0.39894 whatever the deviation.
  /// @throws DivisionByZero if `StdDev` is 0, OverflowError.
  double Gauss(double hist_x) const;

  // ---- Interpolation ----
  /// The value at a point (millimetres), the inverse-square weighted mean of the four nearest sites; within
  /// 0.0001 mm of a site that site's own value; 0 with fewer than 4 sites, or where no mean can be computed.
  /// Never throws. Looks only at sites near the point from 10 sites up, at all sites below.
  double Interpolation(double Xa, double Ya) const;
  /// The same at many points at once, to the last bit; cheapest where points follow each other closely, as
  /// along a row of a grid. values lies apart from the points. @throws SubscriptOutOfRange where the three
  /// are not equally long.
  void Interpolation(std::span<const double> Xa, std::span<const double> Ya, std::span<double> values) const;
  /// The same by a scan of all sites. Cost: linear in the number of sites.
  /// @throws SubscriptOutOfRange where fewer than four sites lie within 1.5 wafer diameters, OverflowError.
  double Interpolation_Einfach(double Xa, double Ya) const;  // contract 3

  // ---- Outline and orientation mark (on pictures whose scale is pixels) ----
  /// Draws the wafer with its flat or notch, turned by phi degrees and inclined to thet degrees (90: plan
  /// view). x0 and y0 come back as the picture's centre; halb_a is ignored. FNLabel, which may be null, takes
  /// the text "Notch" or "Flat". @throws RunTimeError of the canvas.
  void FlatNotchShow(CaptionLabel* FNLabel, PlotCanvas& FNPic, double& x0, double& y0, double halb_a,
                     double phi, double thet) const;
  /// The same as an open arc round (x0, y0) with the radius halb_a, closed by the mark and filled.
  // contract 14
  void FlatNotchShow1(CaptionLabel* FNLabel, PlotCanvas& FNPic, double& x0, double& y0, double halb_a,
                      double phi, double thet) const;
  /// Lays a scan line across the small wafer picture Plot and its mark plus beyond the line's start. Plotopt
  /// 1: the line through (x1, y1) at phi degrees, otherwise the line through (x2, y2) and (x3, y3);
  /// millimetres. A `WafDiam` of 0 becomes 200 for good. @throws InvalidArgument if the line misses the test
  /// circle.
  void draw_indicator(IndicatorLine& Iline, IndicatorMark& plus, std::int16_t Plotopt, std::int16_t phi,
                      double x1, double y1, double x2, double y2, double x3, double y3, PlotCanvas& Plot);

  // ---- Legends ----
  /// Fills the ten rows of a colour legend: box colours, captions, and tool tips with more digits.
  void scale_colored(const LegendBoxes& scalCol, const LegendLabels& scallab) const;
  /// Fills the three rows of a sigma legend (rows 1, 3 and 5) and hides the others.
  void scale_sigma(const LegendBoxes& scalCol, const LegendLabels& scallab, double SigmaRange) const;
  /// A value as the text of a caption.
  std::string FormatLbl(double dummy) const;

  // ---- Renderers ----
  /// Paints the interpolated map in cells of res millimetres. PlotStyle 5: ten bands; any other: three sigma
  /// classes of SigmaRange deviations. marksites other than 0 marks each site. The area arguments are twips
  /// and count only on a page (ShowDispl 1) or a printer. With three sites or fewer only the marks are drawn.
  /// A canvas that fails is drawn on as far as it goes; nothing is thrown. Cost: one interpolation a grid
  /// node.
  void D2Plot(PlotCanvas& Plot, double res, std::int16_t PlotStyle, double SigmaRange, std::int16_t marksites,
              double left, double top, double width, double height, std::int16_t ShowDispl);
  /// Writes each site's value at its place, in the colour of its band, on a disc of the test diameter.
  void D2Number(PlotCanvas& Plot, double left, double top, double width, double height,
                std::int16_t ShowDispl);
  /// Writes each site's running number at its place.
  void GridPosPlot(PlotCanvas& Plot, double left, double top, double width, double height,
                   std::int16_t ShowDispl);
  /// Draws iso-value curves on a disc of the radius st (canvas units), spaced by distance percent.
  /// marked_sites 1 marks the sites, 2 the nodes of the mesh; reso 0, 1 and 2: coarse, fine, by the number of
  /// sites; colored 0 in black, 1 in the three sigma colours, 2 in the band colours. Where the spacing is too
  /// small the picture is crossed out and a message shown. @throws RunTimeError of the canvas, DivisionByZero
  /// for a wafer of diameter 0.
  void D2Contour(PlotCanvas& Plot, std::int16_t st, double distance, std::int16_t marked_sites,
                 std::int16_t reso, std::int16_t colored, double left, double top, double width,
                 double height, std::int16_t ShowDispl);
  /// Draws the interpolated surface in perspective: cells of resx by resy millimetres, its height fwscal
  /// times a millimetre, the grid turned by alp2, the wafer by phi2, seen from thet2 (90: from above), in
  /// degrees; at most 1,000 cells each way, of a thousandth of the test diameter then. PlotStyle 1 bands with
  /// edges, 2 wire frame, 3 white cells, 4 sigma colours of SigmaRange deviations. Nothing is thrown. Cost:
  /// one interpolation a grid node, one polygon a cell.
  void D3Plot(PlotCanvas& Plot, double resx, double resy, double fwscal, double alp2, double phi2,
              double thet2, std::int16_t PlotStyle, double SigmaRange, bool fprint, double left, double top,
              double width, double height, std::int16_t ShowDispl);
  /// Draws the sites as bars of bx by by millimetres on the inclined disc, their height fwscal a unit of
  /// value. Angles as in `D3Plot`. Nothing is thrown.
  void D2BeamPlot(PlotCanvas& Plot, double bx, double by, double fwscal, double alp2, double phi2,
                  double thet2, bool fprint, double left, double top, double width, double height,
                  std::int16_t ShowDispl);
  /// Draws the histogram of the values in stat_resol classes, whole ones alone, with its Gauss curve: bars,
  /// marks and curve on Plot, ticks and texts on histPic. PlotType: base line at the bottom 1, top 2, left 3,
  /// right 4. On a page (ShowDisp 1) lengths are twips, and come back in pixels. A failing step goes on with
  /// all lengths divided by 4.8.
  void Statistic(std::int16_t PlotType, PlotCanvas& Plot, PlotCanvas& histPic, double& x0, double& y0,
                 double& breite, double& hoehe, double stat_resol, std::int16_t& laenge, double& left,
                 double& top, std::int16_t ShowDisp);
  /// The same turned by a quarter, its base line at the right or at the left. breite and hoehe come back
  /// exchanged.
  // contract 3
  void Statistic_Quer(bool RightD, PlotCanvas& Plot, PlotCanvas& histPic, double& x0, double& y0,
                      double& breite, double& hoehe, float stat_resol, std::int16_t& laenge, double& left,
                      double& top, std::int16_t ShowDisp);

  // ---- Line scan: the cross-section along a chord of the test circle ----
  struct Chord {
    double scanStartX = 0, scanStartY = 0, scanEndX = 0, scanEndY = 0;
  };
  /// The ends of the scan on the test circle, millimetres: Plotopt 1 the line through (x1, y1) at phi
  /// degrees, otherwise the line through (x2, y2) and (x3, y3). @throws InvalidArgument for a line that
  /// misses the circle.
  Chord scan_chord(std::int16_t Plotopt, std::int16_t phi, double x1, double y1, double x2, double y2,
                   double x3, double y3) const;
  /// Draws the curve in resol pieces: by D1Angle along the line through (x1, y1) at phi degrees, otherwise
  /// through (x1, y1) and (x2, y2). @throws RunTimeError of the canvas, InvalidArgument for a line that
  /// misses the circle.
  void D1Plot(PlotCanvas& Plot, std::int16_t resol, std::int16_t phi, bool D1Angle, double x1, double y1,
              double x2, double y2, Color DrawCol, double left, double top, double width, double height,
              std::int16_t ShowDisp);
  /// Draws the chart's grid, four cells each way; on a picture box it stays through later `Cls`.
  void D1Plot_AdjustLines(PlotCanvas& Plot, double left, double top, double width, double height) const;
  /// Marks the sites on the line: on the screen with the marks of picgrid, on a page with discs. Errors as
  /// `D1Plot`.
  void D1Plot_MarkSites(PlotCanvas& Plot, SiteMarks* picgrid, std::int16_t phi, bool D1Angle, double x1,
                        double y1, double x2, double y2, Color DrawCol, double left, double top, double width,
                        double height, std::int16_t ShowDisp) const;
  /// Writes the five labels of each axis. Plotopt 1: the line through (x1, y1) at phi, otherwise through (x2,
  /// y2) and (x3, y3). Errors as `D1Plot`.
  void D1Plot_Show_lblXY(const AxisLabels& lblX, const AxisLabels& lblY, std::int16_t Plotopt,
                         std::int16_t phi, double x1, double y1, double x2, double y2, double x3,
                         double y3) const;
  /// A value as the labels of the line scan's y axis show it.
  std::string scan_label(double value) const;

 private:
  friend class Painter;
  friend class SiteLoad;

  using Position = SiteIndex::Position;

  void store_site(std::int32_t site, double x, double y, double Z);
  /// `SetGridValue` for each of some sites, whose numbers are finite.
  void append_sites(std::span<const double> x, std::span<const double> y, std::span<const double> Z);
  double cleaned(double Z);
  std::size_t place_of(std::int32_t site) const;
  double value_of(std::int32_t site) const { return GridVal[place_of(site)]; }
  const Position& position_of(std::int32_t site) const { return GridPos[place_of(site)]; }
  void set_scale(double high, double low);
  static double base_of_equal_limits(double limit);
  void BuildSiteCells();
  static double StdNormal(double u);
  double searched_value(double Xa, double Ya) const;
  double farthest_sure_distance() const;
  double empty_slot() const;
  double filled_slot() const { return 4 * WaferOrigRad; }
  double mean_of_near_sites(double Xa, double Ya) const;
  Chord chord_from_line(double x1, double y1, double x2, double y2) const;
  Chord chord_from_angle(double x1, double y1, std::int16_t phi) const;
  static Chord sloped_chord(double R2, double m, double b, bool rightward);
  Chord chord(bool angle_mode, std::int16_t phi, double x1, double y1, double x2, double y2) const;
  double scan_height(double z, double box_bottom, double box_height) const;

  static inline const double Pi = 4 * std::atan(1.0);
  static constexpr double sites_worth_an_index = 10;
  bool FirstUse = true;
  double Nop = 0;
  double NextSite = 1;
  std::vector<Position> GridPos;
  std::vector<double> GridVal;
  SiteIndex SiteCells;
  QuickSearch Quick;
  bool quick_ = false;  // whether the sites are still those that Quick was built of
  [[no_unique_address]] DecimalSeparatorFromLocale separator_;
};

}  // namespace mirolen
