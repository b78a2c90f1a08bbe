#pragma once

#include "pbrInstances.h"

#include "brDndHandler.h"

namespace Qv {

/// Makes tools and super tools draggable. Nothing can be dropped or cut.
class QV_EXPORT PbrToolDndHandler : public BrDndHandler {
public:
  PbrToolDndHandler();
  ~PbrToolDndHandler() override;

  bool willPopulateSelection(RCShdPtr<BrBrowsable> const& item) override;
  /// Adds the draggable form of the item's tool, if there is such a tool.
  /// @throws ExNullPtr if the carrier or its selection is null.
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
