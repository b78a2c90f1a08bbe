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
  /// Puts what the item stands for into the carrier's selection.
  virtual void populateSelection(RCShdPtr<BrBrowsable> const& item,
                                 RCShdPtr<DrCarrier> const& carrier) = 0;
  /// Whether the carrier can be dropped on the item.
  virtual bool willConsumeSelection(RCShdPtr<BrBrowsable> const& item,
                                    RCShdPtr<DrCarrier> const& carrier) = 0;
  /// Takes in what is dropped on the item.
  virtual void consumeSelection(RCShdPtr<BrBrowsable> const& item,
                                RCShdPtr<DrCarrier> const& carrier,
                                RCShdPtr<SnSelection> const& selection) = 0;
  /// The module leaves this to the host.
  virtual void createUrl(RCShdPtr<BrBrowsable> const& item, RCShdPtr<DrCarrier> const& carrier);
  /// Whether the item can be cut.
  virtual bool willCut(RCShdPtr<BrBrowsable> const& item) = 0;
  /// @{
  /// The module leaves these to the host.
  virtual bool willCopy(RCShdPtr<BrBrowsable> const& item);
  virtual bool dragAndDropComplete(RCShdPtr<BrBrowsable> const& item,
                                   RCShdPtr<DrCarrier> const& carrier);
  /// @}

  BrDndHandler();
};

} // namespace Qv
