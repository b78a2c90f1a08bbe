#include "pbrInstances.h"

#include "bvDetailMgr.h"
#include "expectations.h"
#include "hostBrRegistry.h"
#include "hostTool.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "implementations.h"
#include "pbrDraggedItems.h"
#include "pbrToolBrowsable.h"
#include "pbrToolChildrenQuerys.h"
#include "pbrToolDndHandler.h"
#include "pbrToolServer.h"
#include "pbrToolView.h"
#include "pbrViewBrowsable.h"
#include "pbrViewChildrenQuery.h"
#include "pbrViewDndHandler.h"
#include "pbrViewServer.h"
#include "pluginBrowserQvmoduleInit.h"
#include "vtables.h"

#include <gtest/gtest.h>
#include <map>

namespace Qv {

namespace {

using Slots = std::vector<std::string>;

/// The expected slots of each class. Classes that stand together share the table that follows.
std::map<std::string, Slots> expectedSlots() {
  std::map<std::string, Slots> tables;
  Slots classes;
  for (std::string const& line : expectations("slots.txt")) {
    if (line.empty())
      classes.clear();
    else if (!line.starts_with("  "))
      classes.push_back(line);
    else
      for (std::string const& name : classes)
        tables[name].push_back(line[2] == '$' ? name + line.substr(3) : line.substr(2));
  }
  return tables;
}

template <class... T> std::vector<std::type_info const*> typesOf() { return {&typeid(T)...}; }

TEST(Slots, areWhatCallersExpect) {
  std::map<std::string, Slots> const expected = expectedSlots();
  std::vector<std::type_info const*> const classes =
      typesOf<InInit<QvInit::pluginBrowserQvmodule>, PbrToolServer, PbrViewServer, PbrToolBrowsable,
              PbrViewBrowsable, PbrToolChildrenQuerys, PbrViewChildrenQuery, PbrToolDndHandler,
              PbrViewDndHandler, DraggedToolItem, DraggedViewItem, AnySelection, PbrToolView,
              AnyAction, HostToolRegistry, HostBrRegistry, HostTtServer, HostTool, BvDetailMgr,
              UiLabel, BrNode, AnyBuildInfo, Iterator<std::string>, Iterator<RCShdPtr<BrBrowsable>>,
              Iterator<RCShdPtr<PiTool const>>, Iterator<LiString>, NamesEngine, BrBrowsablesEngine,
              PrdPredicate<RCShdPtr<PiTool const>>>();
  EXPECT_EQ(classes.size(), expected.size());
  for (std::type_info const* const type : classes) {
    std::string const name = readable(type->name());
    ASSERT_TRUE(expected.contains(name)) << name;
    EXPECT_EQ(slots(*type), expected.at(name)) << name;
  }
}

} // namespace

} // namespace Qv
