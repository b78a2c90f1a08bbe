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
#include <sstream>

namespace Qv {

namespace {

// No text fits into a string object itself, so that copying each of them can fail.
constexpr char const* Category = "Colour and its correction";
constexpr char const* Tool = "invert the light and the dark";
constexpr char const* SuperTool = "grade the whole picture";
constexpr char const* View = "scopes of light and colour";
constexpr char const* Text = "a text that is rather long";

/// A way from the host into the module and back, with what comes out as text.
struct Road {
  char const* name;
  std::function<std::string()> walk;
};

void PrintTo(Road const& road, std::ostream* os) { *os << road.name; }

RCShdPtr<BrBrowsable> find(char const* scheme, std::string const& path) {
  LiString message;
  return HostBrRegistry::getInstance().getServer(scheme).getNode(path, message)->getBrowsable();
}

/// All items of both schemes that `describe` has something to say of, each found anew by its path.
std::string ofEachItem(std::function<std::string(RCShdPtr<BrBrowsable> const&)> const& describe) {
  std::string result;
  for (std::string const& path :
       {std::string(), std::string(Category), std::string(Category) + "/" + Tool,
        std::string(SuperTool), std::string(Category) + "/" + SuperTool})
    result += describe(find("tools", path)) + "\n";
  for (std::string const& path : {std::string(), std::string(View)})
    result += describe(find("views", path)) + "\n";
  return result;
}

std::string describeChildren(RCShdPtr<BrBrowsable> const& item) {
  std::string result;
  for (int const filter : {0, 2}) {
    RCShdPtr<BrChildrenQuery> const query = item->getChildren(BrBrowsable::FindFilter(filter));
    for (int round = 0; round < 2; ++round) {
      Iterator<RCShdPtr<BrBrowsable>> children = query->getNextChildSequence();
      for (; !children.atEnd(); children.next())
        result += children.item()->getPath() + ", ";
      query->reset();
    }
  }
  return result;
}

std::string describeAttributes(RCShdPtr<BrBrowsable> const& item) {
  std::string result;
  for (unsigned int const id :
       {BrBrowsable::NAME, BrBrowsable::BROWSABLE_TYPE, BrBrowsable::ROOT_NAME, BrBrowsable::OWNER,
        BrBrowsable::BROWSABLE_ROLE, 0xFFFFU}) {
    LiString value;
    item->get(int(id), &value);
    result += value + ", ";
  }
  return result;
}

/// What arrives of a dragged item, and of a clone of it.
std::string describeDrag(RCShdPtr<BrBrowsable> const& item) {
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

std::string describeDetail(RCShdPtr<BrBrowsable> const& item) {
  OPtr<BrView> const view = HostBrRegistry::getInstance().createDetailView(item);
  if (!view)
    return "";
  auto& detail = dynamic_cast<BrDetailView&>(*view);
  detail.buildUi(RCShdPtr<SnSelection>());
  detail.setDetailInfo();
  detail.setContent(item, RCShdPtr<SnSelection>());
  return std::to_string(detail.getPages().at(0).widget->getChildren().size());
}

std::string performActions(RCShdPtr<BrBrowsable> const& item) {
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

/// Every other step on a copy, which takes an engine of its own.
std::string walkCopies() {
  Iterator<RCShdPtr<BrBrowsable>> children =
      find("tools", Category)->getChildren(BrBrowsable::FindFilter(0))->getNextChildSequence();
  std::string result;
  while (!children.atEnd()) {
    Iterator<RCShdPtr<BrBrowsable>> const before = children;
    result += (children++).item()->getPath() + std::to_string(before.getCardinality()) + ", ";
  }
  return result;
}

std::string describeServers() {
  std::string result;
  for (OPtr<BrServer> const& server : HostBrRegistry::getInstance().getServers()) {
    OPtr<BrServer> const clone(server->clone());
    for (RCShdPtr<BrAttrib> const& column : clone->getAttributesList()->getAttribs())
      result += clone->getSchemeName() + " " + column->getName() + ", ";
  }
  return result;
}

std::string describeBuild() {
  std::string result;
  for (OPtr<InBuildInfo> const& info : HostBuildInfoRegistry::getInstance().getInfos())
    result += std::string(info->getLibraryName()) + info->getVersionString();
  return result;
}

std::string start() {
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  return std::to_string(registered().size());
}

class OutOfMemory : public NoLeaks, public testing::WithParamInterface<Road> {
protected:
  static void SetUpTestSuite() {
    HostResources::getInstance().setDirectory(RESOURCE_DIR);
    HostToolRegistry& tools = HostToolRegistry::getInstance();
    tools.addCategory(Category);
    tools.addTool({.name = Tool, .category = Category, .infoTexts = {Text, Text, Text}});
    tools.addTool({.name = SuperTool, .category = Category, .superTool = true});
    HostViewFactory::getInstance().addView({View, Text});
    for (char const* name : {Tool, View})
      HostTtServer::getInstance().setTooltip(name, Text);
    // The registries keep the storage of their elements.
    start();
  }
  static void TearDownTestSuite() {
    HostWorkspace::setCurrent(RCShdPtr<UiWorkspace>());
    HostToolRegistry::getInstance().clear();
    HostViewFactory::getInstance().clear();
    HostTtServer::getInstance().clear();
  }

  /// The road can be walked again after each failure, and leaves the registries as they were.
  static void sweep(Road const& road) {
    // What is made once and kept is made here.
    std::string const expected = road.walk();
    EXPECT_NE(expected, "");
    Calls const before = registered();
    int const points = forEachFailingAllocation([&] { EXPECT_EQ(road.walk(), expected); },
                                                [&] {
                                                  EXPECT_EQ(registered(), before);
                                                  EXPECT_EQ(road.walk(), expected);
                                                });
    std::printf("%s: %d allocations failed\n", road.name, points);
    EXPECT_GT(points, 0) << "the module does not allocate where the test can make it fail";
  }
};

TEST_F(OutOfMemory, endsTheStartWithNothingLoaded) {
  sweep({"load and initialise", start});
  EXPECT_THAT(registered(), testing::IsEmpty());
}

TEST_P(OutOfMemory, losesNothing) {
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  sweep(GetParam());
  HostWorkspace::setCurrent(RCShdPtr<UiWorkspace>());
}

INSTANTIATE_TEST_SUITE_P(
    On, OutOfMemory,
    testing::Values(
        Road{"nodes", [] { return ofEachItem([](auto const& item) { return item->getPath(); }); }},
        Road{"children", [] { return ofEachItem(describeChildren); }},
        Road{"attributes", [] { return ofEachItem(describeAttributes); }},
        Road{"tooltips",
             [] { return ofEachItem([](auto const& item) { return item->getTooltip(0); }); }},
        Road{"thumbnails",
             [] {
               return ofEachItem([](auto const& item) {
                 return item->getImage(int(BrBrowsable::THUMBNAIL), {1, 1}) ? "image" : "";
               });
             }},
        Road{"drags", [] { return ofEachItem(describeDrag); }},
        Road{"details", [] { return ofEachItem(describeDetail); }},
        Road{"actions", [] { return ofEachItem(performActions); }}, Road{"copies", walkCopies},
        Road{"servers", describeServers}, Road{"build", describeBuild}),
    [](auto const& info) { return std::string(info.param.name); });

} // namespace

} // namespace Qv
