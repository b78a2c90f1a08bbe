#include "moduleTest.h"

#include "drCarrier.h"
#include "fakeEngine.h"
#include "hostPath.h"
#include "hostTool.h"
#include "omUtil.h"
#include "pbrToolDndHandler.h"
#include "pbrViewDndHandler.h"
#include "uiViewFactory.h"

#include <optional>

namespace Qv {

namespace {

using testing::ElementsAre;

using ToolPtr = RCShdPtr<PiTool const>;

/// The predicates destroyed in all, and before the registry was queried.
int destroyedPredicates = 0;
int destroyedBeforeQuery = 0;

/// A registry that rejects nothing: it returns the same tools for any category, and does not know
/// how many there are.
class AnyToolRegistry final : public PiToolRegistry {
public:
  ToolPtr findTool(std::string const& /*name*/, bool /*flag*/) override { return ToolPtr(); }
  ToolPtr getTool(std::string const& /*name*/) override { return tools.values.at(0); }
  Iterator<ToolPtr> getTools(PrdPredicate<ToolPtr> const& /*predicate*/, bool /*flag*/) override {
    destroyedBeforeQuery = destroyedPredicates;
    return iteratorOver(tools);
  }
  Iterator<std::string> getCategories() override { return iteratorOver(categories); }
  bool isSuperTool(std::string const& /*name*/) override { return false; }

  FakeSequence<std::string> categories;
  FakeSequence<ToolPtr> tools;
};

AnyToolRegistry toolRegistry;

/// What the view factory returns.
FakeSequence<LiString> viewNames;

/// The components of the last parsed path, in an engine that the host keeps sharing.
FakeSequence<std::string> components;
std::optional<Iterator<std::string>> sharedComponents;

int writtenAttributes = 0;

/// The parts that each selection item was made with.
std::string parts;

} // namespace

// These replace the functions of the host libraries.

PiToolRegistry& PiToolRegistry::getInstance() { return toolRegistry; }

Iterator<LiString> UiViewFactory::getViews() { return iteratorOver(viewNames); }

Iterator<std::string> OmUtil::parsePath(OsFilePath const& path) {
  components.values.clear();
  std::string_view rest(path.getChars());
  for (auto name = HostPath::takeComponent(rest); !name.empty();
       name = HostPath::takeComponent(rest))
    components.values.emplace_back(name);
  components.cardinality = int(components.values.size());
  sharedComponents.emplace(iteratorOver(components));
  return *sharedComponents;
}

void BrBrowsable::get(int attributeId, long long* value) { *value = attributeId; }

void BrBrowsable::get(int attributeId, LiString* value) {
  *value = "host's " + std::to_string(attributeId);
}

void BrBrowsable::set(int /*attributeId*/, long long /*value*/) { ++writtenAttributes; }

void BrBrowsable::set(int /*attributeId*/, LiString const& /*value*/) { ++writtenAttributes; }

SnItem::SnItem(RCShdPtr<SnParts> const& given) : parts_(given) { parts += given ? "some " : "no "; }

/// Only what the destructor of a predicate needs.
template <class T> class PrdTerm : public RCBase<LkCounter<int>> {};

template <class T> PrdPredicate<T>::~PrdPredicate() { ++destroyedPredicates; }
template PrdPredicate<ToolPtr>::~PrdPredicate();

namespace {

/// A different host, with these categories, tools and views; reset after each test.
class OtherHost : public ModuleTest {
protected:
  OtherHost() {
    viewNames.values = {"viewer", "graph", "a/b", "curves"};
    toolRegistry.categories.values = {"x/y", "z", "a/b/c", "", "/x//y/"};
    toolRegistry.tools.values = {2, ToolPtr(new HostTool({.name = "blur", .category = "z"}))};
  }
  ~OtherHost() override {
    sharedComponents.reset();
    components = {};
    viewNames = {};
    toolRegistry = AnyToolRegistry();
    destroyedPredicates = destroyedBeforeQuery = writtenAttributes = 0;
    parts.clear();
  }
};

/// Expects `f` to throw ExProgramAborted for that place, without a message.
template <class F> void expectAbort(F f, std::string const& file, int line) {
  auto const ex = thrownBy<ExProgramAborted>(f);
  EXPECT_EQ(ex.getFile(), "modules\\pluginBrowser\\src\\" + file);
  EXPECT_EQ(ex.getLine(), line);
  EXPECT_EQ(ex.getMessage(), nullptr);
}

TEST_F(OtherHost, answersForAttributesThatItemsLack) {
  using Item = RCShdPtr<BrBrowsable>;
  for (Item const& item :
       {Item(tool("")), Item(tool("x")), Item(tool("x/y")), Item(view("")), Item(view("graph"))}) {
    SCOPED_TRACE(item->getSchemeName() + " " + item->getPath());
    std::string const name = attribute(*item, BrBrowsable::NAME);
    for (int const id : {int(BrBrowsable::NAME), 4711}) {
      item->set(id, LiString("other"));
      item->set(id, 7LL);
    }
    EXPECT_EQ(writtenAttributes, 0);
    EXPECT_EQ(attribute(*item, BrBrowsable::NAME), name);
    EXPECT_EQ(attribute(*item, BrBrowsable::ROOT_NAME), "Plugin Registry");
    for (auto const id : {BrBrowsable::OWNER, BrBrowsable::LMTIME, BrBrowsable::CREATION_TIME})
      EXPECT_EQ(attribute(*item, id), BrBrowsable::NotAvailableString);
    EXPECT_EQ(attribute(*item, BrBrowsable::BROWSABLE_ROLE),
              item->getSchemeName() == "tools" ? "" : "host's 7");
    EXPECT_EQ(attribute(*item, 4711), "host's 4711");
    long long number = 0;
    item->get(int(BrBrowsable::NAME), &number);
    EXPECT_EQ(number, BrBrowsable::NAME);
  }
}

TEST_F(OtherHost, isQueriedWhileAllPredicatesAreAlive) {
  tool("z");
  EXPECT_EQ(destroyedBeforeQuery, 0);
  EXPECT_EQ(destroyedPredicates, 6) << "three, a negation and two conjunctions";
}

TEST_F(OtherHost, neitherCountsNorClones) {
  components.clonesToNull = true;
  EXPECT_EQ(collect(tool("")->getChildren()), toolRegistry.categories.values);
  EXPECT_THAT(collect(tool("z")->getChildren()), ElementsAre("blur", "blur"));
  EXPECT_EQ(tool("z")->getToolName(), "z");
  EXPECT_EQ(view("graph")->getViewName(), "graph");
}

TEST_F(OtherHost, receivesItemsWithoutParts) {
  RCShdPtr<DrCarrier> const carrier(new DrCarrier(SnSelection::create()));
  PbrToolDndHandler().populateSelection(tool("z/blur"), carrier);
  PbrViewDndHandler().populateSelection(view("graph"), carrier);
  EXPECT_EQ(parts, "no no ");
}

TEST_F(OtherHost, throwsAndLeavesTheQueryPending) {
  RCShdPtr<PbrToolBrowsable> const toolFolder = tool("");
  RCShdPtr<PbrViewBrowsable> const viewFolder = view("");
  RCShdPtr<BrChildrenQuery> const tools = toolFolder->getChildren(AllChildren);
  RCShdPtr<BrChildrenQuery> const views = viewFolder->getChildren(BrBrowsable::FindFilter(3));
  for (int round = 0; round < 2; ++round) {
    expectAbort([&] { tools->getNextChildSequence(); }, "pbrToolBrowsable", 171);
    expectAbort([&] { views->getNextChildSequence(); }, "pbrViewBrowsable", 113);
  }
  viewNames.values.at(2) = "b";
  EXPECT_THAT(paths(views->getNextChildSequence()), ElementsAre("viewer", "graph", "b", "curves"));

  toolRegistry.tools.values.push_back(ToolPtr());
  toolRegistry.categories.values = {"z"};
  EXPECT_EQ(nullPointeeOf([&] { tool("z"); }), "Qv::PiTool const*");
  EXPECT_EQ(nullPointeeOf([&] { childPaths(*tool(""), 0); }), "Qv::PiTool const*");
}

TEST_F(OtherHost, mayReturnNamesOfOtherDepthsThatItemsOnlySkips) {
  EXPECT_THAT(childPaths(*tool(""), ItemsOnly), ElementsAre("x/y", "/x//y/"));
  viewNames.values = {"viewer", "a/b", "graph", "", "/", "/x/", "a/b/c", "viewer"};
  EXPECT_THAT(childPaths(*view(""), ItemsOnly), ElementsAre("viewer", "graph", "/x/", "viewer"));
}

} // namespace

} // namespace Qv
