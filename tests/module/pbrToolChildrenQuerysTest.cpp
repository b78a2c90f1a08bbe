#include "moduleTest.h"

#include "hostError.h"

namespace Qv {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ToolChildrenQuery : public ModuleTest {
protected:
  ToolChildrenQuery() {
    for (char const* category : {"Warp", "Colour", "Empty"})
      tools_.addCategory(category);
    for (char const* name : {"zoom", "bend", "twist"})
      tools_.addTool({.name = name, .category = "Warp", .superTool = name == std::string("bend")});
  }
};

TEST_F(ToolChildrenQuery, listsTheChildrenOnceInTheOrderOfTheRegistry) {
  RCShdPtr<PbrToolBrowsable> const folder = tool("");
  RCShdPtr<BrChildrenQuery> const query = folder->getChildren(AllChildren);
  Iterator<RCShdPtr<BrBrowsable>> const children = query->getNextChildSequence();
  EXPECT_TRUE(children.atBegin());
  EXPECT_THAT(paths(children), ElementsAre("Warp", "Colour", "Empty"));
  EXPECT_EQ(children.item()->getServer(), &toolServer_);
  EXPECT_THAT(paths(query->getNextChildSequence()), IsEmpty());
  EXPECT_THAT(paths(query->getNextChildSequence()), IsEmpty());

  tools_.clear();
  query->reset();
  Iterator<RCShdPtr<BrBrowsable>> const again = query->getNextChildSequence();
  EXPECT_THAT(paths(again), ElementsAre("Warp", "Colour", "Empty"));
  EXPECT_FALSE(again.item() == children.item());
}

TEST_F(ToolChildrenQuery, yieldsWhatTheContainerAndTheFilterSay) {
  struct Case {
    char const* path;
    std::vector<std::string> all;
    std::vector<std::string> items;
  };
  for (Case const& item : std::vector<Case>{
           {"", {"Warp", "Colour", "Empty"}, {}},
           {"Empty", {}, {}},
           {"Warp",
            {"Warp/zoom", "Warp/bend", "Warp/twist"},
            {"Warp/zoom", "Warp/bend", "Warp/twist"}},
           {"/Warp/",
            {"/Warp/zoom", "/Warp/bend", "/Warp/twist"},
            {"/Warp/zoom", "/Warp/bend", "/Warp/twist"}},
           {"Warp/bend", {}, {}},
           {"Warp/zoom", {}, {}},
       }) {
    SCOPED_TRACE(item.path);
    RCShdPtr<PbrToolBrowsable> const browsable = tool(item.path);
    EXPECT_EQ(paths(browsable->getChildren(AllChildren)->getNextChildSequence()), item.all);
    RCShdPtr<BrChildrenQuery> const query = browsable->getChildren(ItemsOnly);
    EXPECT_EQ(paths(query->getNextChildSequence()), item.items);
    EXPECT_THAT(paths(query->getNextChildSequence()), IsEmpty());
  }
}

TEST_F(ToolChildrenQuery, staysPendingWhenAChildFails) {
  RCShdPtr<PbrToolBrowsable> const category = tool("Warp");
  RCShdPtr<BrChildrenQuery> const query = category->getChildren(AllChildren);
  journal_.start();
  journal_.failAt(2);
  EXPECT_THROW(query->getNextChildSequence(), HostError);
  EXPECT_THAT(calls(),
              ElementsAre("PiToolRegistry::isSuperTool(zoom)", "PiToolRegistry::isSuperTool(bend)",
                          "PiToolRegistry::isSuperTool(twist)"));
  journal_.stop();
  EXPECT_THAT(paths(query->getNextChildSequence()),
              ElementsAre("Warp/zoom", "Warp/bend", "Warp/twist"));
}

TEST_F(ToolChildrenQuery, losesNothingWhenMemoryRunsOut) {
  RCShdPtr<PbrToolBrowsable> const folder = tool("");
  EXPECT_GT(forEachFailingAllocation([&] {
              RCShdPtr<BrChildrenQuery> const query = folder->getChildren(AllChildren);
              Iterator<RCShdPtr<BrBrowsable>> children = query->getNextChildSequence();
              children++;
            }),
            10);
}

} // namespace

} // namespace Qv
