#include "moduleTest.h"

#include "pbrDraggedItems.h"

#include <sstream>

namespace Qv {

namespace {

using Item = RCShdPtr<SnItem const>;
using DraggedNode = RCShdPtr<PiNodeDndInterface const>;

class DraggedItems : public ModuleTest {
protected:
  DraggedItems() { tools_.addTool({.name = "graph", .category = "Colour"}); }

  DraggedNode createNode() { return PiDndTool::create(tools_.getTool("graph")); }
  static Item carry(DraggedNode const& node, RCShdPtr<SnParts> const& parts = RCShdPtr<SnParts>()) {
    return Item(new DraggedToolItem(node, parts));
  }
  static Item carry(char const* view, RCShdPtr<SnParts> const& parts = RCShdPtr<SnParts>()) {
    return Item(new DraggedViewItem(UiViewIdentifier(view), parts));
  }
};

TEST_F(DraggedItems, areEqualWhenClassAndValueAre) {
  struct OtherItem : DraggedViewItem {
    using DraggedViewItem::DraggedViewItem;
  };
  DraggedNode const node = createNode();
  DraggedNode const nodeOfTheSameTool = createNode();
  Item const other(new OtherItem(UiViewIdentifier("graph"), RCShdPtr<SnParts>()));
  // Items of the same number are equal.
  std::vector<std::pair<int, Item>> const items = {
      {1, carry(node)},    {1, carry(node)},
      {2, carry("graph")}, {2, carry("graph", RCShdPtr<SnParts>(new SnParts))},
      {3, carry("Graph")}, {4, carry(nodeOfTheSameTool)},
      {5, other},          {6, carry(DraggedNode())}};
  for (auto const& [left, item] : items)
    for (auto const& [right, otherItem] : items)
      EXPECT_EQ(item->isEqual(*otherItem), left == right) << left << ", " << right;
}

TEST_F(DraggedItems, holdTheirValueAndTheirPartsAndSoDoTheirClones) {
  DraggedNode const node = createNode();
  RCShdPtr<SnParts> const parts(new SnParts);
  Item tool = carry(node, parts);
  Item view = carry("a view of a long name", parts);
  EXPECT_EQ(node->getRefCount(), 2);
  for (Item* const item : {&tool, &view}) {
    SnItem* const raw = (*item)->clone();
    EXPECT_EQ(raw->getRefCount(), 0);
    Item const clone(raw);
    EXPECT_TRUE(clone->isEqual(**item) && (*item)->isEqual(*clone));
    EXPECT_EQ(node->getRefCount(), item == &tool ? 3 : 2);
    EXPECT_EQ(parts->getRefCount(), 4) << "the clone has them too";
    *item = clone;
  }
  EXPECT_EQ(node->getRefCount(), 2);
  EXPECT_EQ(tool.checkedCast<DraggedToolItem const>()->getValue(), node);
  EXPECT_EQ(view.checkedCast<DraggedViewItem const>()->getValue().getName(),
            "a view of a long name");
}

TEST_F(DraggedItems, writeTheirClassAndTheirValue) {
  DraggedNode const node = createNode();
  PiNodeDndInterface const& pointee = *node;
  std::ostringstream text;
  carry("graph")->dump(text);
  carry(node)->dump(text);
  std::ostringstream expected;
  expected << "Item:      Qv::SnItemBasic<Qv::UiViewIdentifier>\n"
           << "Data:      view \"graph\"\n"
           << "Item:      Qv::SnItemBasic<Qv::RCShdPtr<Qv::PiNodeDndInterface const> >\n"
           << "Data:      Pointee type = " << typeName(typeid(pointee))
           << ", T type = Qv::PiNodeDndInterface, ref: 2, pointer:" << &pointee
           << ", RCBase pointer: " << &pointee << "\n";
  EXPECT_EQ(text.str(), expected.str());
}

} // namespace

} // namespace Qv
