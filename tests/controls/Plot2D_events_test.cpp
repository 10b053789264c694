#include <algorithm>

#include "control_support.h"

namespace mirolen {
namespace {

class Plot2DEvents : public Plot2DTest {
 protected:
  static void send_all(Widget& widget) {
    if (widget.OnClick) widget.OnClick();
    if (widget.OnDblClick) widget.OnDblClick();
    if (widget.OnMouseDown) widget.OnMouseDown({1, 2, 30, 40});
    if (widget.OnMouseMove) widget.OnMouseMove({3, 0, -1, 2.5});
    if (widget.OnMouseUp) widget.OnMouseUp({2, 7, 0, 1e6f});
  }

  const std::vector<Widget*> forwarding{&control, &control.Frplot, &control.frmove};
};

TEST_F(Plot2DEvents, OfTheControlAndItsTwoFramesReachTheHostAsTheyCame) {
  place();
  for (Widget* widget : forwarding) {
    form.events.clear();
    send_all(*widget);
    EXPECT_EQ(form.events, (Names{"Click", "DblClick", "MouseDown 1 2 30 40", "MouseMove 3 0 -1 2.5",
                                  "MouseUp 2 7 0 1e+06"}));
  }
}

TEST_F(Plot2DEvents, OfAllOtherChildrenReachNobody) {
  plot_square();
  for (Widget* widget : widgets_of(control))
    if (std::find(forwarding.begin(), forwarding.end(), widget) == forwarding.end()) send_all(*widget);
  EXPECT_EQ(form.events, Names{});
}

TEST_F(Plot2DEvents, ChangeNothing) {
  plot_square();
  for (Widget* widget : forwarding) send_all(*widget);
  EXPECT_TRUE(control.PlotValid);
  EXPECT_FALSE(stretched());
  EXPECT_EQ(toolkit.redraws, 0);
  EXPECT_TRUE(form.changes.empty());
}

TEST_F(Plot2DEvents, TheFocusGoesToTheButton) {
  ASSERT_TRUE(control.OnEnterFocus);
  control.OnEnterFocus();
  EXPECT_EQ(toolkit.focused, &control.Command1);
}

TEST_F(Plot2DEvents, TheFocusStaysWhileTheLegendIsHidden) {
  control.HideLegend(true);
  control.OnEnterFocus();
  EXPECT_EQ(toolkit.focused, nullptr) << "its button is in the legend's column";
  control.HideLegend(false);
  control.OnEnterFocus();
  EXPECT_EQ(toolkit.focused, &control.Command1);
}

TEST_F(Plot2DEvents, TheFocusStaysWhenTheButtonIsHidden) {
  control.Command1.Visible = false;
  control.OnEnterFocus();
  EXPECT_EQ(toolkit.focused, nullptr);
}

}  // namespace
}  // namespace mirolen
