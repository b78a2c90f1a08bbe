#pragma once

#include "brDetailView.h"
#include "output.h"

#include <optional>

namespace Qv {

/// One clone of the view that shows items in detail, built and ready to show any item.
class DetailPage {
public:
  /// A page of the view that understands `item`; nothing when there is no such view.
  static std::optional<DetailPage> create(RCShdPtr<BrBrowsable> const& item);

  /// Shows an item and tells what is to be seen: the fields of each page and the icon pane.
  Json show(RCShdPtr<BrBrowsable> const& item);
  /// The whole tree of widgets.
  Json dump() const;

  /// Prints what show() told.
  static void print(Json const& page);
  /// Prints what dump() told.
  static void printDump(Json const& widgets);

private:
  explicit DetailPage(OPtr<BrDetailView> view);

  OPtr<BrDetailView> view_;
};

} // namespace Qv
