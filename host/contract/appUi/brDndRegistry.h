#pragma once

#include "brDndHandler.h"

namespace Qv {

/// The registry of drag-and-drop handlers.
class QV_EXPORT BrDndRegistry {
public:
  /// A handler with the prototype of the class that it is attached to.
  struct Entry {
    RCShdPtr<BrBrowsable> type;
    RCShdPtr<BrDndHandler> handler;
  };

  static BrDndRegistry& getInstance();

  /// Attaches a handler to the class of items that the prototype `type` stands for. Returns false
  /// when that class has a handler already.
  bool addHandler(RCShdPtr<BrBrowsable> const& type, RCShdPtr<BrDndHandler> const& handler);

  /// The handler for items of that class; null when there is none.
  RCShdPtr<BrDndHandler> findHandler(BrBrowsable const& item) const;
  /// In order of registration.
  Vector<Entry> const& getEntries() const { return entries_; }
  void clear() { entries_.clear(); }

private:
  Vector<Entry> entries_;
};

} // namespace Qv
