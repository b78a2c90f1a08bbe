#pragma once

#include "containers.h"
#include "snItem.h"

namespace Qv {

/// A collection of selection items. Counted without atomics, like its items.
class QV_EXPORT SnSelection : public RCBase<int> {
protected:
  ~SnSelection() override;

public:
  /// @name Stand-in only
  /// In the place of two operations of the host that the module does not call.
  /// @{

  /// In the order in which they were added.
  virtual Vector<RCShdPtr<SnItem const>> const& getItems() const = 0;
  /// Lets go of all items.
  virtual void clear() = 0;
  /// @}
  /// Adds the item, of which the selection keeps its own reference.
  virtual void addItem(RCShdPtr<SnItem const> const& item) = 0;

  /// @name Stand-in only
  /// @{
  /// A new, empty selection.
  static RCShdPtr<SnSelection> create();
  /// @}
};

} // namespace Qv
