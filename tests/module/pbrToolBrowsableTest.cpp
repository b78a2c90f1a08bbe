#include "moduleTest.h"

#include "assertions.h"
#include "pbrToolBrowsable.h"
#include "pbrToolServer.h"

namespace Qv {

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr BrBrowsable::ChildSearchType AnyChildren{0};
constexpr BrBrowsable::ChildSearchType ContainerChildren{1};
constexpr BrBrowsable::ChildSearchOption NoOption{0};

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

  RCShdPtr<PbrToolBrowsable> create(std::string const& path) {
    return PbrToolBrowsable::create(&server_, path);
  }

  PbrToolServer server_;
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
  for (Case const& item : std::vector<Case>{
           {"",
            Type::FOLDER,
            "Tools",
            false,
            "Tools Folder",
            true,
            false,
            {"Colour", "Key", "Key", "Empty", "Grade"}},
           {"//",
            Type::FOLDER,
            "Tools",
            false,
            "Tools Folder",
            true,
            false,
            {"Colour", "Key", "Key", "Empty", "Grade"}},
           {"Colour",
            Type::CATEGORY,
            "Colour",
            false,
            "Tool Category",
            true,
            false,
            {"invert", "Grade", "blur"}},
           {"Empty", Type::CATEGORY, "Empty", false, "Tool Category", true, false, {}},
           {"nosuch", Type::CATEGORY, "nosuch", false, "Tool Category", true, false, {}},
           {"/Grade/", Type::CATEGORY, "Grade", true, "Super Tool", true, true, {"lift"}},
           {"Colour/invert", Type::TOOL, "invert", false, "Tool", false, true, {}},
           {"/Colour//Grade", Type::TOOL, "Grade", true, "Super Tool", true, true, {}},
           {"nosuch/none", Type::TOOL, "none", false, "Tool", false, true, {}},
       }) {
    SCOPED_TRACE(item.path);
    RCShdPtr<PbrToolBrowsable> const browsable = create(item.path);
    EXPECT_EQ(browsable->getRefCount(), 1);
    EXPECT_EQ(browsable->getServer(), &server_);
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
  for (char const* path : {"a/b/c", "Colour/invert/x/y"}) {
    try {
      create(path);
      ADD_FAILURE() << path;
    } catch (ExProgramAborted const& error) {
      EXPECT_EQ(error.getFile(), "modules\\pluginBrowser\\src\\pbrToolBrowsable");
      EXPECT_EQ(error.getLine(), 171);
      EXPECT_EQ(error.getMessage(), nullptr);
    }
  }
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
    RCShdPtr<PbrToolBrowsable> const browsable = create(item.path);
    browsable->getChildren();
    browsable->isPicklistable();
    browsable->hasChildren(AnyChildren, NoOption);
    EXPECT_THAT(calls(), ElementsAreArray(item.calls));
  }
}

TEST_F(ToolBrowsable, keepsWhatItLearnt) {
  RCShdPtr<PbrToolBrowsable> const category = create("Grade");
  tools_.clear();
  EXPECT_TRUE(category->isSuperTool());
  EXPECT_THAT(collect(category->getChildren()), ElementsAre("lift"));
  EXPECT_THAT(collect(create("Grade")->getChildren()), IsEmpty());
}

TEST_F(ToolBrowsable, givesItsChildNamesAfreshAtEveryCall) {
  RCShdPtr<PbrToolBrowsable> const folder = create("");
  Iterator<std::string> names = folder->getChildren();
  names.item() = "changed";
  names.end();
  EXPECT_EQ(folder->getChildren().item(), "Colour");
}

TEST_F(ToolBrowsable, equalsItemsOfTheSamePath) {
  EXPECT_TRUE(create("Colour/blur")->isEqualTo(*create("Colour/blur")));
  EXPECT_FALSE(create("Colour/blur")->isEqualTo(*create("Key/blur")));
  EXPECT_FALSE(create("Colour/blur")->isEqualTo(*create("Colour//blur")));
}

TEST_F(ToolBrowsable, answersTheRemainingAttributes) {
  RCShdPtr<PbrToolBrowsable> const tool = create("Colour/invert");
  tool->set(int(BrBrowsable::NAME), LiString("other"));
  tool->set(int(BrBrowsable::NAME), 7LL);
  EXPECT_EQ(attribute(*tool, BrBrowsable::NAME), "invert");
  EXPECT_EQ(attribute(*tool, BrBrowsable::ROOT_NAME), "Plugin Registry");
  EXPECT_EQ(attribute(*tool, BrBrowsable::BROWSABLE_ROLE), "");
  for (unsigned int const id :
       {BrBrowsable::OWNER, BrBrowsable::LMTIME, BrBrowsable::CREATION_TIME})
    EXPECT_EQ(attribute(*tool, id), BrBrowsable::NotAvailableString);

  // Anything else is the base class's answer.
  LiString expected;
  tool->BrBrowsable::get(4711, &expected);
  EXPECT_EQ(attribute(*tool, 4711), expected);
  long long number = -1;
  tool->get(int(BrBrowsable::NAME), &number);
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
    RCShdPtr<PbrToolBrowsable> const browsable = create(item.path);
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
  EXPECT_EQ(create("Key")->getTooltip(0), "Key");
  EXPECT_EQ(create("Colour")->getTooltip(0), "Colour<br>All about colour");
  EXPECT_EQ(create("Colour/invert")->getTooltip(9), "Inverts<br>Swaps light and dark");
  EXPECT_EQ(create("Colour/blur")->getTooltip(0), "") << "the tool's second text is empty";
  tooltips_.clear();
  EXPECT_EQ(create("Colour/invert")->getTooltip(0), "Inverts");
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

} // namespace

} // namespace Qv
