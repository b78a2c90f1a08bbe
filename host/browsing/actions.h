#pragma once

#include "hostWorkspace.h"
#include "items.h"

namespace Qv {

/// An action as it is offered for an item.
struct OfferedAction {
  std::string name;
  std::string display;
  /// Whether it can be performed on the item.
  bool valid;
  /// With which the action was registered, as "DynamicState(0)".
  std::string state;
  std::vector<std::string> options;
};

/// All actions, in order of registration.
std::vector<OfferedAction> getActions(RCShdPtr<BrBrowsable> const& item);

/// Performs an action on an item, in a workspace, which may be null where none is open. @returns
/// which views it opened there.
/// @throws HostError when there is no such action, when it is not valid for the item, and when it
/// needs a workspace. Whatever else the action throws passes.
std::vector<HostWorkspace::Request> performAction(
    std::string const& name, RCShdPtr<BrBrowsable> const& item,
    RCShdPtr<HostWorkspace> const& workspace = RCShdPtr<HostWorkspace>(new HostWorkspace));

} // namespace Qv
