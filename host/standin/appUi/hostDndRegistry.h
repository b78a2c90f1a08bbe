#pragma once

#include "brDndRegistry.h"

namespace Qv {

/// Keeps the drag-and-drop handlers that BrDndRegistry is given.
class QV_EXPORT HostDndRegistry {
public:
  /// A handler with the prototype of the class that it is attached to.
  struct Entry {
    RCShdPtr<BrBrowsable> type;
    RCShdPtr<BrDndHandler> handler;
  };

  static HostDndRegistry& getInstance();

  /// Returns false when the prototype's class has a handler already, which stays.
  bool add(RCShdPtr<BrBrowsable> const& type, RCShdPtr<BrDndHandler> const& handler);
  /// The handler for items of that class; null when there is none.
  RCShdPtr<BrDndHandler> findHandler(BrBrowsable const& item) const;
  /// In order of registration.
  Vector<Entry> const& getEntries() const { return entries_; }
  void clear() { entries_.clear(); }

private:
  Vector<Entry> entries_;
};

} // namespace Qv
