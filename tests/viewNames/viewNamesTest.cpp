#include "moduleTest.h"

#include "uiViewFactory.h"

namespace Qv {

namespace {

using testing::ElementsAre;

using ViewNames = Vector<LiString>;

/// What the factory of this program knows.
RCStrongPtr<ViewNames> viewNames;

} // namespace

// Called in place of the host library's, which refuses such names.
Iterator<LiString> UiViewFactory::getViews() { return makeIterator(viewNames); }

namespace {

class ViewNamesWithSeparators : public ModuleTest {
protected:
  ~ViewNamesWithSeparators() override { viewNames = RCStrongPtr<ViewNames>(); }

  RCShdPtr<PbrViewBrowsable> const folder_ = view("");
};

TEST_F(ViewNamesWithSeparators, endTheSequenceThatIsStillPending) {
  viewNames = RCStrongPtr<ViewNames>(new ViewNames{"viewer", "graph", "a/b", "curves"});
  RCShdPtr<BrChildrenQuery> const query = folder_->getChildren(AllChildren);
  for (int round = 0; round < 2; ++round) {
    long const before = liveAllocations();
    expectAbort([&] { query->getNextChildSequence(); }, "pbrViewBrowsable", 113);
    EXPECT_EQ(liveAllocations() - before, 0) << "the views before it go";
  }
  viewNames->at(2) = "b";
  EXPECT_THAT(paths(query->getNextChildSequence()), ElementsAre("viewer", "graph", "b", "curves"));
}

TEST_F(ViewNamesWithSeparators, areLeftOutWhenItemsAreAskedFor) {
  viewNames = RCStrongPtr<ViewNames>(
      new ViewNames{"viewer", "a/b", "graph", "", "/", "/x/", "a/b/c", "viewer"});
  EXPECT_THAT(paths(folder_->getChildren(ItemsOnly)->getNextChildSequence()),
              ElementsAre("viewer", "graph", "/x/", "viewer"));
}

} // namespace

} // namespace Qv
