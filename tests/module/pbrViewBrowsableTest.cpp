#include "moduleTest.h"

#include "hostImage.h"

namespace Qv {

namespace {

class ViewBrowsable : public ModuleTest {
protected:
  ViewBrowsable() {
    views_.addView({"graph", "Node Graph"});
    views_.addView({"Views", "All Views"});
    tooltips_.setTooltip("graph", "Shows the nodes");
    tooltips_.setTooltip("Views", "What can be opened");
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
    EXPECT_THAT(calls(), testing::IsEmpty()) << "whether there is such a view is not asked";
    EXPECT_EQ(browsable->getRefCount(), 1);
    EXPECT_EQ(browsable->getServer(), &viewServer_);
    EXPECT_EQ(browsable->getPath(), item.path);
    EXPECT_EQ(browsable->getSchemeName(), "views");
    EXPECT_EQ(browsable->getViewBrowsableType(), item.folder ? 0 : 1);
    EXPECT_EQ(browsable->getViewName(), item.viewName);
    EXPECT_EQ(browsable->isAContainer(), item.folder);
    EXPECT_EQ(browsable->hasChildren(AnyChildren, NoOption), item.folder);
    EXPECT_FALSE(browsable->hasChildren(ContainerChildren, NoOption));
    EXPECT_EQ(browsable->isPicklistable(), !item.folder);
    EXPECT_EQ(attribute(*browsable, BrBrowsable::NAME), item.shownName);
    EXPECT_EQ(attribute(*browsable, BrBrowsable::BROWSABLE_TYPE),
              item.folder ? "Views Folder" : "View");
    EXPECT_EQ(attribute(*browsable, BrBrowsable::ROOT_NAME), "Plugin Registry");
    EXPECT_EQ(browsable->getTooltip(7), item.tooltip);

    LiString const& key = item.folder ? BrRegistry::FolderThumbnail : BrRegistry::ViewThumbnail;
    journal_.start();
    auto const image = browsable->getImage(int(BrBrowsable::THUMBNAIL), {1, 1});
    EXPECT_THAT(journal_.getEntries(),
                testing::ElementsAre(HostJournal::Entry{"BrRegistry::getThumbnail", key, ""}));
    EXPECT_EQ(image.checkedCast<HostImage>()->getName(), key + ".tif");
    EXPECT_EQ(browsable->getImage(int(BrBrowsable::THUMBNAIL), {512, 512}), image);
    EXPECT_FALSE(browsable->getImage(int(BrBrowsable::NAME), {1, 1}));
  }
}

TEST_F(ViewBrowsable, refusesLongerPaths) {
  for (char const* path : {"a/b", "/graph//graph/", "a/b/c"})
    expectAbort([&] { view(path); }, "pbrViewBrowsable", 113);
}

TEST_F(ViewBrowsable, equalsItemsOfTheSameViewName) {
  EXPECT_TRUE(view("/graph")->isEqualTo(*view("graph//")));
  EXPECT_TRUE(view("")->isEqualTo(*view("Views")));
  EXPECT_FALSE(view("graph")->isEqualTo(*view("Graph")));
  EXPECT_FALSE(view("graph")->isEqualTo(*tool("graph")));
}

TEST_F(ViewBrowsable, answersTheRemainingAttributes) {
  RCShdPtr<PbrViewBrowsable> const item = view("graph");
  item->set(int(BrBrowsable::NAME), LiString("other"));
  item->set(int(BrBrowsable::NAME), 7LL);
  EXPECT_EQ(attribute(*item, BrBrowsable::NAME), "Node Graph");
  for (unsigned int const id :
       {BrBrowsable::OWNER, BrBrowsable::LMTIME, BrBrowsable::CREATION_TIME})
    EXPECT_EQ(attribute(*item, id), BrBrowsable::NotAvailableString);

  // Anything else is the base class's answer.
  for (unsigned int const id : {BrBrowsable::BROWSABLE_ROLE, 4711U}) {
    LiString expected;
    item->BrBrowsable::get(int(id), &expected);
    EXPECT_EQ(attribute(*item, id), expected);
  }
}

TEST_F(ViewBrowsable, hasAPrototype) {
  RCShdPtr<PbrViewBrowsable> const prototype = PbrViewBrowsable::createBrowsableType();
  EXPECT_EQ(prototype->getServer(), nullptr);
  EXPECT_EQ(prototype->getViewName() + prototype->getPath(), "");
}

} // namespace

} // namespace Qv
