#include "registries.h"
#include "hostPackageManager.h"
#include "hostResources.h"
#include "hostToolRegistry.h"
#include "hostViewFactory.h"
#include "inInit.imp.h"
#include "piToolPredicates.h"
#include "refusal.h"
#include "uiColorRegistry.h"

#include <functional>
#include <gmock/gmock.h>

namespace Qv {

struct Circle {};

template <> InInit<Circle>::InInit() : InPackageInit("circle") {
  registerPackage();
  addDependency(getType());
}

namespace {

/// The registries as the linked module fills them, and a view; emptied after each test.
class Registries : public testing::Test {
protected:
  Registries() {
    HostResources::getInstance().setDirectory(RESOURCE_DIR);
    // The package linked last is the module's, which depends on all others.
    manager_.initialize(module_);
    views_.addView({"graph", "Graph"});
  }
  ~Registries() override {
    manager_.uninitializeAll();
    tools_.clear();
    views_.clear();
  }

  HostPackageManager& manager_ = HostPackageManager::getInstance();
  InPackageInit& module_ = *manager_.getPackages().back();
  HostBrRegistry& browser_ = HostBrRegistry::getInstance();
  HostToolRegistry& tools_ = HostToolRegistry::getInstance();
  HostViewFactory& views_ = HostViewFactory::getInstance();
};

TEST_F(Registries, rejectWithTheReasonAndStayUnchanged) {
  using namespace std::string_literals;
  InInit<Circle> circle;
  auto const before = registered();
  struct Case {
    std::string reason;
    std::function<void()> ask;
  };
  auto const addView = [&](std::string const& name) {
    return [&, name] { views_.addView({name, ""}); };
  };
  for (auto const& [reason, ask] :
       {Case{"duplicate scheme \"tools\"",
             [&] { browser_.registerServer(OPtr<BrServer>(browser_.getServers()[0]->clone())); }},
        Case{"duplicate view \"graph\"", addView("graph")},
        Case{"the view name \"gra...\" contains a zero byte", addView("gra\0ph"s)},
        Case{"the category name is empty", [&] { tools_.addCategory(""); }},
        Case{"the tool name \"a/b\" contains a \"/\"",
             [&] { tools_.addTool({.name = "a/b", .category = "x"}); }},
        Case{"the category name \"...\" contains a zero byte",
             [&] { tools_.addTool({.name = "a", .category = "\0"s}); }},
        Case{"unknown colour \"x\"", [] { UiColorRegistry::getInstance().getColor("x"); }},
        Case{"package \"circle\" depends on itself or has failed before",
             [&] { manager_.initialize(circle); }}}) {
    EXPECT_EQ(refusalOf(ask), reason);
    EXPECT_EQ(registered(), before);
    EXPECT_THAT(views_.getNames(), testing::ElementsAre("graph"));
    EXPECT_EQ(*views_.findLabel("graph"), "Graph");
    EXPECT_TRUE(tools_.getCategories().atEnd());
    EXPECT_FALSE(tools_.getTool("a"));
  }
  HostDndRegistry& handlers = HostDndRegistry::getInstance();
  auto const [type, handler] = handlers.getEntries()[0];
  EXPECT_FALSE(handlers.add(type, handlers.getEntries()[1].handler));
  EXPECT_EQ(registered(), before);
  EXPECT_EQ(handlers.getEntries()[0].handler, handler) << "the first handler of a class stays";
  browser_.clear();
  EXPECT_EQ(refusalOf([&] { module_.initialize(); }), "duplicate action \"Open\"");
  EXPECT_EQ(HostActRegistry::getInstance().getEntries().size(), 2U);
}

TEST_F(Registries, findToolsByAnyPredicate) {
  tools_.addTool({.name = "a", .category = "x", .internal = true});
  tools_.addTool({.name = "b", .category = "y", .active = false});
  tools_.addTool({.name = "c", .category = "y"});
  using Is = PiToolPredicates;
  auto const countOf = [&](auto const& is) { return tools_.getTools(is, false).getCardinality(); };
  EXPECT_EQ(countOf(Is::isActive() && Is::isCategory("y")), 1);
  EXPECT_EQ(countOf(!Is::isCategory("x")), 2);
  EXPECT_EQ(countOf(Is::isInternal()), 1);
}

} // namespace

} // namespace Qv
