#pragma once

#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "mirolen/controls/enumerations.h"
#include "mirolen/core/Array.h"
#include "mirolen/core/wafer.h"
#include "mirolen/print/PrintWafer.h"
#include "mirolen/widgets/widgets.h"

namespace mirolen {

class OptionForm;

/// What all plot controls share: their wafer, its data, limits, statistics and diameters, and their notices.
///
/// The order for a host: `WaferDiameter` (it empties the store), `TestDiameter`, `SetWaferData` or
/// `SetDataFile`, the looks, `Plot`. A setter never redraws: `Plot` does, or the next change of size.
///
/// Numbers. A member that is given NaN or an infinity, or a number beyond the 16 or 32 bits of its place,
/// changes nothing, tells nothing, and answers its failure where it has a result. Reading a property never
/// fails.
///
/// Errors. What prints throws RunTimeError where that fails, what its page throws, and std::bad_alloc. No
/// other member lets out a std::exception of pictures, of peers or of memory: it is told by the result, or,
/// where that has no room for it, ends the member with what is done so far. The mouse pointer is put back,
/// and once the failure has gone the next `Plot` draws all afresh. What is thrown by the host's own code,
/// which runs in a notice, an event, a form or a message, leaves the control in order too; it comes back to
/// the host out of a notice or an event, and everywhere unless it is a std::exception. Making a control may
/// throw what its toolkit does.
class ControlFrame : public UserControl {
 public:
  // ---- Data ----
  /// Loads sites: x and y in millimetres from the wafer's centre, values Z. Arrays of the host (std::vector,
  /// std::span) have the lower bound 1. A plot limit in force is kept; the drawing is wiped, also for 1
  /// and 2.
  /// @return 0 loaded; 1 the upper bound of y is neither that of x nor that of Z; 2 the same for lower
  /// bounds; 4 any other error: too short an array, no sites or more than 32,767, a number that is not
  /// finite, a site far outside the wafer. On 4 the drawing stays, though the data before may be gone.
  std::int16_t SetWaferData(const ArrayView& x, const ArrayView& y, const ArrayView& Z);
  /// Loads nops sites from a binary file: all x, all y, all z as little-endian doubles, without a header. A
  /// file that is too short counts as filled up with zeros. The drawing is wiped and the data before are
  /// gone, also on 4; but for a nops that is not finite, which changes nothing. @return 0 loaded; 4 any
  /// failure.
  std::int16_t SetDataFile(const std::string& datafile, double nops);
  /// Fills the arrays, resized to (1 To n), with the sites. @return n; with 0 the arrays stay as they are.
  double GetWaferData(Array& x, Array& y, Array& Z) const;
  double GetWaferData(std::vector<double>& x, std::vector<double>& y, std::vector<double>& Z) const;

  // ---- Plot ----
  /// Draws the plot, or stretches the picture of the last drawing while nothing has changed since.
  /// @return 0 drawn; 1 no data.
  std::int16_t Plot();
  /// Erases the drawing; the data stay.
  virtual void clear() = 0;
  /// Lets the user change how the plot is drawn, in a modal form, and draws it when that is confirmed.
  /// Nothing happens while the form is shown already.
  void ShowPlotOption();
  /// Makes the next `Plot` or change of size draw afresh.
  void SetPlotNotVaild() { PlotValid = false; }  // contract 1

  /// Sets the ends of the scale; draws at once if there is a plot. @return true if a new limit was taken: LPL
  /// below UPL and not both in force already. A refused one leaves scale and plot as they are.
  virtual bool SetPlotLimit(double LPL, double UPL);
  /// Puts the scale back to the data's own extremes.
  virtual void ReleasePlotLimit();

  /// The value at a point in millimetres; 0 with fewer than 4 sites.
  double Interpolation(double x, double y) const { return wafobj.Interpolation(x, y); }

  // ---- Statistics of the data, computed at each call ----
  double mean() const { return wafobj.mean; }
  double StdDev() const { return wafobj.StdDev; }
  double Maximum() const { return wafobj.maxi; }
  double Minimum() const { return wafobj.mini; }
  /// The spread of the data, whatever the plot limits.
  double range() const;
  /// |max - min| / |max + min| in percent; 0 where the sum is 0.
  double HiLo() const;
  /// The deviation in percent of the mean; 0 for a mean of 0 or below.
  double StdDevPercent() const;

  // ---- Wafer ----
  double WaferDiameter() const { return wafobj.WafDiam; }
  /// Millimetres; 0 and below become 200. Empties the store.
  void WaferDiameter(double v);
  double TestDiameter() const { return wafobj.test_diam; }
  /// Millimetres; below 0 becomes the wafer diameter. A smaller one than before shortens the list of sites to
  /// the number of those that lie within.
  void TestDiameter(double v);
  WaferSt WaferStyle() const {
    return wafobj.flat_ratio == flat_ratio_of_a_flat ? WaferSt::Flat : WaferSt::Notch;  // contract 29
  }
  void WaferStyle(WaferSt v);

  // ---- Looks ----
  bool HideLegend() const { return !LegendShown; }
  virtual void HideLegend(bool v) = 0;
  virtual Color BackColor() const { return UserControl::BackColor; }
  virtual void BackColor(Color v) = 0;

  std::int16_t MousePointer() const { return UserControl::MousePointer; }
  void MousePointer(std::int16_t v) { UserControl::MousePointer = v; }
  std::shared_ptr<const Image> MouseIcon() const { return UserControl::MouseIcon; }
  void MouseIcon(std::shared_ptr<const Image> v) { UserControl::MouseIcon = v; }

  /// The system's handle of the control's window, 0 without one; its device context, 0 where there is no such
  /// thing.
  std::int32_t hwnd() const;
  std::int32_t hdc() const { return 0; }  // contract 16

  // ---- Printing, at places in twips of the page (1/1440 inch) ----
  // The host starts and ends the job and its pages, and calls for one piece of a page after the other.
  // Nothing is printed without data or without a `PrinterObj`. These throw RunTimeError where that fails, and
  // InvalidArgument, before anything is printed, for a place that is not finite.

  /// What the print members draw on: the system's printer, which they look for, or the host's; may be null.
  std::shared_ptr<PlotCanvas> PrinterObj;

  /// Prints the plot into an area, by DrawFrame in a frame with its caption. The control needs a smallest
  /// size of its own. @return 0 printed; 2 nothing to print, or on; 1 the control is too small.
  virtual std::int16_t PrintPlot(double left, double top, double width, double height,
                                 bool DrawFrame = false) = 0;
  /// Prints the block of statistics, 2775 twips wide, and keeps units as the unit of the values.
  /// @return 0 printed; 1 nothing to print, or on.
  std::int16_t PrintWaferStatistic(double left, double top, const std::string& units);
  /// Prints the block of the wafer's size. @return as `PrintWaferStatistic`.
  std::int16_t PrintWaferSize(double left, double top);

  /// Shows the About box, and comes back when the user has closed it.
  void About();

  /// The settings of a control that is new to its form.
  virtual void InitProperties() = 0;

  /// Whether the next drawing is going to ask the user for something, in a form.
  virtual bool asks_before_drawing() const { return false; }

  /// The size of a control that is new to its form, in twips.
  static constexpr SurfaceSize usual_size{6900, 4800};
  /// The size that a control takes by itself where its form gives it less, in twips.
  virtual SurfaceSize smallest_size() const = 0;
  /// Takes a size in twips, of 32 bits, and lays the control out, as a change of size by the host's form
  /// does.
  void resize_to(double width, double height);

  /// The control's store and renderer, for a host that needs more than the properties; never replaced.
  wafer wafobj;

 protected:
  ControlFrame(Toolkit& toolkit, Container& container);

  static constexpr double flat_ratio_of_a_flat = 0.98;

  /// The number of the control's kind in the About box.
  virtual std::int16_t about_type() const = 0;
  /// The settings that `Plot` fills in beyond those of all controls.
  virtual void fill_in_settings() = 0;
  /// The last step of `Plot`.
  virtual void show_plot() = 0;
  /// The first step of the resize handler, which changes the host's form; may throw.
  virtual void set_scale_of_host() { container_.ScaleMode(twips); }  // contract 37
  /// The other steps of the resize handler; may throw RunTimeError.
  virtual void lay_out() = 0;
  /// Empties the drawing and its snapshot after the data have changed.
  virtual void wipe_drawing() = 0;
  virtual void forget_snapshot() = 0;
  /// Whether new data keep the ends of the scale.
  virtual bool keeps_limits() const { return PlotLimitSet; }

  /// Asks with the control's form, takes the answers and draws; may throw. A control without a form does
  /// nothing.
  virtual void ask_options() {}  // contract 41
  /// Shows a form, unless one is shown already. @return whether the user has confirmed.
  bool confirmed(OptionForm& form);

  /// Runs the resize handler; an error ends it without a word.
  void resize_handler();
  /// Gives the control at least this size, inside its resize handler and without running that again.
  void raise_size(const SurfaceSize& least);
  /// Whether there is something to print, and something to print on.
  bool can_print() const { return wafobj.GetNop() > 0 && PrinterObj && PrinterObj->present(); }
  /// Numbers that tell a place on the page.
  using Place = std::initializer_list<double>;
  /// Calls print(page). @throws InvalidArgument for a place that is not finite.
  template <class Print>
  void print_at(Place place, Print print) const {
    refuse_unless_finite(place, translatable("a place on the page"));
    PrintWafer page{PrinterObj};
    print(page);
  }
  /// The same for a plot if the control has at least this size. @return as `PrintPlot`.
  template <class Print>
  std::int16_t print_plot(Place place, double least_width, double least_height, Print print) const {
    if (!can_print()) return 2;
    if (ScaleWidth() < least_width || ScaleHeight() < least_height) return 1;
    print_at(place, print);
    return 0;
  }
  /// The same for a block. @return as `PrintWaferStatistic`.
  template <class Print>
  std::int16_t print_block(Place place, Print print) const {
    if (!can_print()) return 1;  // contract 23
    print_at(place, print);
    return 0;
  }
  /// Runs a step whose error the host is not told. The next plot makes up for what is left undone.
  template <class Step>
  void quietly(Step step) {
    try {
      step();
    } catch (const std::exception&) {
      leave_undone();
    }
  }
  /// Lets the next plot lay out and draw all.
  void leave_undone() { undone_ = true; }
  /// The colour that a field of the wafer carries; black where the host has left it no number.
  static Color color_in(double field) { return is_finite(field) ? to_color(field) : 0; }
  /// What a setter of a look ends with.
  void look_changed(const char* property);
  void notify(const char* property) { container_.changed(property); }
  /// Hands the events of a widget on to the host.
  void forward_events(Widget& widget);
  /// Gives the control's focus to a button, where the user sees it.
  void takes_focus(Button& button);
  Container& host() { return container_; }

  bool PlotLimitSet = false;  ///< A limit of `SetPlotLimit` is in force.
  bool PlotShown = false;     ///< `Plot` has succeeded on the present data.
  bool PlotValid = false;     ///< The snapshot shows the present drawing: a change of size only stretches it.
  bool LegendShown = true;

 private:
  void data_changed();
  void limits_changed();
  bool makes_up();

  Container& container_;
  bool sizing_itself_ = false;
  bool asking_ = false;
  bool undone_ = false;  ///< A step has failed, and what it should have shown may be missing.
};

}  // namespace mirolen
