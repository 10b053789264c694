#include "mirolen/widgets/Widget.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "mirolen/widgets/ControlArray.h"
#include "mirolen/widgets/Headless.h"
#include "mirolen/widgets/widgets.h"

namespace mirolen {
namespace {

/// Counts what its properties tell it.
class Listener {
 public:
  Property<Listener, int> number{*this, 7};
  Property<Listener, std::string> text{*this, "start"};
  int changes = 0;

  void changed() { ++changes; }
};

TEST(Property, ReadsAsTheValueItWasMadeWith) {
  const Listener listener;
  const int number = listener.number;
  EXPECT_EQ(number, 7);
  EXPECT_EQ(listener.text.get(), "start");
  EXPECT_EQ(listener.changes, 0);
}

TEST(Property, TellsItsOwnerOfEachChange) {
  Listener listener;
  listener.number = 8;
  EXPECT_EQ(listener.changes, 1);
  listener.text = "other";
  EXPECT_EQ(listener.changes, 2);
  EXPECT_EQ(listener.number.get(), 8);
  EXPECT_EQ(listener.text.get(), "other");
}

TEST(Property, IsSilentWhenTheValueStays) {
  Listener listener;
  listener.number = 7;
  listener.text = "start";
  EXPECT_EQ(listener.changes, 0);
}

TEST(Property, TakesTheValueOfAnotherPropertyAndKeepsItsOwner) {
  Listener one, other;
  other.number = 99;
  one.number = other.number;
  EXPECT_EQ(one.number.get(), 99);
  EXPECT_EQ(one.changes, 1);
  EXPECT_EQ(other.changes, 1);
  one.number = 5;
  EXPECT_EQ(other.number.get(), 99);
}

class WidgetTree : public testing::Test {
 protected:
  HeadlessToolkit toolkit;
  UserControl root{toolkit};
};

TEST_F(WidgetTree, ARootHasNoContainer) {
  EXPECT_EQ(root.container(), nullptr);
  EXPECT_EQ(root.kind(), WidgetKind::user_control);
  EXPECT_TRUE(root.children().empty());
}

TEST_F(WidgetTree, ChildrenStandInTheOrderOfTheirCreation) {
  Frame back(&root);
  Label middle(&root);
  Button front(&root);
  EXPECT_EQ(root.children(), (std::vector<Widget*>{&back, &middle, &front}));
  EXPECT_EQ(middle.container(), &root);
}

TEST_F(WidgetTree, AChildOfAChildBelongsToItsOwnContainerOnly) {
  Frame frame(&root);
  Label label(&frame);
  EXPECT_EQ(frame.children(), std::vector<Widget*>{&label});
  EXPECT_EQ(root.children(), std::vector<Widget*>{&frame});
}

TEST_F(WidgetTree, EveryWidgetKnowsTheToolkitOfItsRoot) {
  Frame frame(&root);
  Label label(&frame);
  EXPECT_EQ(&label.toolkit(), &toolkit);
}

TEST_F(WidgetTree, SiblingsMayGoInAnyOrder) {
  std::vector<int> order{0, 1, 2, 3};
  do {
    std::vector<std::unique_ptr<Label>> labels;
    for (int i = 0; i < 4; ++i) labels.push_back(std::make_unique<Label>(&root));
    std::vector<Widget*> left = root.children();
    for (const int i : order) {
      std::erase(left, labels[static_cast<std::size_t>(i)].get());
      labels[static_cast<std::size_t>(i)].reset();
      ASSERT_EQ(root.children(), left);
    }
  } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(WidgetTree, EachKindTellsItself) {
  EXPECT_EQ(Frame(&root).kind(), WidgetKind::frame);
  EXPECT_EQ(Label(&root).kind(), WidgetKind::label);
  EXPECT_EQ(Button(&root).kind(), WidgetKind::button);
  EXPECT_EQ(Shape(&root).kind(), WidgetKind::shape);
  EXPECT_EQ(LineShape(&root).kind(), WidgetKind::line);
  EXPECT_EQ(ImageBox(&root).kind(), WidgetKind::image_box);
}

TEST_F(WidgetTree, AMoveLeavesWhatIsLeftOut) {
  Label label(&root);
  label.Move(1, 2, 3, 4);
  label.Move(10);
  EXPECT_EQ(label.Left.get(), 10);
  EXPECT_EQ(label.Top.get(), 2);
  EXPECT_EQ(label.Width.get(), 3);
  EXPECT_EQ(label.Height.get(), 4);
  label.Move(11, {}, 30);
  EXPECT_EQ(label.Left.get(), 11);
  EXPECT_EQ(label.Top.get(), 2);
  EXPECT_EQ(label.Width.get(), 30);
  EXPECT_EQ(label.Height.get(), 4);
}

TEST_F(WidgetTree, WorksWithoutPeers) {
  Label label(&root);
  root.realize();
  label.Width = 300;
  label.Refresh();
  EXPECT_EQ(label.peer(), nullptr);
  EXPECT_EQ(label.Width.get(), 300);
}

TEST_F(WidgetTree, AHiddenContainerLeavesItsChildrenAsTheyAre) {
  Frame frame(&root);
  Label label(&frame);
  frame.Visible = false;
  EXPECT_TRUE(label.Visible);
}

using Boxes = ControlArray<Shape, 1, 10>;

TEST_F(WidgetTree, AControlArrayCountsFromItsFirstNumber) {
  const Boxes boxes(&root);
  EXPECT_EQ(Boxes::LBound(), 1);
  EXPECT_EQ(Boxes::UBound(), 10);
  EXPECT_EQ((ControlArray<Label, 0, 3>::LBound()), 0);
  EXPECT_EQ((ControlArray<Label, 0, 3>::UBound()), 2);
  EXPECT_EQ(root.children().size(), 10u);
}

TEST_F(WidgetTree, AControlArrayRefusesNumbersOutsideItsBounds) {
  const Boxes boxes(&root);
  EXPECT_NO_THROW(boxes(1));
  EXPECT_NO_THROW(boxes(10));
  for (const int index : {0, 11, -1, 1000000, -2147483647 - 1, 2147483647})
    EXPECT_THROW(boxes(index), SubscriptOutOfRange) << index;
}

TEST_F(WidgetTree, AControlArrayStandsInTheOrderOfItsNumbers) {
  const Boxes boxes(&root);
  const auto roles = boxes.as<ColorBox>();
  for (int i = 1; i <= 10; ++i) {
    EXPECT_EQ(root.children()[static_cast<std::size_t>(i - 1)], &boxes(i));
    roles[static_cast<std::size_t>(i - 1)]->set_color(static_cast<Color>(i));
    EXPECT_EQ(boxes(i).BackColor.get(), static_cast<Color>(i));
  }
}

}  // namespace
}  // namespace mirolen
