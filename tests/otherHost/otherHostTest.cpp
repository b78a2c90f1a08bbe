#include "moduleTest.h"

#include "hostTool.h"
#include "uiViewFactory.h"

namespace Qv {

namespace {

using testing::ElementsAre;

using Tools = Vector<RCShdPtr<PiTool const>>;
using ViewNames = Vector<LiString>;

/// The registry of this program, which refuses nothing: it gives out the same tools for whatever
/// category.
class AnyToolRegistry final : public PiToolRegistry {
public:
  RCShdPtr<PiTool const> findTool(std::string const& /*name*/, bool /*flag*/) override {
    return RCShdPtr<PiTool const>();
  }
  RCShdPtr<PiTool const> getTool(std::string const& /*name*/) override {
    return RCShdPtr<PiTool const>();
  }
  Iterator<RCShdPtr<PiTool const>>
  getTools(PrdPredicate<RCShdPtr<PiTool const>> const& /*predicate*/, bool /*flag*/) override {
    return makeIterator(RCStrongPtr<Tools>(new Tools(tools)));
  }
  Iterator<std::string> getCategories() override {
    return makeIterator(RCStrongPtr<Vector<std::string>>(new Vector<std::string>(categories)));
  }
  bool isSuperTool(std::string const& /*name*/) override { return false; }

  Vector<std::string> categories;
  Tools tools;
};

AnyToolRegistry toolRegistry;

/// What the factory of this program knows.
RCStrongPtr<ViewNames> viewNames;

} // namespace

// Called in place of the host libraries'.

PiToolRegistry& PiToolRegistry::getInstance() { return toolRegistry; }

Iterator<LiString> UiViewFactory::getViews() { return makeIterator(viewNames); }

void BrBrowsable::get(int attributeId, long long* value) { *value = attributeId; }

void BrBrowsable::get(int attributeId, LiString* value) {
  *value = "host's " + std::to_string(attributeId);
}

namespace {

class OtherHost : public ModuleTest {
protected:
  OtherHost() {
    viewNames = RCStrongPtr<ViewNames>(new ViewNames{"viewer", "graph", "a/b", "curves"});
    toolRegistry.categories = {"x/y", "z", "a/b/c", "", "/x//y/"};
    toolRegistry.tools =
        Tools(2, RCShdPtr<PiTool const>(new HostTool({.name = "blur", .category = "z"})));
  }
  ~OtherHost() override {
    viewNames = RCStrongPtr<ViewNames>();
    toolRegistry = AnyToolRegistry();
  }

  /// Expects that the sequence of all children ends in the same failure, as often as it is asked
  /// for.
  template <class Failure> static void expectFailures(BrChildrenQuery& query, Failure expect) {
    for (int round = 0; round < 2; ++round) {
      long const before = liveAllocations();
      expect([&] { query.getNextChildSequence(); });
      EXPECT_EQ(liveAllocations() - before, 0) << "the children before it go";
    }
  }
};

TEST_F(OtherHost, answersTheAttributesThatItemsDoNot) {
  std::vector<unsigned int> const ownIds = {BrBrowsable::OWNER, BrBrowsable::LMTIME,
                                            BrBrowsable::CREATION_TIME};
  std::vector<std::pair<RCShdPtr<BrBrowsable>, std::vector<unsigned int>>> const items = {
      {tool(""), {4711}},
      {tool("x"), {4711}},
      {tool("x/y"), {4711}},
      {view(""), {4711, BrBrowsable::BROWSABLE_ROLE}},
      {view("graph"), {4711, BrBrowsable::BROWSABLE_ROLE}}};
  for (auto const& [item, others] : items) {
    SCOPED_TRACE(item->getSchemeName() + " " + item->getPath());
    std::string const name = attribute(*item, BrBrowsable::NAME);
    item->set(int(BrBrowsable::NAME), LiString("other"));
    item->set(int(BrBrowsable::NAME), 7LL);
    EXPECT_EQ(attribute(*item, BrBrowsable::NAME), name);
    EXPECT_EQ(attribute(*item, BrBrowsable::ROOT_NAME), "Plugin Registry");
    for (unsigned int const id : ownIds)
      EXPECT_EQ(attribute(*item, id), BrBrowsable::NotAvailableString);
    for (unsigned int const id : others)
      EXPECT_EQ(attribute(*item, id), "host's " + std::to_string(id));
    long long number = 0;
    item->get(int(BrBrowsable::NAME), &number);
    EXPECT_EQ(number, BrBrowsable::NAME);
  }
  EXPECT_EQ(attribute(*items[0].first, BrBrowsable::BROWSABLE_ROLE), "");
}

TEST_F(OtherHost, endsTheSequenceThatIsStillPending) {
  RCShdPtr<PbrToolBrowsable> const toolFolder = tool("");
  RCShdPtr<PbrViewBrowsable> const viewFolder = view("");
  RCShdPtr<BrChildrenQuery> const tools = toolFolder->getChildren(AllChildren);
  RCShdPtr<BrChildrenQuery> const views = viewFolder->getChildren(BrBrowsable::FindFilter(3));
  expectFailures(*tools, [](auto f) { expectAbort(f, "pbrToolBrowsable", 171); });
  expectFailures(*views, [](auto f) { expectAbort(f, "pbrViewBrowsable", 113); });
  viewNames->at(2) = "b";
  EXPECT_THAT(paths(views->getNextChildSequence()), ElementsAre("viewer", "graph", "b", "curves"));

  toolRegistry.tools.push_back(RCShdPtr<PiTool const>());
  toolRegistry.categories = {"z"};
  EXPECT_EQ(nullPointeeOf([&] { tool("z"); }), "Qv::PiTool const*");
  RCShdPtr<PbrToolBrowsable> const otherFolder = tool("");
  expectFailures(*otherFolder->getChildren(AllChildren),
                 [](auto f) { EXPECT_EQ(nullPointeeOf(f), "Qv::PiTool const*"); });
}

TEST_F(OtherHost, namesMoreThanComponentsWhichAreLeftOutWhenItemsAreAskedFor) {
  RCShdPtr<PbrToolBrowsable> const toolFolder = tool("");
  EXPECT_THAT(paths(toolFolder->getChildren(ItemsOnly)->getNextChildSequence()),
              ElementsAre("x/y", "/x//y/"));
  viewNames = RCStrongPtr<ViewNames>(
      new ViewNames{"viewer", "a/b", "graph", "", "/", "/x/", "a/b/c", "viewer"});
  RCShdPtr<PbrViewBrowsable> const viewFolder = view("");
  EXPECT_THAT(paths(viewFolder->getChildren(ItemsOnly)->getNextChildSequence()),
              ElementsAre("viewer", "graph", "/x/", "viewer"));
}

} // namespace

} // namespace Qv
