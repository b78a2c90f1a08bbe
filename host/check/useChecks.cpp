#include "actions.h"
#include "brBrowser.h"
#include "check.h"
#include "detailPage.h"
#include "dragging.h"
#include "hostActRegistry.h"
#include "hostBrRegistry.h"
#include "hostDndRegistry.h"

namespace Qv {

namespace {

using Carrier = RCShdPtr<DrCarrier>;
using Node = RCShdPtr<BrNode>;
using Selection = RCShdPtr<SnSelection>;

std::string dragItem(Item const& item) {
  Carrier const carrier = startDrag(item);
  if (!carrier)
    return "";
  auto const& items = carrier->getSelection()->getItems();
  require(!items.empty(), "it can be dragged, but nothing arrives");
  for (RCShdPtr<SnItem const> const& dragged : items)
    require(dragged->isEqual(*RCShdPtr<SnItem>(dragged->clone())),
            "what arrives does not equal its clone");
  return "it arrives";
}

void probeHandlers(Item const& item) {
  for (HostDndRegistry::Entry const& entry : HostDndRegistry::getInstance().getEntries()) {
    RCShdPtr<BrDndHandler> const& handler = entry.handler;
    mayRefuse([&] { handler->willPopulateSelection(item); });
    mayRefuse([&] { handler->willCut(item); });
    mayRefuse([&] { handler->willCopy(item); });
    for (Carrier const& carrier : {Carrier(), Carrier(new DrCarrier(Selection())),
                                   Carrier(new DrCarrier(SnSelection::create()))}) {
      mayRefuse([&] { handler->populateSelection(item, carrier); });
      mayRefuse([&] { handler->willConsumeSelection(item, carrier); });
      mayRefuse([&] { handler->consumeSelection(item, carrier, Selection()); });
    }
  }
}

std::string checkDrags() {
  if (HostDndRegistry::getInstance().getEntries().empty())
    throw Skipped("it registers no drag-and-drop handler");
  lookAt("no item");
  probeHandlers(Item());
  for (auto const& [type, handler] : HostDndRegistry::getInstance().getEntries())
    probeHandlers(type);
  return forEachItem([](Item const& item) {
    probeHandlers(item);
    dragItem(item);
  });
}

std::string showItem(Item const& item) {
  std::optional<DetailPage> page = DetailPage::create(item);
  if (!page)
    return "";
  page->show(item);
  return page->show(item).view;
}

std::string checkDetails() {
  auto const& views = HostBrRegistry::getInstance().getViews();
  if (views.empty())
    throw Skipped("it registers no view");
  Items items = findItems();
  items.emplace_back();
  for (auto const& [role, prototype] : views)
    for (bool const built : {false, true}) {
      OPtr<BrView> const view = prototype->clone();
      require(view.get() && view.get() != prototype.get(), "clone returns no new view");
      if (built)
        view->buildUi(Selection());
      if (auto* const detail = dynamic_cast<BrDetailView*>(view.get()))
        mayRefuse([&] { detail->setDetailInfo(); });
      for (Item const& item : items) {
        lookAt(fmt::format("a view that {} and shows {}", built ? "is built" : "is not built",
                           item ? item->getPath() : "no item"));
        mayRefuse([&] { view->understands(item); });
        for (Selection const& selection : {Selection(), SnSelection::create()})
          mayRefuse([&] { view->setContent(item, selection); });
      }
      view->externalClose();
    }
  return forEachItem([](Item const& item) { showItem(item); });
}

std::string performActions(Item const& item) {
  std::string result;
  for (OfferedAction const& action : getActions(item))
    if (action.valid)
      for (HostWorkspace::Request const& request : performAction(action.name, item))
        result += request.view;
  HostWorkspace::setCurrent(RCShdPtr<UiWorkspace>());
  return result;
}

void probeActions(Node const& node) {
  for (HostActRegistry::Entry const& entry : HostActRegistry::getInstance().getEntries())
    for (bool const bare : {true, false})
      if (auto* const action = dynamic_cast<BrowserAction*>(entry.action.get())) {
        HostWorkspace::setCurrent(RCShdPtr<UiWorkspace>(bare ? nullptr : new HostWorkspace));
        RCShdPtr<BrBrowser> const browser(bare ? nullptr : new BrBrowser);
        Vector<LiString> options;
        mayRefuse([&] { action->typedInputValid(browser, node); });
        mayRefuse([&] { action->typedEnumOptions(browser, node, options); });
        mayRefuse([&] { action->typedPerformAction(browser, node); });
      }
}

std::string checkActions() {
  if (HostActRegistry::getInstance().getEntries().empty())
    throw Skipped("it registers no action");
  lookAt("no node or item");
  probeActions(Node());
  probeActions(BrNode::create(Item()));
  return forEachItem([](Item const& item) {
    probeActions(BrNode::create(item));
    performActions(item);
  });
}

std::string checkFailures() {
  std::string result;
  for (auto* const use : {dragItem, showItem, performActions}) {
    auto const useAll = [use] { return useItems(use); };
    if (!useAll().empty())
      result += (result.empty() ? "" : "; ") + sweepFailures(useAll);
  }
  if (result.empty())
    throw Skipped("its items can neither be dragged, shown nor acted on");
  return fmt::format("{}, with at most {} items", result, MaxSweptItems);
}

} // namespace

std::vector<Check> useChecks() {
  constexpr char const* Heading = "Drags, pages and actions";
  return {{"use.drags",
           "A handler accepts any item and carrier, or throws an exception of the base library; "
           "what can be dragged arrives.",
           Heading, checkDrags},
          {"use.details",
           "A view accepts any item at any time, or throws an exception of the base library.",
           Heading, checkDetails},
          {"use.actions",
           "An action accepts any node, with or without a workspace, or throws an exception of the "
           "base library.",
           Heading, checkActions},
          {"use.failures",
           "A failed drag, page or action throws, leaks nothing, and does not affect the next run.",
           "What may be thrown", checkFailures}};
}

} // namespace Qv
