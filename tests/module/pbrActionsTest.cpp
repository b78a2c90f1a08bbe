#include "moduleTest.h"

#include "actTypedAction.h"
#include "hostActRegistry.h"
#include "hostWorkspace.h"
#include "snItemBasic.h"

namespace Qv {

namespace {

using Browser = RCShdPtr<BrBrowser>;
using Node = RCShdPtr<BrNode>;
using Item = RCShdPtr<SnItem const>;

template <class T> Item carry(T const& value) {
  return Item(new SnItemBasic<T>(value, RCShdPtr<SnParts>()));
}

class Actions : public ModuleTest {
protected:
  Actions() {
    initializePackage();
    HostWorkspace::setCurrent(workspace_);
  }
  ~Actions() override { HostWorkspace::setCurrent(RCShdPtr<UiWorkspace>()); }

  Node toolNode() { return BrNode::create(tool("x/graph")); }
  Node viewNode(std::string const& path) { return BrNode::create(view(path)); }
  static ActTypedAction<Browser, Node>& typed(HostActRegistry::Entry const& entry) {
    return dynamic_cast<ActTypedAction<Browser, Node>&>(*entry.action);
  }

  HostActRegistry& actions_ = HostActRegistry::getInstance();
  RCShdPtr<HostWorkspace> const workspace_{new HostWorkspace};
  Item const browser_ = carry(Browser(new BrBrowser));
  Node const emptyNode_ = BrNode::create(RCShdPtr<BrBrowsable>());
};

TEST_F(Actions, areOfferedForWhatTheViewSchemeShows) {
  ASSERT_EQ(actions_.getEntries().size(), 2U);
  for (HostActRegistry::Entry const& entry : actions_.getEntries()) {
    EXPECT_EQ(entry.state, 0);
    for (Node const& node : {viewNode(""), viewNode("graph")}) {
      EXPECT_TRUE(typed(entry).typedInputValid(Browser(), node));
      EXPECT_TRUE(HostActRegistry::isValid(*entry.action, browser_, carry(node)));
    }
    for (Node const& node : {Node(), emptyNode_, toolNode(), BrNode::create(tool(""))}) {
      EXPECT_FALSE(typed(entry).typedInputValid(Browser(), node));
      EXPECT_FALSE(HostActRegistry::isValid(*entry.action, browser_, carry(node)));
    }
    EXPECT_FALSE(HostActRegistry::isValid(*entry.action, carry(viewNode("")), browser_));
  }
}

TEST_F(Actions, openTheViewInTheWorkspace) {
  actions_.perform("Open", browser_, carry(viewNode("/graph/")));
  actions_.perform("Open in Window", Item(), carry(viewNode("/nosuch/")));
  actions_.perform("Open", Item(), carry(viewNode("")));
  using Request = HostWorkspace::Request;
  EXPECT_THAT(workspace_->getRequests(),
              testing::ElementsAre(Request{"graph", false, true}, Request{"nosuch", true, false},
                                   Request{"Views", false, true}));
}

TEST_F(Actions, reportTheFirstThatIsMissingAndOpenNothing) {
  for (HostActRegistry::Entry const& entry : actions_.getEntries()) {
    auto const missing = [&](Node const& node) {
      return nullPointeeOf([&] { typed(entry).typedPerformAction(Browser(), node); });
    };
    HostWorkspace::setCurrent(RCShdPtr<UiWorkspace>());
    EXPECT_EQ(missing(Node()), "Qv::BrNode*");
    for (Node const& node : {viewNode("graph"), toolNode(), emptyNode_})
      EXPECT_EQ(missing(node), "Qv::UiWorkspace*");
    HostWorkspace::setCurrent(workspace_);
    for (Node const& node : {toolNode(), emptyNode_})
      EXPECT_EQ(missing(node), "Qv::PbrViewBrowsable*");
  }
  EXPECT_TRUE(workspace_->getRequests().empty());
}

} // namespace

} // namespace Qv
