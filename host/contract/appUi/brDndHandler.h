#pragma once

#include "brBrowsable.h"

namespace Qv {

class DrCarrier;

/// Drag and drop for one kind of item.
class QV_EXPORT BrDndHandler : public RCBase<LkCounter<int>> {
public:
  ~BrDndHandler() override;
  /// Whether the item can be dragged.
  virtual bool willPopulateSelection(RCShdPtr<BrBrowsable> const& item) = 0;
  /// Adds what the item represents to the carrier's selection.
  virtual void populateSelection(RCShdPtr<BrBrowsable> const& item,
                                 RCShdPtr<DrCarrier> const& carrier) = 0;
  /// Whether the carrier can be dropped on the item.
  virtual bool willConsumeSelection(RCShdPtr<BrBrowsable> const& item,
                                    RCShdPtr<DrCarrier> const& carrier) = 0;
  /// Handles a drop on the item.
  virtual void consumeSelection(RCShdPtr<BrBrowsable> const& item,
                                RCShdPtr<DrCarrier> const& carrier,
                                RCShdPtr<SnSelection> const& selection) = 0;
  /// Not overridden by the module.
  virtual void createUrl(RCShdPtr<BrBrowsable> const& item, RCShdPtr<DrCarrier> const& carrier);
  /// Whether the item can be cut.
  virtual bool willCut(RCShdPtr<BrBrowsable> const& item) = 0;
  /// @{
  /// Not overridden by the module.
  virtual bool willCopy(RCShdPtr<BrBrowsable> const& item);
  virtual bool dragAndDropComplete(RCShdPtr<BrBrowsable> const& item,
                                   RCShdPtr<DrCarrier> const& carrier);
  /// @}

  BrDndHandler();
};

} // namespace Qv
