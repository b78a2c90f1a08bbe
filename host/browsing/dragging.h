#pragma once

#include "drCarrier.h"
#include "items.h"

namespace Qv {

/// What happens when an item is dragged out of the browser.
struct Drag {
  /// What a consumer finds where the item is dropped.
  struct Arrival {
    std::string what;
    /// What the selection item tells of itself, line by line.
    std::string dump;
    /// The name of the view that arrives; empty for anything else.
    std::string view;
  };

  /// The class of the item's handler; empty when it has none, and then nothing below holds.
  std::string handler;
  /// Whether the item can be dragged, and nothing arrives otherwise.
  bool accepted = false;
  bool cut = false;
  bool copy = false;
  /// Whether something can be dropped on the item.
  bool drop = false;
  std::vector<Arrival> arrivals;
};

Drag drag(RCShdPtr<BrBrowsable> const& item);

/// A carrier with what the item stands for; null when the item cannot be dragged.
RCShdPtr<DrCarrier> startDrag(RCShdPtr<BrBrowsable> const& item);
std::vector<Drag::Arrival> getArrivals(DrCarrier& carrier);

} // namespace Qv
