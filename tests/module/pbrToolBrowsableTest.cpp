#include "moduleTest.h"

namespace Qv {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ToolBrowsable : public ModuleTest {
protected:
  ToolBrowsable() {
    for (std::string const& category : categories_)
      tools_.addCategory(category);
    tools_.addTool(
        {.name = "invert", .category = "Colour", .infoTexts = {"Invert", "Inverts", ""}});
    tools_.addTool({.name = "hidden", .category = "Colour", .internal = true});
    tools_.addTool({.name = "Grade", .category = "Colour", .superTool = true});
    tools_.addTool({.name = "retired", .category = "Colour", .active = false});
    tools_.addTool({.name = "blur", .category = "Colour"});
    tools_.addTool({.name = "lift", .category = "Grade"});
    tools_.addTool({.name = "secret", .category = "Empty", .internal = true});
  }

  Texts const categories_ = {"Colour", "Key", "Key", "Empty", "Grade"};
};

/// What items of the same look have in common.
struct Kind {
  PbrToolBrowsable::Type type;
  bool superTool;
  char const* typeString;
  char const* thumbnail;
  bool container;
  bool picklistable;
};

TEST_F(ToolBrowsable, isWhatItsPathSays) {
  using Item = PbrToolBrowsable;
  Kind const folder{Item::FOLDER, false, "Tools Folder", "folderThumbnail", true, false};
  Kind const category{Item::CATEGORY, false, "Tool Category", "folderThumbnail", true, false};
  Kind const superCategory{Item::CATEGORY, true, "Super Tool", "superToolThumbnail", true, true};
  Kind const superTool{Item::TOOL, true, "Super Tool", "superToolThumbnail", true, true};
  Kind const plainTool{Item::TOOL, false, "Tool", "toolThumbnail", false, true};
  struct Case {
    char const* path;
    Kind const& kind;
    char const* name;
    Texts children;
  };
  for (Case const& item :
       {Case{"", folder, "Tools", categories_}, Case{"//", folder, "Tools", categories_},
        Case{"Colour", category, "Colour", {"invert", "Grade", "blur"}},
        Case{"Empty", category, "Empty", {}}, Case{"nosuch", category, "nosuch", {}},
        Case{"/Grade/", superCategory, "Grade", {"lift"}},
        Case{"Colour/invert", plainTool, "invert", {}},
        Case{"/Colour//Grade", superTool, "Grade", {}},
        Case{"nosuch/none", plainTool, "none", {}}}) {
    SCOPED_TRACE(item.path);
    RCShdPtr<PbrToolBrowsable> const browsable = tool(item.path);
    EXPECT_EQ(browsable->getRefCount(), 1);
    EXPECT_EQ(browsable->getServer(), &toolServer_);
    EXPECT_EQ(browsable->getPath(), item.path);
    EXPECT_EQ(browsable->getSchemeName(), "tools");
    EXPECT_EQ(browsable->getToolBrowsableType(), item.kind.type);
    EXPECT_EQ(browsable->getToolName(), item.name);
    EXPECT_EQ(browsable->isSuperTool(), item.kind.superTool);
    EXPECT_EQ(browsable->isAContainer(), item.kind.container);
    EXPECT_EQ(browsable->isPicklistable(), item.kind.picklistable);
    EXPECT_EQ(collect(browsable->getChildren()), item.children);
    EXPECT_EQ(attribute(*browsable, BrBrowsable::NAME), item.name);
    EXPECT_EQ(attribute(*browsable, BrBrowsable::BROWSABLE_TYPE), item.kind.typeString);
    expectChildren(*browsable, item.kind.container, &item.kind == &folder);
    expectThumbnail(*browsable, LiString(item.kind.thumbnail));
  }
}

TEST_F(ToolBrowsable, keepsWhatItLearnt) {
  RCShdPtr<PbrToolBrowsable> const category = tool("Grade");
  tools_.clear();
  EXPECT_TRUE(category->isSuperTool());
  category->getChildren().item() = "changed";
  EXPECT_THAT(collect(category->getChildren()), ElementsAre("lift"));
  EXPECT_THAT(collect(tool("Grade")->getChildren()), IsEmpty());
}

TEST_F(ToolBrowsable, equalsItemsOfTheSamePath) {
  EXPECT_TRUE(tool("Colour/blur")->isEqualTo(*tool("Colour/blur")));
  EXPECT_FALSE(tool("Colour/blur")->isEqualTo(*tool("Key/blur")));
  EXPECT_FALSE(tool("Colour/blur")->isEqualTo(*tool("Colour//blur")));
  EXPECT_TRUE(tool("graph")->isEqualTo(*view("graph"))) << "even of another class";
}

TEST_F(ToolBrowsable, composesItsTooltip) {
  tooltips_.addTooltip("invert", "Swaps light and dark");
  tooltips_.addTooltip("Colour", "All about colour");
  EXPECT_EQ(tool("Key")->getTooltip(0), "Key");
  EXPECT_EQ(tool("Colour")->getTooltip(0), "Colour<br>All about colour");
  EXPECT_EQ(tool("Colour/invert")->getTooltip(9), "Inverts<br>Swaps light and dark");
  EXPECT_EQ(tool("Colour/blur")->getTooltip(0), "") << "the tool's second text is empty";
  tooltips_.clear();
  EXPECT_EQ(tool("Colour/invert")->getTooltip(0), "Inverts");
}

TEST_F(ToolBrowsable, hasAPrototype) {
  RCShdPtr<PbrToolBrowsable> const prototype = PbrToolBrowsable::createBrowsableType();
  EXPECT_EQ(prototype->getServer(), nullptr);
  EXPECT_EQ(prototype->getToolBrowsableType(), PbrToolBrowsable::TOOL);
  EXPECT_EQ(prototype->getToolName(), "unknown");
  EXPECT_EQ(prototype->getPath(), "unknown");
  EXPECT_FALSE(prototype->isSuperTool());
  EXPECT_THAT(collect(prototype->getChildren()), IsEmpty());
}

TEST_F(ToolBrowsable, asksTheRegistriesOnceAndInOrder) {
  using Entry = HostJournal::Entry;
  journal_.start();
  tool("")->isPicklistable();
  tool("Colour")->getTooltip(0);
  tool("Key/x")->getChildren();
  EXPECT_THAT(journal_.getEntries(),
              ElementsAre(Entry{"PiToolRegistry::getCategories", "", ""},
                          Entry{"PiToolRegistry::getTools", "Colour", "true"},
                          Entry{"PiToolRegistry::isSuperTool", "Colour", ""},
                          Entry{"PiToolRegistry::findTool", "Colour", "false"},
                          Entry{"TtServer::lookupTooltip", "Colour", ""},
                          Entry{"PiToolRegistry::isSuperTool", "x", ""}));
}

class ToolChildrenQuery : public ToolBrowsable {};

/// An item that says itself whether it is a container.
struct OwnContainer final : PbrToolBrowsable {
  explicit OwnContainer(BrServer* server) : PbrToolBrowsable(server, "Colour") {}
  bool isAContainer() const override { return container; }

  bool container = false;
};

TEST_F(ToolChildrenQuery, asksTheItemWhetherItIsAContainer) {
  RCShdPtr<OwnContainer> const item(new OwnContainer(&toolServer_));
  RCShdPtr<BrChildrenQuery> const query = item->getChildren(AllChildren);
  for (bool const container : {false, true}) {
    item->container = container;
    expectChildren(*item, container, false);
    EXPECT_EQ(item->isPicklistable(), !container);
    EXPECT_EQ(childPaths(*item, 0).size(), container ? 3U : 0U);
    EXPECT_THAT(paths(query->getNextChildSequence()), IsEmpty()) << "nothing, or asked before";
  }
  query->reset();
  EXPECT_EQ(paths(query->getNextChildSequence()).size(), 3U);
}

TEST_F(ToolChildrenQuery, listsTheChildrenOnceInTheOrderOfTheRegistry) {
  RCShdPtr<PbrToolBrowsable> const folder = tool("");
  RCShdPtr<BrChildrenQuery> const query = folder->getChildren(AllChildren);
  Iterator<RCShdPtr<BrBrowsable>> const children = query->getNextChildSequence();
  EXPECT_TRUE(children.atBegin());
  EXPECT_EQ(paths(children), categories_);
  EXPECT_EQ(children.item()->getServer(), &toolServer_);
  EXPECT_THAT(paths(query->getNextChildSequence()), IsEmpty());

  tools_.clear();
  query->reset();
  Iterator<RCShdPtr<BrBrowsable>> const again = query->getNextChildSequence();
  EXPECT_EQ(paths(again), categories_);
  EXPECT_FALSE(again.item() == children.item());
}

TEST_F(ToolChildrenQuery, yieldsWhatTheContainerAndTheFilterSay) {
  Texts const colours = {"/Colour/invert", "/Colour/Grade", "/Colour/blur"};
  struct Case {
    char const* path;
    Texts children;
    Texts items;
  };
  for (Case const& item :
       {Case{"", categories_, {}}, Case{"/", {"/Colour", "/Key", "/Key", "/Empty", "/Grade"}, {}},
        Case{"Empty", {}, {}}, Case{"/Colour/", colours, colours}, Case{"Colour/Grade", {}, {}},
        Case{"Colour/invert", {}, {}}}) {
    SCOPED_TRACE(item.path);
    RCShdPtr<PbrToolBrowsable> const browsable = tool(item.path);
    for (int const filter : {0, 1, 3})
      EXPECT_EQ(childPaths(*browsable, filter), item.children);
    EXPECT_EQ(childPaths(*browsable, ItemsOnly), item.items);
  }
}

} // namespace

} // namespace Qv
