#pragma once

#include "pbrInstances.h"

#include "brDndHandler.h"

namespace Qv {

/// Makes views draggable. Nothing can be dropped or cut.
class QV_EXPORT PbrViewDndHandler : public BrDndHandler {
public:
  PbrViewDndHandler();
  ~PbrViewDndHandler() override;

  bool willPopulateSelection(RCShdPtr<BrBrowsable> const& item) override;
  /// Adds the identifier of the item's view, known to the view factory or not.
  /// @throws ExNullPtr if the carrier or its selection is null.
  void populateSelection(RCShdPtr<BrBrowsable> const& item,
                         RCShdPtr<DrCarrier> const& carrier) override;
  bool willConsumeSelection(RCShdPtr<BrBrowsable> const& item,
                            RCShdPtr<DrCarrier> const& carrier) override;
  void consumeSelection(RCShdPtr<BrBrowsable> const& item, RCShdPtr<DrCarrier> const& carrier,
                        RCShdPtr<SnSelection> const& selection) override;
  bool willCut(RCShdPtr<BrBrowsable> const& item) override;

protected:
  void addUiViewItem(LiString const& viewName, RCShdPtr<DrCarrier> const& carrier) const;
};

} // namespace Qv
