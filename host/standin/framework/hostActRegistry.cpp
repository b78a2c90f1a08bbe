#include "hostActRegistry.h"

#include "hostError.h"
#include "hostJournal.h"

namespace Qv {

namespace {

/// Names the protected functions of an action.
struct Framework : ActAction {
  using ActAction::enumOptions;
  using ActAction::inputValid;
  using ActAction::performAction;
};

} // namespace

ActRegistry& ActRegistry::getInstance() {
  static ActRegistry registry;
  return registry;
}

void ActRegistry::registerAction(OPtr<ActAction> action, DynamicState state) {
  HostActRegistry::getInstance().add(std::move(action), state);
}

HostActRegistry& HostActRegistry::getInstance() {
  static HostActRegistry registry;
  return registry;
}

bool HostActRegistry::isValid(ActAction const& action, RCShdPtr<SnItem const> const& first,
                              RCShdPtr<SnItem const> const& second) {
  return (action.*&Framework::inputValid)(first, second);
}

void HostActRegistry::perform(std::string const& name, RCShdPtr<SnItem const> const& first,
                              RCShdPtr<SnItem const> const& second) {
  HostJournal::getInstance().record("ActRegistry::perform", name);
  for (Entry const& entry : entries_) {
    if (entry.action->getName() != name)
      continue;
    if (!isValid(*entry.action, first, second))
      throw HostError("the action \"" + name + "\" is not valid for this item");
    ActAction const& action = *entry.action;
    return (action.*&Framework::performAction)(first, second, SnSelection::create());
  }
  std::string known;
  for (Entry const& entry : entries_)
    known += (known.empty() ? "\"" : ", \"") + entry.action->getName() + "\"";
  throw HostError("unknown action \"" + name + "\" (known: " + (known.empty() ? "none" : known) +
                  ")");
}

Vector<LiString> HostActRegistry::getOptions(ActAction const& action,
                                             RCShdPtr<SnItem const> const& first,
                                             RCShdPtr<SnItem const> const& second) {
  Vector<LiString> options;
  (action.*&Framework::enumOptions)(first, second, options);
  return options;
}

void HostActRegistry::add(OPtr<ActAction> action, ActRegistry::DynamicState state) {
  LiString const name = action->getName();
  HostJournal::getInstance().record("ActRegistry::registerAction", name, std::to_string(state));
  for (Entry const& entry : entries_)
    if (entry.action->getName() == name)
      throw HostError("duplicate action \"" + name + "\"");
  entries_.push_back({std::move(action), state});
}

} // namespace Qv
