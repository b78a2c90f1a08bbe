#include "moduleTest.h"

#include "drCarrier.h"
#include "hostDndTool.h"
#include "pbrDraggedItems.h"
#include "pbrToolDndHandler.h"
#include "pbrViewDndHandler.h"

#include <sstream>

namespace Qv {

namespace {

using Browsable = RCShdPtr<BrBrowsable>;
using Carrier = RCShdPtr<DrCarrier>;
using Selection = RCShdPtr<SnSelection>;
using Item = RCShdPtr<SnItem const>;
using DraggedNode = RCShdPtr<PiNodeDndInterface const>;
using Parts = RCShdPtr<SnParts>;

/// What a consumer finds in a selection.
std::string contents(Selection const& selection) {
  std::string result;
  for (Item const& item : selection->getItems()) {
    EXPECT_EQ(item->getRefCount(), 1) << "the selection alone holds it";
    if (auto const tool = item.dynamicCast<DraggedToolItem const>()) {
      EXPECT_EQ(tool->getValue()->getRefCount(), 1);
      result += "tool " + tool->getValue().checkedCast<HostDndTool const>()->getTool()->getName();
    } else {
      result += "view " + item.checkedCast<DraggedViewItem const>()->getValue().getName();
    }
  }
  return result;
}

class DndHandlers : public ModuleTest {
protected:
  DndHandlers() {
    tools_.addTool({.name = "invert", .category = "Colour", .active = false});
    tools_.addTool({.name = "Grade", .category = "Colour", .superTool = true});
  }

  struct Case {
    Browsable item;
    bool accepted;
    char const* contents;
  };
  /// Drags each item, and drops it on itself.
  static void expectDrags(BrDndHandler& handler, std::vector<Case> const& cases) {
    for (Case const& item : cases) {
      SCOPED_TRACE(item.item ? item.item->getPath() : "null");
      Selection const selection = SnSelection::create();
      Carrier const carrier(new DrCarrier(selection));
      EXPECT_EQ(handler.willPopulateSelection(item.item), item.accepted);
      handler.populateSelection(item.item, carrier);
      EXPECT_FALSE(handler.willCut(item.item));
      EXPECT_FALSE(handler.willConsumeSelection(item.item, carrier));
      handler.consumeSelection(item.item, carrier, selection);
      EXPECT_EQ(contents(selection), item.contents);
    }
  }

  RCShdPtr<BrDndHandler> const toolHandler_{new PbrToolDndHandler};
  RCShdPtr<BrDndHandler> const viewHandler_{new PbrViewDndHandler};
};

TEST_F(DndHandlers, letToolsBeDragged) {
  expectDrags(*toolHandler_, {{Browsable(), false, ""},
                              {view("invert"), false, ""},
                              {tool(""), false, ""},
                              {tool("Colour"), false, ""},
                              {tool("invert"), false, "tool invert"},
                              {tool("/Colour/invert"), true, "tool invert"},
                              {tool("Grade"), true, "tool Grade"},
                              {tool("Colour/Grade"), true, "tool Grade"},
                              {tool("Colour/nosuch"), true, ""}});
  tools_.addTool({.name = "Tools", .category = "Colour"});
  expectDrags(*toolHandler_, {{tool(""), false, "tool Tools"}});
}

TEST_F(DndHandlers, letViewsBeDragged) {
  expectDrags(*viewHandler_, {{Browsable(), false, ""},
                              {tool("Colour/invert"), false, ""},
                              {view(""), false, "view Views"},
                              {view("nosuch"), true, "view nosuch"},
                              {view("//graph/"), true, "view graph"},
                              {PbrViewBrowsable::createBrowsableType(), true, ""}});
}

TEST_F(DndHandlers, needACarrierWithASelectionForWhatTheyAdd) {
  Carrier const none;
  Carrier const empty(new DrCarrier(Selection()));
  for (auto const& drag : {std::pair(toolHandler_, Browsable(tool("Colour/invert"))),
                           std::pair(viewHandler_, Browsable(view("graph")))}) {
    auto const into = [&](Carrier const& carrier) {
      drag.first->populateSelection(drag.second, carrier);
    };
    EXPECT_EQ(nullPointeeOf([&] { into(none); }), "Qv::DrCarrier*");
    EXPECT_EQ(nullPointeeOf([&] { into(empty); }), "Qv::SnSelection*");
    drag.first->populateSelection(tool("Colour/nosuch"), none);
  }
}

class DraggedItems : public ModuleTest {
protected:
  DraggedItems() { tools_.addTool({.name = "graph", .category = "Colour"}); }

  DraggedNode createNode() { return PiDndTool::create(tools_.getTool("graph")); }
  static Item carry(DraggedNode const& node, Parts const& parts = Parts()) {
    return Item(new DraggedToolItem(node, parts));
  }
  static Item carry(char const* view, Parts const& parts = Parts()) {
    return Item(new DraggedViewItem(UiViewIdentifier(view), parts));
  }
};

TEST_F(DraggedItems, areEqualWhenClassAndValueAre) {
  struct OtherItem : DraggedViewItem {
    using DraggedViewItem::DraggedViewItem;
  };
  DraggedNode const node = createNode();
  DraggedNode const nodeOfTheSameTool = createNode();
  Item const other(new OtherItem(UiViewIdentifier("graph"), Parts()));
  // Items of the same number are equal.
  std::vector<std::pair<int, Item>> const items = {
      {1, carry(node)},    {1, carry(node)},
      {2, carry("graph")}, {2, carry("graph", Parts(new SnParts))},
      {3, carry("Graph")}, {4, carry(nodeOfTheSameTool)},
      {5, other},          {6, carry(DraggedNode())}};
  for (auto const& [left, item] : items)
    for (auto const& [right, otherItem] : items)
      EXPECT_EQ(item->isEqual(*otherItem), left == right) << left << ", " << right;
}

TEST_F(DraggedItems, holdTheirValueAndTheirPartsAndSoDoTheirClones) {
  DraggedNode const node = createNode();
  Parts const parts(new SnParts);
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
