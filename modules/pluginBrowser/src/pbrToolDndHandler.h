#pragma once

#include "pbrInstances.h"

#include "brDndHandler.h"

namespace Qv {

/// Lets tools and super tools be dragged out of the tool scheme. Nothing can be dropped or cut.
class QV_EXPORT PbrToolDndHandler : public BrDndHandler {
public:
  PbrToolDndHandler();
  ~PbrToolDndHandler() override;

  bool willPopulateSelection(RCShdPtr<BrBrowsable> const& item) override;
  /// Adds the draggable form of the item's tool; nothing when there is no such tool.
  /// @throws ExNullPtr when the carrier or its selection is null.
  void populateSelection(RCShdPtr<BrBrowsable> const& item,
                         RCShdPtr<DrCarrier> const& carrier) override;
  bool willConsumeSelection(RCShdPtr<BrBrowsable> const& item,
                            RCShdPtr<DrCarrier> const& carrier) override;
  void consumeSelection(RCShdPtr<BrBrowsable> const& item, RCShdPtr<DrCarrier> const& carrier,
                        RCShdPtr<SnSelection> const& selection) override;
  bool willCut(RCShdPtr<BrBrowsable> const& item) override;

protected:
  void addToolItem(LiString const& toolName, RCShdPtr<DrCarrier> const& carrier) const;
};

} // namespace Qv
