#include "pbrActions.h"

#include "pbrInstances.h"

#include "actRegistry.h"
#include "actTypedAction.h"
#include "pbrViewBrowsable.h"
#include "uiWorkspace.h"

namespace Qv {

namespace {

using BrowserAction = ActTypedAction<RCShdPtr<BrBrowser>, RCShdPtr<BrNode>>;

/// The node's view; null if it shows something else.
RCShdPtr<PbrViewBrowsable> getView(RCShdPtr<BrNode> const& node) {
  return node->getBrowsable().dynamicCast<PbrViewBrowsable>();
}

bool showsView(RCShdPtr<BrNode> const& node) { return node && getView(node); }

// Performing dereferences the node, the workspace and the view in this order: the first null one
// throws.

class OpenViewInWindowAction : public BrowserAction {
public:
  LiString getName() override { return "Open"; }

  bool typedInputValid(RCShdPtr<BrBrowser> const& /*browser*/,
                       RCShdPtr<BrNode> const& node) override {
    return showsView(node);
  }

  void typedPerformAction(RCShdPtr<BrBrowser> const& /*browser*/,
                          RCShdPtr<BrNode> const& node) override {
    RCShdPtr<PbrViewBrowsable> const view = getView(node);
    RCShdPtr<UiWorkspace> const workspace = UiWorkspace::getCurrentWorkspace();
    workspace->openViewInWindow(view->getViewName(), true);
  }
};

class OpenViewInNewWindowAction : public BrowserAction {
public:
  LiString getName() override { return "Open in Window"; }

  bool typedInputValid(RCShdPtr<BrBrowser> const& /*browser*/,
                       RCShdPtr<BrNode> const& node) override {
    return showsView(node);
  }

  void typedPerformAction(RCShdPtr<BrBrowser> const& /*browser*/,
                          RCShdPtr<BrNode> const& node) override {
    RCShdPtr<PbrViewBrowsable> const view = getView(node);
    RCShdPtr<UiWorkspace> const workspace = UiWorkspace::getCurrentWorkspace();
    workspace->openViewInNewWindow(view->getViewName());
  }
};

} // namespace

void registerBrowserActions() {
  ActRegistry& registry = ActRegistry::getInstance();
  constexpr ActRegistry::DynamicState State{0};
  registry.registerAction(OPtr<ActAction>(new OpenViewInWindowAction), State);
  registry.registerAction(OPtr<ActAction>(new OpenViewInNewWindowAction), State);
}

void unregisterBrowserActions() {}

} // namespace Qv
