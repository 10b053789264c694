#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "dialogs/form_layout.h"
#include "mirolen/core/palette.h"
#include "mirolen/dialogs/frmPlotHist.h"
#include "mirolen/dialogs/frmPlotOpt1D.h"
#include "mirolen/dialogs/frmPlotOpt2DB.h"
#include "mirolen/dialogs/frmPlotOpt2DC.h"
#include "mirolen/dialogs/frmPlotOpt2d.h"
#include "mirolen/dialogs/frmPlotOpt2ds.h"
#include "mirolen/dialogs/frmPlotOpt3d.h"
#include "mirolen/dialogs/frmPlotOpt3ds.h"
#include "mirolen/widgets/Headless.h"

namespace mirolen {

inline wafer wafer_of_200_mm() {
  wafer data;
  data.WafDiam = data.test_diam = 200;
  return data;
}

/// A form with usual values, for a test diameter of 200, in the hands of a user.
template <class Kind>
class ShownForm : public testing::Test {
 protected:
  ShownForm() { form.Visible = true; }

  /// Presses OK. @return whether that hid the form.
  bool ok() {
    form.DefaultButton->OnClick();
    return !form.Visible;
  }
  void cancel() { form.CancelButton->OnClick(); }
  /// The text of the one message since the last call; empty without any.
  std::string message() {
    if (toolkit.messages.empty()) return {};
    EXPECT_EQ(toolkit.messages.size(), 1u);
    EXPECT_EQ(toolkit.messages[0].title, "Input Error");
    EXPECT_EQ(toolkit.messages[0].icon, MessageIcon::none);
    const std::string text = toolkit.messages[0].text;
    toolkit.messages.clear();
    return text;
  }

  HeadlessToolkit toolkit;
  wafer data = wafer_of_200_mm();
  Kind form{toolkit};
};

/// Gives a form usual values.
inline void fill(frmPlotOpt2d& form, wafer& data) { form.SetValues(data, 5, false, button_face); }
inline void fill(frmPlotOpt2ds& form, wafer& data) { form.SetValues(data, 5, false, button_face, 0.5); }
inline void fill(frmPlotOpt2DC& form, wafer& data) { form.SetValues(data, 1, 0, 1, 1, button_face); }
inline void fill(frmPlotOpt2DB& form, wafer& data) { form.SetValues(data, 5, 5, 1, 40, 40, 35); }
inline void fill(frmPlotOpt3d& form, wafer& data) {
  form.SetValues(data, 5, 5, 40, 40, 40, 35, 1, button_face);
}
inline void fill(frmPlotOpt3ds& form, wafer& data) {
  form.SetValues(data, 5, 5, 40, 40, 40, 35, 0.5, button_face);
}
inline void fill(frmPlotHist& form, wafer& data) { form.SetValues(data, 10, button_face); }
inline void fill(frmPlotOpt1D& form, wafer& data) {
  form.SetValues(data, {false, 30, 0, 0, {-10, 20}, {-30, 40}}, false);
}

using AllForms = testing::Types<frmPlotOpt2d, frmPlotOpt2ds, frmPlotOpt2DC, frmPlotOpt2DB, frmPlotOpt3d,
                                frmPlotOpt3ds, frmPlotHist, frmPlotOpt1D>;

}  // namespace mirolen
