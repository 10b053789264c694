#pragma once

#include <string>
#include <vector>

#include "mirolen/core/wafer.h"
#include "mirolen/dialogs/Rows.h"
#include "mirolen/dialogs/input_fields.h"
#include "mirolen/dialogs/option_sets.h"
#include "mirolen/widgets/ControlArray.h"
#include "mirolen/widgets/Form.h"

namespace mirolen {

/// What all option forms share. A control gives one the values in force (`SetValues`), shows it, asks
/// `Redraw` whether the user has confirmed, and reads the `Get` members. The form changes nothing by itself;
/// bad input keeps it open.
class OptionForm : public Form {
 public:
  /// True only after an OK that passed all checks.
  bool Redraw() const { return redraw_; }

 protected:
  /// What OK asks of a field: a number strictly between two limits.
  struct NumberCheck {
    NumberField& field;
    std::string label;
    double low, high;
    std::string unit;
  };
  /// A choice of site marks: hide, show.
  using Marks = ControlArray<OptionButton, 0, 2>;

  explicit OptionForm(Toolkit& toolkit) : Form(toolkit, "Define Plot Options") {}

  /// The checks of OK, in the order of their messages.
  virtual std::vector<NumberCheck> checks() = 0;
  /// Whether what was entered is good; if not, the user has been told.
  virtual bool is_good();
  /// Starts with a wafer, which outlives the form. The fields have their values.
  void begin_with(wafer& shown);
  /// test_diam / part + 1, as a whole number: the upper limit of a resolution.
  double limit(double part) const;
  /// Lets two buttons, which are placed beside the form's groups or below them, answer the form.
  void answer_with(Button& ok, Button& cancel);
  void place_at_right(Button& ok, Button& cancel, const Widget& group);
  void place_below(Button& ok, Button& cancel, double right, double top);
  void input_error(const std::string& text);

  static void name_marks(const Marks& marks) { name(marks, {"Hide", "Show"}); }
  static void show_marks(const Marks& marks, bool shown) { marks(shown ? 1 : 0).Value(true); }
  static bool marks_shown(const Marks& marks) { return marks(1).Value(); }
  static void show_background(CheckBox& white, Color back);
  static Color background_of(const CheckBox& white);

  /// Draws a preview while there is a wafer; one that cannot be drawn is left out.
  template <class Draw>
  void show_preview(Draw draw) const {
    if (!wafer_) return;
    try {
      draw();
    } catch (const RunTimeError&) {
    }
  }

  wafer* wafer_ = nullptr;

 private:
  void tell_ranges();

  bool redraw_ = false;
};

}  // namespace mirolen
