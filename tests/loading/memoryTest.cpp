#include "allocations.h"
#include "brBrowser.h"
#include "brDetailView.h"
#include "drCarrier.h"
#include "hostModule.h"
#include "hostResources.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostViewFactory.h"
#include "hostWorkspace.h"
#include "registries.h"
#include "snItemBasic.h"

#include <functional>
#include <gmock/gmock.h>

namespace Qv {

namespace {

// No text fits into a string object itself, so that copying each of them can fail.
std::string const Category = "Colour and its correction";
std::string const Tool = "invert the light and the dark";
std::string const SuperTool = "grade the whole picture";
std::string const View = "scopes of light and colour";
std::string const Text = "a text that is rather long";

using Item = RCShdPtr<BrBrowsable>;

/// Whatever a browser reads of an item and of its children.
std::string browse(Item const& item) {
  std::string result = OPtr<BrServer>(item->getServer()->clone())->getSchemeName() + ", ";
  result += item->getTooltip(0);
  result += item->getImage(int(BrBrowsable::THUMBNAIL), {1, 1}) ? ", image, " : ", ";
  for (unsigned int const id :
       {BrBrowsable::NAME, BrBrowsable::BROWSABLE_TYPE, BrBrowsable::ROOT_NAME, BrBrowsable::OWNER,
        BrBrowsable::BROWSABLE_ROLE, 0xFFFFU}) {
    LiString value;
    item->get(int(id), &value);
    result += value + ", ";
  }
  for (int const filter : {0, 2}) {
    RCShdPtr<BrChildrenQuery> const query = item->getChildren(BrBrowsable::FindFilter(filter));
    for (int round = 0; round < 2; ++round) {
      Iterator<Item> children = query->getNextChildSequence();
      // Each step leaves a copy behind, and so takes an engine of its own.
      while (!children.atEnd())
        result += (children++).item()->getPath() + ", ";
      query->reset();
    }
  }
  return result;
}

/// What arrives of a dragged item, and of a clone of it.
std::string drag(Item const& item) {
  RCShdPtr<BrDndHandler> const handler = HostDndRegistry::getInstance().findHandler(*item);
  RCShdPtr<DrCarrier> const carrier(new DrCarrier(SnSelection::create()));
  try {
    if (handler->willPopulateSelection(item))
      handler->populateSelection(item, carrier);
  } catch (...) {
    EXPECT_TRUE(carrier->getSelection()->getItems().empty());
    throw;
  }
  std::string result;
  for (RCShdPtr<SnItem const> const& dragged : carrier->getSelection()->getItems())
    result += dragged->isEqual(*RCShdPtr<SnItem>(dragged->clone())) ? "arrives, " : "differs, ";
  return result;
}

std::string showDetail(Item const& item) {
  OPtr<BrView> const view = HostBrRegistry::getInstance().createDetailView(item);
  if (!view)
    return "";
  auto& detail = dynamic_cast<BrDetailView&>(*view);
  detail.buildUi(RCShdPtr<SnSelection>());
  detail.setDetailInfo();
  detail.setContent(item, RCShdPtr<SnSelection>());
  return std::to_string(detail.getPages().at(0).widget->getChildren().size());
}

std::string performActions(Item const& item) {
  RCShdPtr<HostWorkspace> const workspace(new HostWorkspace);
  HostWorkspace::setCurrent(workspace);
  RCShdPtr<SnItem const> const browser(new SnItemBasic<RCShdPtr<BrBrowser>>(
      RCShdPtr<BrBrowser>(new BrBrowser), RCShdPtr<SnParts>()));
  RCShdPtr<SnItem const> const node(
      new SnItemBasic<RCShdPtr<BrNode>>(BrNode::create(item), RCShdPtr<SnParts>()));
  for (auto const& [action, state] : HostActRegistry::getInstance().getEntries())
    if (HostActRegistry::isValid(*action, browser, node))
      HostActRegistry::getInstance().perform(action->getName(), browser, node);
  std::string result;
  for (HostWorkspace::Request const& request : workspace->getRequests())
    result += request.view + ", ";
  return result;
}

/// What `use` makes of the items of both schemes, each found anew by its path.
std::string useEachItem(std::string (*use)(Item const&)) {
  std::string result;
  auto const useItem = [&](char const* scheme, std::string const& path) {
    LiString message;
    BrServer& server = HostBrRegistry::getInstance().getServer(scheme);
    result += use(server.getNode(path, message)->getBrowsable()) + "\n";
  };
  for (std::string const& path :
       {std::string(), Category, Category + "/" + Tool, SuperTool, Category + "/" + SuperTool})
    useItem("tools", path);
  for (std::string const& path : {std::string(), View})
    useItem("views", path);
  return result;
}

std::string start() {
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  return std::to_string(registered().at("ActRegistry::registerAction"));
}

/// A host with tools and a view, and without a module; the test may lose no allocation. The module
/// was started once before the first test, since the registries keep the storage of their elements.
class OutOfMemory : public NoLeaks {
protected:
  static void SetUpTestSuite() {
    HostResources::getInstance().setDirectory(RESOURCE_DIR);
    HostToolRegistry& tools = HostToolRegistry::getInstance();
    tools.addCategory(Category);
    tools.addTool({.name = Tool, .category = Category, .infoTexts = {Text, Text, Text}});
    tools.addTool({.name = SuperTool, .category = Category, .superTool = true});
    HostViewFactory::getInstance().addView({View, Text});
    for (std::string const& name : {Tool, View})
      HostTtServer::getInstance().addTooltip(name, Text);
    start();
  }
  static void TearDownTestSuite() {
    HostToolRegistry::getInstance().clear();
    HostViewFactory::getInstance().clear();
    HostTtServer::getInstance().clear();
  }

  /// The scenario can be played again after each failure, and leaves the registries as they were.
  static void sweep(std::function<std::string()> const& scenario) {
    // What is made once and kept is made here.
    std::string const expected = scenario();
    auto const before = registered();
    int const points = forEachFailingAllocation([&] { EXPECT_EQ(scenario(), expected); },
                                                [&] {
                                                  EXPECT_EQ(registered(), before);
                                                  EXPECT_EQ(scenario(), expected);
                                                });
    EXPECT_GT(points, 0) << "the module does not allocate where the test can make it fail";
  }
};

TEST_F(OutOfMemory, endsTheStartWithNothingLoaded) {
  sweep(start);
  EXPECT_THAT(registered(), testing::Each(testing::Pair(testing::_, 0)));
}

TEST_F(OutOfMemory, losesNothing) {
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  struct Scenario {
    std::string (*use)(Item const&);
    char const* shows;
  };
  for (Scenario const& scenario : {Scenario{browse, "image"}, Scenario{drag, "arrives"},
                                   Scenario{showDetail, "8"}, Scenario{performActions, "Views"}}) {
    SCOPED_TRACE(scenario.shows);
    EXPECT_THAT(useEachItem(scenario.use), testing::HasSubstr(scenario.shows));
    sweep([&] { return useEachItem(scenario.use); });
  }
  HostWorkspace::setCurrent(RCShdPtr<UiWorkspace>());
}

} // namespace

} // namespace Qv
