#include "actions.h"

#include "brBrowser.h"
#include "hostActRegistry.h"
#include "hostError.h"
#include "snItemBasic.h"

#include <fmt/format.h>

namespace Qv {

namespace {

/// Carries a value to an action.
template <class T> RCShdPtr<SnItem const> input(RCShdPtr<T> const& value) {
  return RCShdPtr<SnItem const>(new SnItemBasic<RCShdPtr<T>>(value, RCShdPtr<SnParts>()));
}

} // namespace

std::vector<OfferedAction> getActions(RCShdPtr<BrBrowsable> const& item) {
  auto const browser = input(RCShdPtr<BrBrowser>(new BrBrowser));
  auto const node = input(BrNode::create(item));
  std::vector<OfferedAction> actions;
  for (auto const& [action, state] : HostActRegistry::getInstance().getEntries()) {
    auto const options = HostActRegistry::getOptions(*action, browser, node);
    actions.push_back({action->getName(),
                       action->getDisplayString(),
                       HostActRegistry::isValid(*action, browser, node),
                       fmt::format("DynamicState({})", int(state)),
                       {options.begin(), options.end()}});
  }
  return actions;
}

std::vector<HostWorkspace::Request> performAction(std::string const& name,
                                                  RCShdPtr<BrBrowsable> const& item,
                                                  RCShdPtr<HostWorkspace> const& workspace) {
  HostWorkspace::setCurrent(workspace);
  try {
    HostActRegistry::getInstance().perform(name, input(RCShdPtr<BrBrowser>(new BrBrowser)),
                                           input(BrNode::create(item)));
  } catch (ExNullPtr const&) {
    if (!workspace)
      throw HostError("the action \"" + name + "\" needs a workspace, and none is open");
    throw;
  }
  if (!workspace)
    return {};
  return workspace->getRequests();
}

} // namespace Qv
