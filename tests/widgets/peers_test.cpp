#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "mirolen/widgets/Headless.h"
#include "mirolen/widgets/PictureBox.h"
#include "mirolen/widgets/widgets.h"

namespace mirolen {
namespace {

struct Told {
  int changes = 0, refreshes = 0, peers = 0;
  double width = 0;
};

/// A toolkit whose peers count what they are told.
class PeerToolkit : public HeadlessToolkit {
 public:
  std::unique_ptr<Peer> make_peer(Widget& widget) override {
    EXPECT_TRUE(!widget.container() || widget.container()->peer()) << "a container comes first";
    made.push_back(&widget);
    ++told[&widget].peers;
    return std::make_unique<CountingPeer>(*this, widget, told[&widget]);
  }

  std::vector<const Widget*> made;
  bool fail = false;  ///< The peers throw, and no std::exception.
  std::map<const Widget*, Told> told;

 private:
  class CountingPeer : public Peer {
   public:
    CountingPeer(const PeerToolkit& toolkit, const Widget& widget, Told& told)
        : toolkit_(toolkit), widget_(widget), told_(told) {}
    void changed() override {
      if (toolkit_.fail) throw 5;
      ++told_.changes;
      told_.width = widget_.Width;
    }
    void refresh() override {
      if (toolkit_.fail) throw 5;
      ++told_.refreshes;
    }
    std::uintptr_t handle() const override { return 4711; }

   private:
    const PeerToolkit& toolkit_;
    const Widget& widget_;
    Told& told_;
  };
};

class Peers : public testing::Test {
 protected:
  void realize() {
    root.realize();
    for (auto& [widget, told] : toolkit.told) told.changes = told.refreshes = 0;
  }
  Told& told(const Widget& widget) { return toolkit.told[&widget]; }

  PeerToolkit toolkit;
  UserControl root{toolkit};
  Frame frame{&root};
  Label inner{&frame};
  PictureBox picture{&root};
};

TEST_F(Peers, AreMadeContainerFirstAndInOrder) {
  realize();
  EXPECT_EQ(toolkit.made, (std::vector<const Widget*>{&root, &frame, &inner, &picture}));
  for (const Widget* widget : toolkit.made) EXPECT_NE(widget->peer(), nullptr);
}

TEST_F(Peers, SeeTheStateTheyStartWith) {
  inner.Width = 450;
  root.realize();
  EXPECT_EQ(told(inner).width, 450);
}

TEST_F(Peers, AreToldOfEachChangeOfTheirOwnWidget) {
  realize();
  inner.Width = 450;
  EXPECT_EQ(told(inner).changes, 1);
  EXPECT_EQ(told(inner).width, 450);
  inner.Caption = "text";
  inner.Visible = false;
  inner.BackColor = 0;
  inner.ToolTipText = "tip";
  inner.Centered = true;
  EXPECT_EQ(told(inner).changes, 6);
  EXPECT_EQ(told(frame).changes, 0);
  EXPECT_EQ(told(root).changes, 0);
}

TEST_F(Peers, HearNothingWhenAValueStays) {
  realize();
  inner.Width = inner.Width;
  inner.Visible = true;
  EXPECT_EQ(told(inner).changes, 0);
}

TEST_F(Peers, OfPicturesAreToldToo) {
  realize();
  picture.Width = 3000;
  picture.BackColor = 0xFFFFFF;
  EXPECT_GE(told(picture).changes, 2);
  EXPECT_EQ(told(picture).width, 3000);
}

TEST_F(Peers, SeeAnAutomaticWidth) {
  inner.AutoSize = true;
  realize();
  inner.Caption = "0123456789";
  EXPECT_NEAR(told(inner).width, 10 * 0.6 * 8 * 20, 1e-6);
}

TEST_F(Peers, OfAControlHearOfItsMousePointer) {
  realize();
  root.MousePointer = 11;
  EXPECT_EQ(told(root).changes, 1);
}

TEST_F(Peers, RepaintOnRefresh) {
  realize();
  inner.Refresh();
  EXPECT_EQ(told(inner).refreshes, 1);
  EXPECT_EQ(told(frame).refreshes, 0);
}

TEST_F(Peers, ThatFailLeaveTheValueAndCatchUp) {
  realize();
  toolkit.fail = true;
  EXPECT_NO_THROW(inner.Width = 450);
  EXPECT_NO_THROW(root.MousePointer = 11);
  EXPECT_NO_THROW(frame.Refresh());
  EXPECT_EQ(inner.Width.get(), 450);
  EXPECT_EQ(told(inner).width, 0);
  EXPECT_FALSE(root.catch_up()) << "they fail still";
  toolkit.fail = false;
  EXPECT_TRUE(root.catch_up());
  EXPECT_EQ(told(inner).width, 450);
  EXPECT_EQ(told(root).changes, 1);
  EXPECT_EQ(told(picture).changes, 0);
  EXPECT_FALSE(root.catch_up()) << "all is shown";
}

TEST_F(Peers, ThatFailOnceAreRightAfterTheNextChange) {
  realize();
  toolkit.fail = true;
  inner.Width = 450;
  toolkit.fail = false;
  inner.Height = 300;
  EXPECT_EQ(told(inner).width, 450);
  EXPECT_FALSE(root.catch_up());
}

TEST_F(Peers, AWidgetIsSeenWhileNothingAroundItIsHidden) {
  EXPECT_TRUE(inner.is_seen());
  frame.Visible = false;
  EXPECT_FALSE(inner.is_seen());
  EXPECT_TRUE(picture.is_seen());
  frame.Visible = true;
  inner.Visible = false;
  EXPECT_FALSE(inner.is_seen());
}

TEST_F(Peers, GoWithTheirWidgets) {
  auto* button = new Button(&root);
  realize();
  EXPECT_NE(button->peer(), nullptr);
  delete button;
  EXPECT_EQ(root.children(), (std::vector<Widget*>{&frame, &picture}));
}

}  // namespace
}  // namespace mirolen
