#include "moduleTest.h"

namespace Qv {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ViewChildrenQuery : public ModuleTest {
protected:
  ViewChildrenQuery() {
    for (char const* name : {"viewer", "graph", "curves"})
      views_.addView({name, std::string("label of ") + name});
  }
};

TEST_F(ViewChildrenQuery, listsTheViewsOnceInTheOrderOfTheFactory) {
  for (std::string const path : {"", "/"}) {
    RCShdPtr<PbrViewBrowsable> const folder = view(path);
    for (BrBrowsable::FindFilter const filter : {AllChildren, ItemsOnly}) {
      RCShdPtr<BrChildrenQuery> const query = folder->getChildren(filter);
      Iterator<RCShdPtr<BrBrowsable>> const children = query->getNextChildSequence();
      EXPECT_TRUE(children.atBegin());
      EXPECT_THAT(paths(children), ElementsAre(path + "viewer", path + "graph", path + "curves"));
      EXPECT_EQ(children.item()->getServer(), &viewServer_);
      EXPECT_EQ(children.item().checkedCast<PbrViewBrowsable>()->getViewName(), "viewer");
      EXPECT_THAT(paths(query->getNextChildSequence()), IsEmpty());
      EXPECT_THAT(paths(query->getNextChildSequence()), IsEmpty());
    }
  }
}

TEST_F(ViewChildrenQuery, listsWhatTheFactoryKnowsAtThatMoment) {
  RCShdPtr<PbrViewBrowsable> const folder = view("");
  RCShdPtr<BrChildrenQuery> const query = folder->getChildren(AllChildren);
  views_.clear();
  EXPECT_THAT(paths(query->getNextChildSequence()), IsEmpty());
  views_.addView({"late", ""});
  EXPECT_THAT(paths(query->getNextChildSequence()), IsEmpty()) << "an empty list is delivered too";
  query->reset();
  EXPECT_THAT(paths(query->getNextChildSequence()), ElementsAre("late"));
}

TEST_F(ViewChildrenQuery, yieldsNothingForAView) {
  RCShdPtr<PbrViewBrowsable> const item = view("graph");
  RCShdPtr<BrChildrenQuery> const query = item->getChildren(AllChildren);
  journal_.start();
  for (int round = 0; round < 2; ++round) {
    EXPECT_THAT(paths(query->getNextChildSequence()), IsEmpty());
    query->reset();
  }
  EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(ViewChildrenQuery, losesNothingWhenMemoryRunsOut) {
  RCShdPtr<PbrViewBrowsable> const folder = view("");
  EXPECT_GT(
      forEachFailingAllocation([&] { folder->getChildren(ItemsOnly)->getNextChildSequence()++; }),
      10);
}

} // namespace

} // namespace Qv
