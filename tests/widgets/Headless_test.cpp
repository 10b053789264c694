#include "mirolen/widgets/Headless.h"

#include <gtest/gtest.h>

#include "mirolen/widgets/PictureBox.h"
#include "mirolen/widgets/widgets.h"
#include "support/NullSurface.h"

namespace mirolen {
namespace {

using Message = HeadlessToolkit::Message;

TEST(HeadlessToolkit, KeepsMessagesInTheirOrder) {
  HeadlessToolkit toolkit;
  toolkit.message_box("one", "first", MessageIcon::critical);
  toolkit.message_box("two", "second", MessageIcon::none);
  EXPECT_EQ(toolkit.messages, (std::vector<Message>{{"one", "first", MessageIcon::critical},
                                                    {"two", "second", MessageIcon::none}}));
}

TEST(HeadlessToolkit, RunsThePendingEventsOfTheTest) {
  HeadlessToolkit toolkit;
  toolkit.paint_pending();
  int runs = 0;
  toolkit.pending_events = [&] { ++runs; };
  toolkit.paint_pending();
  toolkit.paint_pending();
  EXPECT_EQ(runs, 2);
}

TEST(HeadlessToolkit, KeepsTheFocus) {
  HeadlessToolkit toolkit;
  UserControl root(toolkit);
  Button button(&root);
  EXPECT_EQ(toolkit.focused, nullptr);
  button.SetFocus();
  EXPECT_EQ(toolkit.focused, &button);
  root.SetFocus();
  EXPECT_EQ(toolkit.focused, &root);
}

TEST(HeadlessToolkit, OffersThePrinterItWasGiven) {
  HeadlessToolkit toolkit;
  EXPECT_EQ(toolkit.default_printer(), nullptr);
  RecordingSurface page;
  toolkit.printer = std::make_shared<SurfaceCanvas>(CanvasKind::printer, &page);
  EXPECT_EQ(toolkit.default_printer(), toolkit.printer);
}

TEST(HeadlessToolkit, ShowsSystemColoursInLightGrey) {
  const HeadlessToolkit toolkit;
  EXPECT_EQ(toolkit.resolve(0x8000000F), 0xC0C0C0u);
  EXPECT_EQ(toolkit.resolve(0x80000005), 0xC0C0C0u);
  EXPECT_EQ(toolkit.resolve(0x123456), 0x123456u);
  EXPECT_EQ(toolkit.resolve(0), 0u);
}

TEST(HeadlessToolkit, MeasuresWithFixedMetricsInPixels) {
  const HeadlessToolkit toolkit;
  EXPECT_EQ(toolkit.twips_per_pixel(), (SurfaceSize{15, 15}));
  const SurfaceSize size = toolkit.measure({"Arial", 10, false, false}, "abcd");
  EXPECT_NEAR(size.width, 4 * 0.6 * 10 * 20 / 15, 1e-9);
  EXPECT_NEAR(size.height, 1.2 * 10 * 20 / 15, 1e-9);
}

/// Its pictures record nothing.
class BlindToolkit : public HeadlessToolkit {
 public:
  std::unique_ptr<Surface> make_surface(PictureBox&) override {
    return std::make_unique<NullSurface>(SurfaceSize{1, 1});
  }
};

TEST(HeadlessToolkit, HasNoRecordingOfAForeignPicture) {
  BlindToolkit toolkit;
  UserControl root(toolkit);
  const PictureBox box(&root);
  EXPECT_THROW(recording_of(box), CanvasError);
}

TEST(HeadlessContainer, KeepsScaleModeAndChanges) {
  HeadlessContainer form;
  form.ScaleMode(1);
  form.changed("TestDiameter");
  form.changed("Resolution");
  EXPECT_EQ(form.scale_mode, 1);
  EXPECT_EQ(form.changes, (std::vector<std::string>{"TestDiameter", "Resolution"}));
}

TEST(HeadlessContainer, KeepsEventsWithTheirNumbers) {
  HeadlessContainer form;
  form.Click();
  form.DblClick();
  form.MouseDown({1, 0, 30, 40});
  form.MouseMove({3, 7, -1, 2.5});
  form.MouseUp({4, 2, 0, 0});
  EXPECT_EQ(form.events, (std::vector<std::string>{"Click", "DblClick", "MouseDown 1 0 30 40",
                                                   "MouseMove 3 7 -1 2.5", "MouseUp 4 2 0 0"}));
}

}  // namespace
}  // namespace mirolen
