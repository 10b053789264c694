#include "mirolen/dialogs/WaferInfoProp.h"

#include <cmath>
#include <limits>

#include "mirolen/core/translation.h"
#include "mirolen/dialogs/input_checks.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr int notch = 1;
constexpr double picture_side = 34;  // pixels

float single_precision(double value) {
  if (std::abs(value) > std::numeric_limits<float>::max()) throw OverflowError("single precision");
  return static_cast<float>(value);
}

/// The text of a control's own diameter says no more than its digits, so it is by them that two are equal.
void write_if_another(const automation::Object& control, const char* property, double diameter) {
  const double own = std::get<double>(converted(get(control, property), automation::Type::real));
  if (diameter != own && diameter != number_in(StringFormat::plain_text(own)))
    let(control, property, diameter);
}

}  // namespace

WaferInfoProp::WaferInfoProp(Widget* container) : PropertyPage(container, "Wafer Size") {
  name(nfbox, {"Notch", "Flat"});
  FNLabel.Centered = true;
  Rows rows(*this);
  rows.add(lblWaferDiameter, txtWaferDiameter);
  rows.add(lblTestDiameter, txtTestDiameter);
  rows.add_options(nfbox);
  rows.add_picture(FNPic, picture_side * toolkit().twips_per_pixel().width);
  rows.add(FNLabel, Rows::option_height);
  rows.add(showLeg, Rows::option_height);

  txtWaferDiameter.ToolTipText = above_zero(tr("mm"));
  txtTestDiameter.ToolTipText = tr("mm, not more than the wafer diameter");
  shows(txtWaferDiameter, "WaferDiameter", is_decimal, 200);
  shows(txtTestDiameter, "TestDiameter", is_decimal, 195);  // contract 117
  choice(nfbox, "WaferStyle", [this] { show_mark(); });
  tick(showLeg, "HideLegend", true, false);
}

void WaferInfoProp::show_mark() {
  shown_.flat_ratio = nfbox(notch).Value() ? 1 : 0.98;
  double x0 = 0, y0 = 0;
  shown_.FlatNotchShow(&FNLabel, FNPic, x0, y0, 0, 0, 90);
}

bool WaferInfoProp::write_together(Controls controls) {
  const double diameter = number_in(txtWaferDiameter.Text()), test = number_in(txtTestDiameter.Text());
  if (single_precision(diameter) < single_precision(test)) {
    // contract 111
    toolkit().message_box(tr("Wafer diamter can not be less than test diameter"), tr("Input Error"),
                          MessageIcon::none);
    return false;
  }
  for (const automation::Object& control : controls)
    quietly([&] {
      write_if_another(control, "WaferDiameter", diameter);
      write_if_another(control, "TestDiameter", test);
    });
  return true;
}

}  // namespace mirolen
