#pragma once

#include "items.h"

namespace Qv {

/// The children of an item as a list view shows them.
struct Listing {
  struct Row {
    RCShdPtr<BrBrowsable> item;
    /// One for each column.
    std::vector<std::string> cells;
  };

  /// The columns of the item's scheme that are shown.
  std::vector<RCShdPtr<BrAttrib>> columns;
  std::vector<Row> rows;
};

/// Lists the children of an item.
/// @param sorted whether by the sort key of the item's scheme; otherwise in the order of the query.
Listing listChildren(BrBrowsable& item, BrBrowsable::FindFilter filter = AllChildren,
                     bool sorted = true);

} // namespace Qv
