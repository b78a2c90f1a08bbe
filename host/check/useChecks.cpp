#include "brBrowser.h"
#include "brDetailView.h"
#include "check.h"
#include "drCarrier.h"
#include "hostActRegistry.h"
#include "hostBrRegistry.h"
#include "hostDndRegistry.h"
#include "hostWorkspace.h"

namespace Qv {

namespace {

using Browser = RCShdPtr<BrBrowser>;
using Carrier = RCShdPtr<DrCarrier>;
using Node = RCShdPtr<BrNode>;
using Selection = RCShdPtr<SnSelection>;

/// What arrives of an item that can be dragged.
std::string drag(Item const& item) {
  RCShdPtr<BrDndHandler> const handler = HostDndRegistry::getInstance().findHandler(*item);
  if (!handler || !handler->willPopulateSelection(item))
    return "";
  Carrier const carrier(new DrCarrier(SnSelection::create()));
  handler->populateSelection(item, carrier);
  auto const& items = carrier->getSelection()->getItems();
  require(!items.empty(), "it can be dragged, and nothing arrives");
  for (RCShdPtr<SnItem const> const& dragged : items)
    require(dragged->isEqual(*RCShdPtr<SnItem>(dragged->clone())),
            "what arrives does not equal its clone");
  return fmt::format("{} arrive", items.size());
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
    drag(item);
  });
}

/// The pages that show an item.
std::string show(Item const& item) {
  OPtr<BrView> const view = HostBrRegistry::getInstance().createDetailView(item);
  auto* const detail = dynamic_cast<BrDetailView*>(view.get());
  if (!detail)
    return "";
  detail->buildUi(Selection());
  detail->setDetailInfo();
  detail->setContent(item, Selection());
  detail->setContent(item, Selection());
  return fmt::format("{} pages", detail->getPages().size());
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
  return forEachItem([](Item const& item) { show(item); });
}

/// Calls `f` with each action, while there is that workspace.
void forEachAction(RCShdPtr<UiWorkspace> const& workspace,
                   std::function<void(BrowserAction&)> const& f) {
  HostWorkspace::setCurrent(workspace);
  for (auto const& [action, state] : HostActRegistry::getInstance().getEntries())
    if (auto* const typed = dynamic_cast<BrowserAction*>(action.get()))
      f(*typed);
}

/// What the actions open for an item.
std::string perform(Item const& item) {
  RCShdPtr<HostWorkspace> const workspace(new HostWorkspace);
  Node const node = BrNode::create(item);
  Browser const browser(new BrBrowser);
  forEachAction(workspace, [&](BrowserAction& action) {
    if (action.typedInputValid(browser, node))
      action.typedPerformAction(browser, node);
  });
  std::string result;
  for (HostWorkspace::Request const& request : workspace->getRequests())
    result += request.view + ", ";
  return result;
}

void probeActions(Node const& node) {
  for (bool const bare : {true, false})
    forEachAction(bare ? RCShdPtr<UiWorkspace>() : RCShdPtr<UiWorkspace>(new HostWorkspace),
                  [&](BrowserAction& action) {
                    Browser const browser(bare ? nullptr : new BrBrowser);
                    Vector<LiString> options;
                    mayRefuse([&] { action.typedInputValid(browser, node); });
                    mayRefuse([&] { action.typedEnumOptions(browser, node, options); });
                    mayRefuse([&] { action.typedPerformAction(browser, node); });
                  });
}

std::string checkActions() {
  if (HostActRegistry::getInstance().getEntries().empty())
    throw Skipped("it registers no action");
  lookAt("no node or item");
  probeActions(Node());
  probeActions(BrNode::create(Item()));
  return forEachItem([](Item const& item) {
    probeActions(BrNode::create(item));
    perform(item);
  });
}

template <std::string use(Item const&)> std::string useItems() {
  std::string result;
  forEachItem([&](Item const& item) { result += use(item); });
  return result;
}

std::string checkFailures() {
  std::string result;
  for (auto* const use : {&useItems<drag>, &useItems<show>, &useItems<perform>})
    if (!use().empty())
      result += (result.empty() ? "" : "; ") + sweepFailures(use);
  return result.empty() ? throw Skipped("nothing can be done with its items") : result;
}

} // namespace

std::vector<Check> useChecks() {
  constexpr char const* Heading = "Drags, pages and actions";
  return {{"use.drags",
           "A handler takes any item and carrier, or throws an exception of the base "
           "library; what can be dragged arrives.",
           Heading, checkDrags},
          {"use.details",
           "A view takes any item at any time, or throws an exception of the base "
           "library.",
           Heading, checkDetails},
          {"use.actions",
           "An action takes any node, also without a workspace, or throws an exception "
           "of the base library.",
           Heading, checkActions},
          {"use.failures",
           "A failure ends a drag, page or action, loses nothing, and is not met again.",
           "What may be thrown", checkFailures}};
}

} // namespace Qv
