#pragma once

#include "containers.h"
#include "snItem.h"

namespace Qv {

/// A collection of selection items. Its count is not atomic, like that of its items.
class QV_EXPORT SnSelection : public RCBase<int> {
protected:
  ~SnSelection() override;

public:
  /// @name Stand-in only
  /// In place of two host operations that the module does not call.
  /// @{

  /// In the order added.
  virtual Vector<RCShdPtr<SnItem const>> const& getItems() const = 0;
  /// Removes all items.
  virtual void clear() = 0;
  /// @}
  /// Takes a reference to the item.
  virtual void addItem(RCShdPtr<SnItem const> const& item) = 0;

  /// @name Stand-in only
  /// @{
  static RCShdPtr<SnSelection> create();
  /// @}
};

} // namespace Qv
