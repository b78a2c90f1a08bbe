#include "hostActRegistry.h"

#include "hostError.h"
#include "hostJournal.h"

namespace Qv {

ActAction::ActAction() = default;

ActAction::~ActAction() = default;

std::string ActAction::getDisplayString() const { return const_cast<ActAction*>(this)->getName(); }

std::string ActAction::getGroup() const { return ""; }

std::string ActAction::getCompositeName() const { return getDisplayString(); }

ActRegistry& ActRegistry::getInstance() { return HostActRegistry::getInstance(); }

HostActRegistry& HostActRegistry::getInstance() {
  static HostActRegistry registry;
  return registry;
}

bool HostActRegistry::isValid(ActAction const& action, RCShdPtr<SnItem const> const& first,
                              RCShdPtr<SnItem const> const& second) {
  return action.inputValid(first, second);
}

void HostActRegistry::perform(std::string const& name, RCShdPtr<SnItem const> const& first,
                              RCShdPtr<SnItem const> const& second) {
  HostJournal::getInstance().record("ActRegistry::perform", name);
  for (Entry const& entry : entries_) {
    if (entry.action->getName() != name)
      continue;
    if (!isValid(*entry.action, first, second))
      throw HostError("the action \"" + name + "\" is not valid for this item");
    return entry.action->performAction(first, second, SnSelection::create());
  }
  std::string known;
  for (Entry const& entry : entries_)
    known += (known.empty() ? "; there is \"" : ", \"") + entry.action->getName() + "\"";
  throw HostError("there is no action \"" + name + "\"" + known);
}

Vector<LiString> HostActRegistry::getOptions(ActAction const& action,
                                             RCShdPtr<SnItem const> const& first,
                                             RCShdPtr<SnItem const> const& second) {
  Vector<LiString> options;
  action.enumOptions(first, second, options);
  return options;
}

void HostActRegistry::registerAction(OPtr<ActAction> action, DynamicState state) {
  LiString const name = action->getName();
  HostJournal::getInstance().record("ActRegistry::registerAction", name, std::to_string(state));
  for (Entry const& entry : entries_)
    if (entry.action->getName() == name)
      throw HostError("an action named \"" + name + "\" is registered already");
  entries_.push_back({std::move(action), state});
}

} // namespace Qv
