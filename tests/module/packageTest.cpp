#include "moduleTest.h"

#include "hostActRegistry.h"
#include "hostDndRegistry.h"
#include "inInit.imp.h"
#include "piToolPredicates.h"
#include "refusal.h"
#include "uiColorRegistry.h"

#include <functional>

namespace Qv {

struct Circle {};

template <> InInit<Circle>::InInit() : InPackageInit("circle") {
  registerPackage();
  addDependency(getType());
}

namespace {

class Package : public ModuleTest {};

TEST_F(Package, goesOnWhenAHandlerIsRefused) {
  initializePackage();
  BrDndHandler* const first =
      HostDndRegistry::getInstance().findHandler(*PbrToolBrowsable::createBrowsableType()).get();
  HostBrRegistry::getInstance().clear();
  HostActRegistry::getInstance().clear();
  HostPackageManager::getInstance()
      .find(typeid(InInit<QvInit::pluginBrowserQvmodule>))
      ->initialize();
  EXPECT_EQ(HostBrRegistry::getInstance().getServers().size(), 2U);
  EXPECT_EQ(
      HostDndRegistry::getInstance().findHandler(*PbrToolBrowsable::createBrowsableType()).get(),
      first);
}

TEST_F(Package, isRefusedWithTheReasonAndNothingChanges) {
  initializePackage();
  views_.addView({"graph", "Graph"});
  HostBrRegistry& browser = HostBrRegistry::getInstance();
  HostPackageManager& manager = HostPackageManager::getInstance();
  InInit<Circle> circle;
  auto const initializeAgain = [&] {
    browser.clear();
    manager.find(typeid(InInit<QvInit::pluginBrowserQvmodule>))->initialize();
  };
  auto const addViewAgain = [] { views_.addView({"graph", ""}); };
  for (auto const& [reason, ask] : std::map<std::string, std::function<void()>>{
           {"the scheme \"tools\" is registered already",
            [&] { browser.registerServer(OPtr<BrServer>(new PbrToolServer)); }},
           {"an action named \"Open\" is registered already", initializeAgain},
           {"a view named \"graph\" is registered already", addViewAgain},
           {"there is no colour \"x\"", [] { UiColorRegistry::getInstance().getColor("x"); }},
           {"package \"circle\" depends on itself or has failed before",
            [&] { manager.initialize(circle); }}}) {
    EXPECT_EQ(refusalOf(ask), reason);
    EXPECT_EQ(browser.getServers().size(), 2U);
    EXPECT_EQ(HostActRegistry::getInstance().getEntries().size(), 2U);
    EXPECT_EQ(*views_.findLabel("graph"), "Graph");
  }
}

TEST_F(Package, asksForToolsByAnyPredicate) {
  tools_.addTool({.name = "a", .category = "x", .internal = true});
  tools_.addTool({.name = "b", .category = "y", .active = false});
  tools_.addTool({.name = "c", .category = "y"});
  using Is = PiToolPredicates;
  EXPECT_EQ(tools_.getTools(Is::isActive() && Is::isCategory("y"), false).getCardinality(), 1);
  EXPECT_EQ(tools_.getTools(!Is::isCategory("x"), false).getCardinality(), 2);
  EXPECT_EQ(tools_.getTools(Is::isInternal(), false).getCardinality(), 1);
}

} // namespace

} // namespace Qv
