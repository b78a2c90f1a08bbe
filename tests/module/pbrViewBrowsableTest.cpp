#include "moduleTest.h"

#include "pbrViewDndHandler.h"

namespace Qv {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ViewBrowsable : public ModuleTest {
protected:
  ViewBrowsable() {
    views_.addView({"graph", "Node Graph"});
    views_.addView({"Views", "All Views"});
    tooltips_.addTooltip("graph", "Shows the nodes");
    tooltips_.addTooltip("Views", "What can be opened");
  }
};

TEST_F(ViewBrowsable, isWhatItsPathSays) {
  struct Case {
    char const* path;
    bool folder;
    char const* viewName;
    char const* shownName;
    char const* tooltip;
  };
  for (Case const& item : {Case{"", true, "Views", "Views", "What can be opened"},
                           Case{"//", true, "Views", "Views", "What can be opened"},
                           Case{"//graph/", false, "graph", "Node Graph", "Shows the nodes"},
                           Case{"Views", false, "Views", "All Views", "What can be opened"},
                           Case{"no such", false, "no such", "no such", ""}}) {
    SCOPED_TRACE(item.path);
    journal_.start();
    RCShdPtr<PbrViewBrowsable> const browsable = view(item.path);
    EXPECT_THAT(calls(), IsEmpty()) << "whether there is such a view is not asked";
    EXPECT_EQ(browsable->getRefCount(), 1);
    EXPECT_EQ(browsable->getServer(), &viewServer_);
    EXPECT_EQ(browsable->getPath(), item.path);
    EXPECT_EQ(browsable->getSchemeName(), "views");
    EXPECT_EQ(browsable->getViewBrowsableType(), item.folder ? 0 : 1);
    EXPECT_EQ(browsable->getViewName(), item.viewName);
    EXPECT_EQ(browsable->isAContainer(), item.folder);
    EXPECT_EQ(browsable->isPicklistable(), !item.folder);
    EXPECT_EQ(attribute(*browsable, BrBrowsable::NAME), item.shownName);
    EXPECT_EQ(attribute(*browsable, BrBrowsable::BROWSABLE_TYPE),
              item.folder ? "Views Folder" : "View");
    EXPECT_EQ(browsable->getTooltip(7), item.tooltip);
    expectChildren(*browsable, item.folder, false);
    expectThumbnail(*browsable,
                    item.folder ? BrRegistry::FolderThumbnail : BrRegistry::ViewThumbnail);
  }
}

TEST_F(ViewBrowsable, equalsItemsOfTheSameViewName) {
  EXPECT_TRUE(view("/graph")->isEqualTo(*view("graph//")));
  EXPECT_TRUE(view("")->isEqualTo(*view("Views")));
  EXPECT_FALSE(view("graph")->isEqualTo(*view("Graph")));
  EXPECT_FALSE(view("graph")->isEqualTo(*tool("graph")));
}

TEST_F(ViewBrowsable, hasAPrototype) {
  RCShdPtr<PbrViewBrowsable> const prototype = PbrViewBrowsable::createBrowsableType();
  EXPECT_EQ(prototype->getServer(), nullptr);
  EXPECT_EQ(prototype->getViewName() + prototype->getPath(), "");
}

class ViewChildrenQuery : public ViewBrowsable {};

/// A view that lists views of its own.
struct ViewOfViews final : PbrViewBrowsable {
  explicit ViewOfViews(BrServer* server) : PbrViewBrowsable(server, "graph") {}
  bool isAContainer() const override { return true; }
  LiString getPath() const override { return ""; }
};

TEST_F(ViewChildrenQuery, asksTheItemWhetherItIsAContainer) {
  RCShdPtr<PbrViewBrowsable> const item(new ViewOfViews(&viewServer_));
  expectChildren(*item, true, false);
  EXPECT_FALSE(item->isPicklistable());
  EXPECT_THAT(childPaths(*item, 0), ElementsAre("graph", "Views"));
  EXPECT_FALSE(PbrViewDndHandler().willPopulateSelection(item));
}

TEST_F(ViewChildrenQuery, listsTheViewsOnceInTheOrderOfTheFactory) {
  for (std::string const path : {"", "/"}) {
    RCShdPtr<PbrViewBrowsable> const folder = view(path);
    EXPECT_THAT(childPaths(*folder, ItemsOnly), ElementsAre(path + "graph", path + "Views"));
    RCShdPtr<BrChildrenQuery> const query = folder->getChildren(AllChildren);
    Iterator<RCShdPtr<BrBrowsable>> const children = query->getNextChildSequence();
    EXPECT_TRUE(children.atBegin());
    EXPECT_THAT(paths(children), ElementsAre(path + "graph", path + "Views"));
    EXPECT_EQ(children.item()->getServer(), &viewServer_);
    EXPECT_EQ(children.item().checkedCast<PbrViewBrowsable>()->getViewName(), "graph");
    EXPECT_THAT(paths(query->getNextChildSequence()), IsEmpty());
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
  journal_.start();
  EXPECT_THAT(childPaths(*view("graph"), 0), IsEmpty());
  EXPECT_THAT(calls(), IsEmpty());
}

} // namespace

} // namespace Qv
