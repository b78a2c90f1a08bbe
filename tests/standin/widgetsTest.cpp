#include "allocations.h"
#include "thrown.h"
#include "uiSplitPane.h"

#include <gmock/gmock.h>

namespace Qv {

namespace {

using Pane = RCShdPtr<UiPane>;

class Widgets : public NoLeaks {
protected:
  static Pane pane(char const* name) { return Pane(new UiPane(name)); }
};

TEST_F(Widgets, stayWithTheirParentWhenMemoryRunsOut) {
  Pane const child = pane("child");
  Pane const before = pane("before");
  before->add(child);
  EXPECT_GT(forEachFailingAllocation(
                [&] {
                  Pane const after = pane("after");
                  after->add(child);
                  EXPECT_EQ(child->getParent(), after.get());
                  EXPECT_TRUE(before->getChildren().empty());
                },
                [&] {
                  EXPECT_EQ(child->getParent(), before.get());
                  EXPECT_EQ(before->getChildren().size(), 1U);
                }),
            0);
}

TEST_F(Widgets, ofASplitPaneStayWhenOthersAreRefused) {
  auto const split = UiSplitPane::create(RCShdPtr<UiContainer>(), "split", nullptr);
  Vector<Pane> const panes{pane("one"), pane("two")};
  split->setPanes(panes, nullptr);
  EXPECT_TRUE(split->openPane(panes[1]));
  EXPECT_FALSE(split->openPane(pane("foreign")));
  EXPECT_EQ(nullPointeeOf([&] {
              split->setPanes({pane("three"), Pane()}, nullptr);
            }),
            "Qv::UiPane*");
  EXPECT_EQ(split->getOpenPane(), panes[1]);
  EXPECT_THAT(split->getChildren(), testing::ElementsAre(panes[0], panes[1]));
  EXPECT_EQ(panes[0]->getParent(), split.get());
}

} // namespace

} // namespace Qv
