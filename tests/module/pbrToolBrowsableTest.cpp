#include "moduleTest.h"

namespace Qv {

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class ToolBrowsable : public ModuleTest {
protected:
  ToolBrowsable() {
    for (char const* category : {"Colour", "Key", "Key", "Empty", "Grade"})
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
};

TEST_F(ToolBrowsable, isWhatItsPathSays) {
  struct Case {
    char const* path;
    PbrToolBrowsable::Type type;
    char const* name;
    bool superTool;
    char const* typeString;
    bool container;
    bool picklistable;
    std::vector<std::string> children;
  };
  using Type = PbrToolBrowsable;
  std::vector<std::string> const categories = {"Colour", "Key", "Key", "Empty", "Grade"};
  std::vector<std::string> const tools = {"invert", "Grade", "blur"};
  for (Case const& item :
       {Case{"", Type::FOLDER, "Tools", false, "Tools Folder", true, false, categories},
        Case{"//", Type::FOLDER, "Tools", false, "Tools Folder", true, false, categories},
        Case{"Colour", Type::CATEGORY, "Colour", false, "Tool Category", true, false, tools},
        Case{"Empty", Type::CATEGORY, "Empty", false, "Tool Category", true, false, {}},
        Case{"nosuch", Type::CATEGORY, "nosuch", false, "Tool Category", true, false, {}},
        Case{"/Grade/", Type::CATEGORY, "Grade", true, "Super Tool", true, true, {"lift"}},
        Case{"Colour/invert", Type::TOOL, "invert", false, "Tool", false, true, {}},
        Case{"/Colour//Grade", Type::TOOL, "Grade", true, "Super Tool", true, true, {}},
        Case{"nosuch/none", Type::TOOL, "none", false, "Tool", false, true, {}}}) {
    SCOPED_TRACE(item.path);
    RCShdPtr<PbrToolBrowsable> const browsable = tool(item.path);
    EXPECT_EQ(browsable->getRefCount(), 1);
    EXPECT_EQ(browsable->getServer(), &toolServer_);
    EXPECT_EQ(browsable->getPath(), item.path);
    EXPECT_EQ(browsable->getSchemeName(), "tools");
    EXPECT_EQ(browsable->getToolBrowsableType(), item.type);
    EXPECT_EQ(browsable->getToolName(), item.name);
    EXPECT_EQ(browsable->isSuperTool(), item.superTool);
    EXPECT_EQ(browsable->isAContainer(), item.container);
    EXPECT_EQ(browsable->hasChildren(AnyChildren, NoOption), item.container);
    EXPECT_EQ(browsable->hasChildren(ContainerChildren, NoOption),
              item.type == PbrToolBrowsable::FOLDER);
    EXPECT_EQ(browsable->isPicklistable(), item.picklistable);
    EXPECT_THAT(collect(browsable->getChildren()), ElementsAreArray(item.children));
    EXPECT_EQ(attribute(*browsable, BrBrowsable::NAME), item.name);
    EXPECT_EQ(attribute(*browsable, BrBrowsable::BROWSABLE_TYPE), item.typeString);
  }
}

TEST_F(ToolBrowsable, refusesLongerPaths) {
  for (char const* path : {"a/b/c", "Colour/invert/x/y"})
    expectAbort([&] { tool(path); }, "pbrToolBrowsable", 171);
}

TEST_F(ToolBrowsable, asksTheRegistryOnceAndNeverAgain) {
  struct Case {
    char const* path;
    std::vector<std::string> calls;
  };
  for (Case const& item : std::vector<Case>{
           {"", {"PiToolRegistry::getCategories()"}},
           {"Key", {"PiToolRegistry::getTools(Key)", "PiToolRegistry::isSuperTool(Key)"}},
           {"Key/x", {"PiToolRegistry::isSuperTool(x)"}},
       }) {
    journal_.start();
    RCShdPtr<PbrToolBrowsable> const browsable = tool(item.path);
    browsable->getChildren();
    browsable->isPicklistable();
    browsable->hasChildren(AnyChildren, NoOption);
    EXPECT_THAT(calls(), ElementsAreArray(item.calls));
  }
}

TEST_F(ToolBrowsable, keepsWhatItLearnt) {
  RCShdPtr<PbrToolBrowsable> const category = tool("Grade");
  tools_.clear();
  EXPECT_TRUE(category->isSuperTool());
  EXPECT_THAT(collect(category->getChildren()), ElementsAre("lift"));
  EXPECT_THAT(collect(tool("Grade")->getChildren()), IsEmpty());
}

TEST_F(ToolBrowsable, givesItsChildNamesAfreshAtEveryCall) {
  RCShdPtr<PbrToolBrowsable> const folder = tool("");
  Iterator<std::string> names = folder->getChildren();
  names.item() = "changed";
  names.end();
  EXPECT_EQ(folder->getChildren().item(), "Colour");
}

TEST_F(ToolBrowsable, equalsItemsOfTheSamePath) {
  EXPECT_TRUE(tool("Colour/blur")->isEqualTo(*tool("Colour/blur")));
  EXPECT_FALSE(tool("Colour/blur")->isEqualTo(*tool("Key/blur")));
  EXPECT_FALSE(tool("Colour/blur")->isEqualTo(*tool("Colour//blur")));
}

TEST_F(ToolBrowsable, answersTheRemainingAttributes) {
  RCShdPtr<PbrToolBrowsable> const item = tool("Colour/invert");
  item->set(int(BrBrowsable::NAME), LiString("other"));
  item->set(int(BrBrowsable::NAME), 7LL);
  EXPECT_EQ(attribute(*item, BrBrowsable::NAME), "invert");
  EXPECT_EQ(attribute(*item, BrBrowsable::ROOT_NAME), "Plugin Registry");
  EXPECT_EQ(attribute(*item, BrBrowsable::BROWSABLE_ROLE), "");
  for (unsigned int const id :
       {BrBrowsable::OWNER, BrBrowsable::LMTIME, BrBrowsable::CREATION_TIME})
    EXPECT_EQ(attribute(*item, id), BrBrowsable::NotAvailableString);

  // Anything else is the base class's answer.
  LiString expected;
  item->BrBrowsable::get(4711, &expected);
  EXPECT_EQ(attribute(*item, 4711), expected);
  long long number = -1;
  item->get(int(BrBrowsable::NAME), &number);
  EXPECT_EQ(number, 0);
}

TEST_F(ToolBrowsable, showsTheThumbnailOfItsKind) {
  struct Case {
    char const* path;
    LiString key;
  };
  for (Case const& item : std::vector<Case>{{"", BrRegistry::FolderThumbnail},
                                            {"Colour", BrRegistry::FolderThumbnail},
                                            {"Grade", BrRegistry::SuperToolThumbnail},
                                            {"Colour/Grade", BrRegistry::SuperToolThumbnail},
                                            {"Colour/invert", BrRegistry::ToolThumbnail}}) {
    RCShdPtr<PbrToolBrowsable> const browsable = tool(item.path);
    journal_.start();
    browsable->getImage(int(BrBrowsable::THUMBNAIL), {1, 1});
    EXPECT_THAT(journal_.getEntries(),
                ElementsAre(HostJournal::Entry{"BrRegistry::getThumbnail", item.key, ""}));
    EXPECT_FALSE(browsable->getImage(int(BrBrowsable::NAME), {128, 128}));
    EXPECT_EQ(journal_.getEntries().size(), 1U);
  }
}

TEST_F(ToolBrowsable, composesItsTooltip) {
  tooltips_.setTooltip("invert", "Swaps light and dark");
  tooltips_.setTooltip("Colour", "All about colour");
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

/// An item that says itself whether it is a container.
class OwnContainer final : public PbrToolBrowsable {
public:
  OwnContainer(BrServer* server, std::string const& path, bool container)
      : PbrToolBrowsable(server, path), container_(container) {}

  bool isAContainer() const override { return container_; }

private:
  bool container_;
};

TEST_F(ToolBrowsable, asksItselfWhetherItIsAContainer) {
  for (bool const container : {true, false}) {
    RCShdPtr<OwnContainer> const item(new OwnContainer(&toolServer_, "Colour", container));
    EXPECT_EQ(item->hasChildren(AnyChildren, NoOption), container);
    EXPECT_EQ(item->hasChildren(BrBrowsable::ChildSearchType(2), NoOption), container);
    EXPECT_EQ(item->isPicklistable(), !container);
    for (int const filter : {0, 1, 3})
      EXPECT_EQ(
          paths(item->getChildren(BrBrowsable::FindFilter(filter))->getNextChildSequence()).empty(),
          !container);
  }
  EXPECT_FALSE(
      paths(tool("")->getChildren(BrBrowsable::FindFilter(1))->getNextChildSequence()).empty());
}

TEST_F(ToolBrowsable, passesItsFlagsToTheRegistry) {
  journal_.start();
  tool("Colour")->getTooltip(0);
  EXPECT_THAT(
      journal_.getEntries(),
      testing::IsSupersetOf({HostJournal::Entry{"PiToolRegistry::getTools", "Colour", "true"},
                             HostJournal::Entry{"PiToolRegistry::findTool", "Colour", "false"}}));
}

TEST_F(ToolBrowsable, equalsAnItemOfAnotherClassAtTheSamePath) {
  EXPECT_TRUE(tool("graph")->isEqualTo(*view("graph")));
}

} // namespace

} // namespace Qv
