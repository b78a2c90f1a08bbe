#include "moduleTest.h"

#include "drCarrier.h"
#include "hostDndTool.h"
#include "pbrDraggedItems.h"
#include "pbrToolDndHandler.h"
#include "pbrViewDndHandler.h"

namespace Qv {

namespace {

using Browsable = RCShdPtr<BrBrowsable>;
using Carrier = RCShdPtr<DrCarrier>;
using Selection = RCShdPtr<SnSelection>;

/// What a consumer finds in a selection.
std::string contents(Selection const& selection) {
  std::string result;
  for (RCShdPtr<SnItem const> const& item : selection->getItems()) {
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
  Selection const selection = SnSelection::create();
  for (char const* path : {"graph", "/graph"})
    viewHandler_->populateSelection(view(path), Carrier(new DrCarrier(selection)));
  EXPECT_TRUE(selection->getItems().at(0)->isEqual(*selection->getItems().at(1)));
}

TEST_F(DndHandlers, needACarrierWithASelectionForWhatTheyAdd) {
  Carrier const none;
  Carrier const empty(new DrCarrier(Selection()));
  for (auto const& [handler, item] : {std::pair(toolHandler_, Browsable(tool("Colour/invert"))),
                                      std::pair(viewHandler_, Browsable(view("graph")))}) {
    EXPECT_EQ(nullPointeeOf([&] { handler->populateSelection(item, none); }), "Qv::DrCarrier*");
    EXPECT_EQ(nullPointeeOf([&] { handler->populateSelection(item, empty); }), "Qv::SnSelection*");
    handler->populateSelection(tool("Colour/nosuch"), none);
  }
}

} // namespace

} // namespace Qv
