#pragma once

#include "actRegistry.h"

namespace Qv {

/// Owns the actions, and offers and performs them.
class QV_EXPORT HostActRegistry {
public:
  /// An action with the state that it was registered with.
  struct Entry {
    OPtr<ActAction> action;
    ActRegistry::DynamicState state;
  };

  static HostActRegistry& getInstance();

  /// @throws HostError when there is an action of that name.
  void add(OPtr<ActAction> action, ActRegistry::DynamicState state);
  /// In order of registration.
  Vector<Entry> const& getEntries() const { return entries_; }
  void clear() { entries_.clear(); }

  /// Whether the action is offered for these items.
  static bool isValid(ActAction const& action, RCShdPtr<SnItem const> const& first,
                      RCShdPtr<SnItem const> const& second);
  /// Performs the action of that name. @throws HostError when there is none or it is not valid for
  /// these items. Whatever the action throws passes.
  void perform(std::string const& name, RCShdPtr<SnItem const> const& first,
               RCShdPtr<SnItem const> const& second);
  /// The options that the action offers.
  static Vector<LiString> getOptions(ActAction const& action, RCShdPtr<SnItem const> const& first,
                                     RCShdPtr<SnItem const> const& second);

private:
  Vector<Entry> entries_;
};

} // namespace Qv
