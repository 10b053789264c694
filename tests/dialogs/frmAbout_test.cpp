#include "mirolen/dialogs/frmAbout.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <variant>

#include "dialogs/form_layout.h"
#include "mirolen/core/version.h"
#include "mirolen/dialogs/control_icons.h"
#include "mirolen/widgets/Headless.h"
#include "support/about_names.h"

namespace mirolen {
namespace {

const std::map<std::int16_t, std::string> titles = [] {
  std::map<std::int16_t, std::string> by_type;
  for (std::int16_t type = 1; const AboutName& name : about_names) by_type[type++] = name.title;
  return by_type;
}();

/// The corners of what a call covers.
std::vector<SurfacePoint> places_of(const recorded::Call& call) {
  if (const auto* line = std::get_if<recorded::Line>(&call)) return {line->from, line->to};
  if (const auto* round = std::get_if<recorded::Ellipse>(&call))
    return {{round->centre.x - round->radii.width, round->centre.y - round->radii.height},
            {round->centre.x + round->radii.width, round->centre.y + round->radii.height}};
  std::vector<SurfacePoint> places;
  if (const auto* polygon = std::get_if<recorded::Polygon>(&call))
    for (const PixelPoint& corner : polygon->points)
      places.push_back({static_cast<double>(corner.x), static_cast<double>(corner.y)});
  return places;
}

class AboutBox : public testing::Test {
 protected:
  HeadlessToolkit toolkit;
  frmAbout box{toolkit};

  /// The calls that draw something.
  static Recording drawn(const PictureBox& picture) {
    Recording calls;
    for (const recorded::Call& call : recording_of(picture))
      if (!std::holds_alternative<recorded::Clear>(call) && !std::holds_alternative<recorded::Refresh>(call))
        calls.push_back(call);
    return calls;
  }
};

TEST_F(AboutBox, NamesTheLibraryAndItsVersion) {
  EXPECT_EQ(box.Caption.get(), "Sonvera.OCX ActiveX Control");
  EXPECT_EQ(box.lblVersion.Caption.get(),
            "Version " + std::to_string(version().major) + "." + std::to_string(version().minor));
  EXPECT_NE(box.lblDescription.Caption.get().find("MirolenViewWM"), std::string::npos);
}

TEST_F(AboutBox, NamesEveryControl) {
  for (const auto& [type, title] : titles) {
    box.SetTitle(type);
    EXPECT_EQ(box.lblTitle.Caption.get(), title);
  }
}

TEST_F(AboutBox, LeavesTheStartOfTheTitleAloneForAnyOtherType) {
  for (const std::int16_t type : {0, 10, -1, -32768, 32767}) {
    box.SetTitle(3);
    box.SetTitle(type);
    EXPECT_EQ(box.lblTitle.Caption.get(), "Sonvera.OCX Type: ") << type;
    EXPECT_TRUE(drawn(box.picIcon).empty()) << type;
  }
}

TEST_F(AboutBox, HasAnIconForEachControl) {
  EXPECT_EQ(box.picIcon.pixel_size(), (SurfaceSize{32, 32}));
  std::vector<Recording> icons;
  for (const auto& [type, title] : titles) {
    box.SetTitle(type);
    const Recording icon = drawn(box.picIcon);
    EXPECT_FALSE(icon.empty()) << title;
    for (const Recording& other : icons) EXPECT_NE(icon, other) << title;
    icons.push_back(icon);
  }
}

TEST_F(AboutBox, DrawsAnIconTheSameWayAfterEveryOther) {
  for (const auto& [type, title] : titles) {
    frmAbout fresh(toolkit);
    fresh.SetTitle(type);
    box.SetTitle(type);
    EXPECT_EQ(drawn(box.picIcon), drawn(fresh.picIcon)) << title;
  }
}

TEST_F(AboutBox, DrawsWithinItsIcon) {
  for (const auto& [type, title] : titles) {
    box.SetTitle(type);
    for (const recorded::Call& call : drawn(box.picIcon))
      for (const SurfacePoint& place : places_of(call)) {
        EXPECT_TRUE(place.x >= 0 && place.x < icon_side) << title << ' ' << place.x;
        EXPECT_TRUE(place.y >= 0 && place.y < icon_side) << title << ' ' << place.y;
      }
  }
}

TEST_F(AboutBox, IsHiddenByItsButton) {
  bool seen = false;
  toolkit.on_modal = [&](Form&) {
    EXPECT_TRUE(box.Visible);
    box.cmdOK.OnClick();
    seen = !box.Visible;
  };
  box.Show();
  EXPECT_TRUE(seen);
}

TEST_F(AboutBox, ReturnAndEscapePressItsButton) {
  EXPECT_EQ(box.DefaultButton, &box.cmdOK);
  EXPECT_EQ(box.CancelButton, &box.cmdOK);
  box.Show();
  EXPECT_EQ(toolkit.focused, &box.cmdOK);
}

TEST_F(AboutBox, HoldsItsChildrenApart) { expect_inside_and_apart(box); }

}  // namespace
}  // namespace mirolen
