#include "mirolen/dialogs/PropertyDialog.h"

#include <gtest/gtest.h>

#include <map>

#include "dialogs/form_layout.h"
#include "fake_control.h"
#include "mirolen/dialogs/WaferInfoProp.h"
#include "mirolen/dialogs/plan_pages.h"
#include "mirolen/dialogs/view_pages.h"
#include "mirolen/widgets/Headless.h"

namespace mirolen {
namespace {

using Names = std::vector<std::string>;
using Writes = FakeControl::Writes;

Names names_of(const PropertyPage::Selection& selected) {
  Names names;
  for (const PageKind* kind : pages_for(selected)) names.emplace_back(kind->name);
  return names;
}

class Pages : public testing::Test {
 protected:
  PropertyPage::Selection select(const Names& classes) {
    PropertyPage::Selection selected;
    for (const std::string& name : classes) {
      infos_[name].name = name;
      selected.push_back({&infos_[name], nullptr});
    }
    return selected;
  }

 private:
  std::map<std::string, automation::ClassInfo> infos_;
};

TEST_F(Pages, ServeTheControlWhoseNameTheyBear) {
  const std::map<std::string, Names> served{{"LineScan", {"WaferInfoProp", "LineScanAngleProp"}},
                                            {"Plot2D", {"WaferInfoProp", "Plot2DProp"}},
                                            {"Plot2DS", {"WaferInfoProp", "Plot2DSProp"}},
                                            {"Plot2DC", {"WaferInfoProp", "Plot2DCProp"}},
                                            {"Plot2DN", {"WaferInfoProp"}},
                                            {"Plot2DB", {"WaferInfoProp"}},
                                            {"Plot3D", {"WaferInfoProp", "Plot3DProp"}},
                                            {"Plot3DS", {"WaferInfoProp", "Plot3DSProp"}},
                                            {"Histogram", {"WaferInfoProp", "HistogrammProp"}}};
  for (const auto& [control, pages] : served) EXPECT_EQ(names_of(select({control})), pages) << control;
  EXPECT_EQ(page_kinds().size(), 8u);
}

TEST_F(Pages, OfSeveralControlsAreThoseThatServeAll) {
  EXPECT_EQ(names_of(select({"Plot3D", "Plot3D"})), (Names{"WaferInfoProp", "Plot3DProp"}));
  EXPECT_EQ(names_of(select({"Plot3D", "Plot2D"})), (Names{"WaferInfoProp"}));
  EXPECT_EQ(names_of(select({"Plot2DN", "Plot2DN", "Histogram"})), (Names{"WaferInfoProp"}));
}

TEST_F(Pages, OfNothingAndOfOtherObjectsAreNone) {
  EXPECT_EQ(names_of({}), Names{});
  EXPECT_EQ(names_of(select({"wafer"})), Names{});
  EXPECT_EQ(names_of(select({"Plot2D", "wafer"})), Names{});
}

class PropertyDialogTest : public testing::Test {
 protected:
  /// The dialog in the hands of a user.
  void shown_to(const std::function<void(PropertyDialog&)>& user, const PropertyPage::Selection& selected) {
    bool seen = false;
    toolkit.on_modal = [&](Form& form) {
      seen = true;
      user(dynamic_cast<PropertyDialog&>(form));
    };
    PropertyDialog dialog(toolkit, selected);
    dialog.Show();
    EXPECT_TRUE(seen);
    EXPECT_FALSE(dialog.Visible);
  }
  void shown_to(const std::function<void(PropertyDialog&)>& user) { shown_to(user, {control.object()}); }

  static WaferInfoProp& wafer_page(PropertyDialog& dialog) {
    return dynamic_cast<WaferInfoProp&>(dialog.page(0));
  }
  static Plot2DProp& plot_page(PropertyDialog& dialog) { return dynamic_cast<Plot2DProp&>(dialog.page(1)); }

  HeadlessToolkit toolkit;
  FakeControl control = fake_Plot2D();
};

TEST_F(PropertyDialogTest, ShowsItsPagesSideBySide) {
  const PropertyDialog dialog(toolkit, {control.object()});
  ASSERT_EQ(dialog.pages(), 2);
  const PropertyPage &first = dialog.page(0), &second = dialog.page(1);
  EXPECT_GT(second.Left.get(), first.Left + first.Width);
  EXPECT_EQ(first.Top.get(), second.Top.get());
}

TEST_F(PropertyDialogTest, HasNoPageBesideItsOwn) {
  PropertyDialog dialog(toolkit, {control.object()});
  for (const int index : {-1, 2}) EXPECT_THROW(dialog.page(index), SubscriptOutOfRange);
}

TEST_F(PropertyDialogTest, OffersApplyWhileSomethingIsChanged) {
  shown_to([&](PropertyDialog& dialog) {
    EXPECT_FALSE(dialog.apply.Enabled);
    plot_page(dialog).txtResolution.Text("6");
    EXPECT_TRUE(dialog.apply.Enabled);
    dialog.apply.OnClick();
    EXPECT_FALSE(dialog.apply.Enabled);
    EXPECT_TRUE(dialog.Visible);
    EXPECT_EQ(control["Resolution"], automation::Variant(6.0));
    wafer_page(dialog).showLeg.Value(true);
    EXPECT_TRUE(dialog.apply.Enabled);
  });
  EXPECT_EQ(control["HideLegend"], automation::Variant(false));
}

TEST_F(PropertyDialogTest, OkWritesTheChangedPagesAlone) {
  shown_to([](PropertyDialog& dialog) {
    plot_page(dialog).chkShowSites.Value(true);
    dialog.OKbtn.OnClick();
    EXPECT_FALSE(dialog.Visible);
  });
  EXPECT_EQ(control.writes, (Writes{{"Resolution", 5.0}, {"ShowSites", std::int32_t{-1}}}));
}

TEST_F(PropertyDialogTest, OkWithoutAnEditWritesNothing) {
  shown_to([](PropertyDialog& dialog) { dialog.OKbtn.OnClick(); });
  EXPECT_EQ(control.writes, Writes{});
}

TEST_F(PropertyDialogTest, CancelAndClosingChangeNothing) {
  const auto edit = [](PropertyDialog& dialog) {
    wafer_page(dialog).txtWaferDiameter.Text("100");
    wafer_page(dialog).nfbox(2).Value(true);
    plot_page(dialog).txtResolution.Text("");
  };
  shown_to([&](PropertyDialog& dialog) {
    edit(dialog);
    dialog.cancel.OnClick();
    EXPECT_FALSE(dialog.Visible);
  });
  shown_to(edit);
  EXPECT_EQ(control.writes, Writes{});
}

TEST_F(PropertyDialogTest, RefusedDiametersKeepItOpen) {
  shown_to([&](PropertyDialog& dialog) {
    wafer_page(dialog).txtTestDiameter.Text("250");
    wafer_page(dialog).nfbox(2).Value(true);
    plot_page(dialog).txtResolution.Text("7");
    dialog.OKbtn.OnClick();
    EXPECT_TRUE(dialog.Visible);
    EXPECT_EQ(toolkit.messages.size(), 1u);
    EXPECT_EQ(wafer_page(dialog).txtTestDiameter.Text(), "250");
    EXPECT_TRUE(dialog.apply.Enabled);
    EXPECT_EQ(control["Resolution"], automation::Variant(7.0));
    EXPECT_EQ(control["WaferStyle"], automation::Variant(std::int32_t{2}));
    EXPECT_EQ(control["TestDiameter"], automation::Variant(194.0));
    wafer_page(dialog).txtTestDiameter.Text("150");
    dialog.OKbtn.OnClick();
    EXPECT_FALSE(dialog.Visible);
  });
  EXPECT_EQ(control["TestDiameter"], automation::Variant(150.0));
  EXPECT_EQ(toolkit.messages.size(), 1u);
}

TEST_F(PropertyDialogTest, ApplyShowsWhatTheControlHolds) {
  FakeControl surface = fake_Plot3D();
  shown_to(
      [&](PropertyDialog& dialog) {
        auto& page = dynamic_cast<Plot3DProp&>(dialog.page(1));
        page.txtPlotScale.Text("99999");
        dialog.apply.OnClick();
        EXPECT_EQ(page.txtPlotScale.Text(), "40");
        EXPECT_FALSE(dialog.apply.Enabled);
      },
      {surface.object()});
}

TEST_F(PropertyDialogTest, OfSeveralControlsShowsTheFirstAndWritesEach) {
  FakeControl other = fake_Plot3D();
  other.put("WaferDiameter", 300.0);
  shown_to(
      [](PropertyDialog& dialog) {
        EXPECT_EQ(dialog.pages(), 1);
        EXPECT_EQ(wafer_page(dialog).txtWaferDiameter.Text(), "300");
        wafer_page(dialog).txtTestDiameter.Text("290");
        dialog.OKbtn.OnClick();
      },
      {other.object(), control.object()});
  const Writes to_both{{"TestDiameter", 290.0}, {"WaferStyle", std::int32_t{1}}, {"HideLegend", false}};
  EXPECT_EQ(other.writes, to_both) << "its wafer stays";
  Writes with_wafer = to_both;
  with_wafer.insert(with_wafer.begin(), {"WaferDiameter", 300.0});
  EXPECT_EQ(control.writes, with_wafer);
}

TEST_F(PropertyDialogTest, OfSeveralControlsTellsOnceThatDiametersDoNotFit) {
  FakeControl other = fake_Plot3D();
  shown_to(
      [&](PropertyDialog& dialog) {
        wafer_page(dialog).txtTestDiameter.Text("250");
        wafer_page(dialog).nfbox(2).Value(true);
        dialog.apply.OnClick();
        EXPECT_EQ(toolkit.messages.size(), 1u);
      },
      {other.object(), control.object()});
  EXPECT_EQ(other.writes, (Writes{{"WaferStyle", std::int32_t{2}}, {"HideLegend", false}}));
  EXPECT_EQ(control.writes, other.writes);
}

TEST_F(PropertyDialogTest, APageOfItsOwnWritesTheControlInHandAlone) {
  FakeControl other = fake_Plot2D();
  Form owner(toolkit);
  Plot2DProp page(&owner);
  page.SelectionChanged({other.object(), control.object()});
  EXPECT_TRUE(page.ApplyChanges());
  EXPECT_EQ(other.writes, (Writes{{"Resolution", 5.0}, {"ShowSites", std::int32_t{0}}}));
  EXPECT_EQ(control.writes, Writes{});
}

TEST_F(PropertyDialogTest, OfNothingCanBeClosed) {
  shown_to(
      [](PropertyDialog& dialog) {
        EXPECT_EQ(dialog.pages(), 0);
        EXPECT_FALSE(dialog.apply.Enabled);
        dialog.OKbtn.OnClick();
      },
      {});
}

TEST_F(PropertyDialogTest, AnswersTheKeyboard) {
  PropertyDialog dialog(toolkit, {control.object()});
  EXPECT_EQ(dialog.DefaultButton, &dialog.OKbtn);
  EXPECT_EQ(dialog.CancelButton, &dialog.cancel);
}

TEST_F(PropertyDialogTest, FitsASmallScreen) {
  for (FakeControl& fake : all_fakes()) {
    const PropertyDialog dialog(toolkit, {fake.object()});
    EXPECT_LE(dialog.Width.get(), 640 * 15);
    EXPECT_LE(dialog.Height.get(), 300 * 15);
  }
}

TEST_F(PropertyDialogTest, LeavesEachPageTheHeightOfItsRows) {
  for (FakeControl& fake : all_fakes()) {
    const PropertyDialog dialog(toolkit, {fake.object()});
    const std::vector<const PageKind*> kinds = pages_for({fake.object()});
    for (int i = 0; i < dialog.pages(); ++i) {
      Form owner(toolkit);
      EXPECT_EQ(dialog.page(i).Height.get(), kinds[static_cast<std::size_t>(i)]->make(&owner)->Height.get())
          << kinds[static_cast<std::size_t>(i)]->name;
    }
  }
}

TEST_F(PropertyDialogTest, TellsTheUnitAndTheRangeOfEachField) {
  const std::string millimetres = "mm, more than 0", degrees = "degrees, 0 to 360";
  const std::string deviations = "standard deviations", height = "height of the surface";
  const Names view{millimetres, millimetres, height, degrees, degrees, degrees};
  Names sigma_view = view;
  sigma_view.push_back(deviations);
  const std::map<std::string, Names> tips{{"LineScan", {degrees}},
                                          {"Plot2D", {millimetres}},
                                          {"Plot2DS", {millimetres, deviations}},
                                          {"Plot2DC", {"unit of the interval, more than 0"}},
                                          {"Plot3D", view},
                                          {"Plot3DS", sigma_view},
                                          {"Histogram", {"classes, more than 0"}}};
  for (FakeControl& fake : all_fakes()) {
    const PropertyDialog dialog(toolkit, {fake.object()});
    Names told;
    for (const Widget* widget : below(dialog))
      if (widget->kind() == WidgetKind::text_field) told.push_back(widget->ToolTipText);
    Names expected{millimetres, "mm, not more than the wafer diameter"};
    const Names& own = tips.at(fake.object().info->name);
    expected.insert(expected.end(), own.begin(), own.end());
    EXPECT_EQ(told, expected) << fake.object().info->name;
  }
}

TEST_F(PropertyDialogTest, CutsNoCaption) {
  for (FakeControl& fake : all_fakes()) expect_whole_captions(PropertyDialog(toolkit, {fake.object()}));
}

TEST_F(PropertyDialogTest, HoldsItsWidgetsApart) {
  for (FakeControl& fake : all_fakes()) {
    SCOPED_TRACE(fake.object().info->name);
    expect_inside_and_apart(PropertyDialog(toolkit, {fake.object()}));
  }
}

}  // namespace
}  // namespace mirolen
