#pragma once

#include "actRegistry.h"

namespace Qv {

/// Owns, offers and performs the actions.
class QV_EXPORT HostActRegistry {
public:
  /// An action and the state it was registered with.
  struct Entry {
    OPtr<ActAction> action;
    ActRegistry::DynamicState state;
  };

  static HostActRegistry& getInstance();

  /// @throws HostError if the name is a duplicate.
  void add(OPtr<ActAction> action, ActRegistry::DynamicState state);
  /// In order of registration.
  Vector<Entry> const& getEntries() const { return entries_; }
  void clear() { entries_.clear(); }

  /// Whether the action is offered for these items.
  static bool isValid(ActAction const& action, RCShdPtr<SnItem const> const& first,
                      RCShdPtr<SnItem const> const& second);
  /// @throws HostError if there is no such action or it is not valid for these items. Exceptions of
  /// the action propagate.
  void perform(std::string const& name, RCShdPtr<SnItem const> const& first,
               RCShdPtr<SnItem const> const& second);
  static Vector<LiString> getOptions(ActAction const& action, RCShdPtr<SnItem const> const& first,
                                     RCShdPtr<SnItem const> const& second);

private:
  Vector<Entry> entries_;
};

} // namespace Qv
