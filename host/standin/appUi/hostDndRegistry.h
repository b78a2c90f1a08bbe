#pragma once

#include "brDndRegistry.h"

namespace Qv {

/// Holds the handlers added to BrDndRegistry.
class QV_EXPORT HostDndRegistry {
public:
  /// A handler and the prototype of its class.
  struct Entry {
    RCShdPtr<BrBrowsable> type;
    RCShdPtr<BrDndHandler> handler;
  };

  static HostDndRegistry& getInstance();

  /// Returns false if the prototype's class already has a handler, which stays.
  bool add(RCShdPtr<BrBrowsable> const& type, RCShdPtr<BrDndHandler> const& handler);
  /// The handler for the item's class; null if there is none.
  RCShdPtr<BrDndHandler> findHandler(BrBrowsable const& item) const;
  /// In order of registration.
  Vector<Entry> const& getEntries() const { return entries_; }
  void clear() { entries_.clear(); }

private:
  Vector<Entry> entries_;
};

} // namespace Qv
