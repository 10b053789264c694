#include "print_members.h"
#include "trial.h"

// What may leave a control where its toolkit fails: nothing, but for what a host throws itself.

namespace mirolen {
namespace {

template <class Control>
class Promises : public testing::Test {
 protected:
  /// A control that is plotted, while all is well.
  struct Bench {
    Bench() { set_up(control); }
    TroubledToolkit toolkit;
    DeafContainer form;
    Open<Control> control{toolkit, form};
  };

  /// Runs an act while the nth step of a kind fails. @return whether there is an nth step.
  bool survives(const Act<Control>& act, Trouble TroubledToolkit::*kind, int n, bool lasting) {
    Bench bench;
    const std::string what =
        std::string(act.name) + ", step " + std::to_string(n) + (lasting ? " and all behind it" : "");
    Trouble& trouble = bench.toolkit.*kind;
    trouble.begin(n, lasting);
    EXPECT_NO_THROW(act.run(bench.control)) << what;
    trouble.end();
    EXPECT_EQ(bench.control.MousePointer(), 0) << what;
    const bool reached = trouble.steps >= n;
    if (reached) expect_right_plot(bench, act, what);
    return reached;
  }

  void expect_right_plot(Bench& bench, const Act<Control>& act, const std::string& what) {
    if (act.loads) bench.control.load(sites_near_centre());
    if (bench.control.Plot() != 0) return;
    expect_looks_of_a_new_one(bench.control, what);
    for (const Widget* widget : widgets_of(bench.control))
      EXPECT_EQ(bench.toolkit.screen[widget], shown_of(*widget)) << what << ": on the screen";
  }

  void try_all(Trouble TroubledToolkit::*kind) {
    for (const Act<Control>& act : all_acts<Control>())
      for (const bool lasting : {false, true})
        for (int n = 1; survives(act, kind, n, lasting); ++n)
          if (this->HasFailure()) return;
  }
};
TYPED_TEST_SUITE(Promises, AllControls, ControlNames);

TYPED_TEST(Promises, NoPictureThatFailsGetsOut) { this->try_all(&TroubledToolkit::pictures); }

TYPED_TEST(Promises, NoPeerThatFailsGetsOut) { this->try_all(&TroubledToolkit::peers); }

// ---- What the host throws itself ----

/// No std::exception.
struct Foreign {};

/// A host that throws when it is told of something.
class ThrowingContainer : public DeafContainer {
 public:
  bool armed = false;
  void changed(std::string_view) override { tell(); }
  void Click() override { tell(); }
  void MouseUp(const MouseEvent&) override { tell(); }

 private:
  void tell() const {
    if (armed) throw Foreign();
  }
};

/// A toolkit of a host that throws from its messages.
class ThrowingToolkit : public TroubledToolkit {
 public:
  bool armed = false;
  void message_box(const std::string& text, const std::string& title, MessageIcon icon) override {
    if (armed) throw Foreign();
    TroubledToolkit::message_box(text, title, icon);
  }
};

template <class Control>
class ForeignErrors : public testing::Test {
 protected:
  void SetUp() override { set_up(control); }

  void expect_sound() {
    EXPECT_EQ(control.MousePointer(), 0);
    control.resize_to(8000, 7000);
    EXPECT_EQ(control.Width.get(), 8000);
    EXPECT_EQ(control.Height.get(), 7000);
    int forms = 0;
    toolkit.on_modal = [&](Form&) { ++forms; };
    control.ShowPlotOption();
    EXPECT_EQ(forms, description_of<Control>().name == "Plot2DN" ? 0 : 1);
    toolkit.on_modal = nullptr;
    control.resize_to(0, 0);
    EXPECT_EQ(control.Width.get(), control.smallest_size().width);
    control.SetPlotNotVaild();
    EXPECT_EQ(control.Plot(), 0);
    EXPECT_EQ(control.MousePointer(), 0);
  }

  ThrowingToolkit toolkit;
  ThrowingContainer form;
  Open<Control> control{toolkit, form};
};
TYPED_TEST_SUITE(ForeignErrors, AllControls, ControlNames);

TYPED_TEST(ForeignErrors, OfAFormPassAndItOpensAgain) {
  if (description_of<TypeParam>().name == "Plot2DN") return;  // has no form
  this->toolkit.on_modal = [](Form&) { throw Foreign(); };
  EXPECT_THROW(this->control.ShowPlotOption(), Foreign);
  this->expect_sound();
}

TYPED_TEST(ForeignErrors, OfAnotherKindEndTheFormAndItOpensAgain) {
  this->toolkit.on_modal = [](Form&) { throw std::logic_error("of the host"); };
  EXPECT_NO_THROW(this->control.ShowPlotOption());
  this->expect_sound();
}

TYPED_TEST(ForeignErrors, OfANoticePass) {
  this->form.armed = true;
  EXPECT_THROW(this->control.BackColor(1), Foreign);
  EXPECT_THROW(this->control.HideLegend(false), Foreign);
  EXPECT_THROW(this->control.WaferStyle(WaferSt::Flat), Foreign);
  EXPECT_THROW(this->control.OnClick(), Foreign);
  this->form.armed = false;
  EXPECT_EQ(this->control.BackColor(), 1u);
  EXPECT_EQ(this->control.WaferStyle(), WaferSt::Flat);
  this->expect_sound();
}

TYPED_TEST(ForeignErrors, OfAPeerLeaveASoundControl) {
  this->toolkit.peers.fail = [] { throw Foreign(); };
  for (int n = 1; n < 60; ++n) {
    this->control.resize_to(6000, 4000);
    this->toolkit.peers.begin(n, false);
    try {
      this->control.resize_to(0, 0);
      this->control.SetPlotNotVaild();
      this->control.Plot();
      this->control.ShowPlotOption();
    } catch (const Foreign&) {
    }
    this->toolkit.peers.end();
    this->expect_sound();
    if (this->HasFailure()) FAIL() << "step " << n;
  }
}

TYPED_TEST(ForeignErrors, OfPendingEventsPutThePointerBack) {
  this->control.SetPlotNotVaild();
  this->toolkit.pending_events = [] { throw Foreign(); };
  try {
    this->control.Plot();
  } catch (const Foreign&) {
  }
  this->toolkit.pending_events = nullptr;
  this->expect_sound();
}

class ForeignErrorsOfPlot2D : public ForeignErrors<Plot2D> {};

TEST_F(ForeignErrorsOfPlot2D, OfAMessageWithinADrawingPass) {
  control.Resolution(40);
  control.wafobj.test_diam = 100;  // behind the setters' back, so the redraw has to say it
  control.SetPlotNotVaild();
  toolkit.armed = true;
  EXPECT_THROW(control.Plot(), Foreign);
  toolkit.armed = false;
  expect_sound();
}

TEST_F(ForeignErrorsOfPlot2D, OfANoticeWithinADrawingPass) {
  control.Resolution(40);
  control.wafobj.test_diam = 100;
  control.SetPlotNotVaild();
  form.armed = true;
  EXPECT_THROW(control.Plot(), Foreign);
  form.armed = false;
  expect_sound();
}

class ForeignErrorsOfLineScan : public ForeignErrors<LineScan> {};

TEST_F(ForeignErrorsOfLineScan, OfAMessagePass) {
  toolkit.armed = true;
  EXPECT_THROW(control.angle(-1), Foreign);
  toolkit.armed = false;
  EXPECT_EQ(control.angle(), 0);
  expect_sound();
}

TEST_F(ForeignErrorsOfLineScan, OfTheAnglesNoticeLeaveAFieldThatWorks) {
  control.angle(5);
  form.armed = true;
  EXPECT_THROW(control.AngleValue.Text(""), Foreign);
  EXPECT_THROW(control.angle(20), Foreign);
  form.armed = false;
  control.UpDown1.Value(25);
  EXPECT_EQ(control.AngleValue.Text(), "25");
  expect_sound();
}

class ForeignErrorsOfPlot3D : public ForeignErrors<Plot3D> {};

TEST_F(ForeignErrorsOfPlot3D, OfTheEndOfADragEndIt) {
  control.PLOTA.OnMouseDown({1, 0, 100, 100});
  form.armed = true;
  EXPECT_THROW(control.PLOTA.OnMouseUp({1, 0, 100, 100}), Foreign);
  form.armed = false;
  const std::int16_t rotation = control.GridRotation();
  control.PLOTA.OnMouseMove({0, 0, 10, 10});
  EXPECT_EQ(control.GridRotation(), rotation) << "the button is up";
  expect_sound();
}

// ---- What prints throws what its target throws, and RunTimeError of its own ----

template <class Control>
class PrintPromises : public ControlTest<Control> {};
TYPED_TEST_SUITE(PrintPromises, AllControls, ControlNames);

TYPED_TEST(PrintPromises, WhatThePageThrowsIsAllThatComesOut) {
  this->plot_square();
  const auto paper = std::make_shared<TestPrinter>();
  this->control.PrinterObj = paper;
  int told = 0;
  for (int call = 1; call < 80; ++call) {
    paper->fails_from = paper->calls() + call;
    try {
      this->control.PrintPlot(700, 900, 9000, 7000);
      this->control.PrintWaferStatistic(700, 900, "unit");
      this->control.PrintWaferSize(700, 900);
    } catch (const RunTimeError&) {
      ++told;
    }
    EXPECT_EQ(this->control.MousePointer(), 0);
  }
  EXPECT_GT(told, 0);
}

}  // namespace
}  // namespace mirolen
