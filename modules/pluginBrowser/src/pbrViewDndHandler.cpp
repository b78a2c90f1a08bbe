#include "pbrViewDndHandler.h"

#include "drCarrier.h"
#include "pbrDraggedItems.h"
#include "pbrViewBrowsable.h"

namespace Qv {

PbrViewDndHandler::PbrViewDndHandler() = default;

PbrViewDndHandler::~PbrViewDndHandler() = default;

bool PbrViewDndHandler::willPopulateSelection(RCShdPtr<BrBrowsable> const& item) {
  RCShdPtr<PbrViewBrowsable> const browsable = item.dynamicCast<PbrViewBrowsable>();
  return browsable && !browsable->isAContainer();
}

void PbrViewDndHandler::populateSelection(RCShdPtr<BrBrowsable> const& item,
                                          RCShdPtr<DrCarrier> const& carrier) {
  RCShdPtr<PbrViewBrowsable> const browsable = item.dynamicCast<PbrViewBrowsable>();
  if (browsable && !browsable->getViewName().empty())
    addUiViewItem(browsable->getViewName(), carrier);
}

bool PbrViewDndHandler::willConsumeSelection(RCShdPtr<BrBrowsable> const& /*item*/,
                                             RCShdPtr<DrCarrier> const& /*carrier*/) {
  return false;
}

void PbrViewDndHandler::consumeSelection(RCShdPtr<BrBrowsable> const& /*item*/,
                                         RCShdPtr<DrCarrier> const& /*carrier*/,
                                         RCShdPtr<SnSelection> const& /*selection*/) {}

bool PbrViewDndHandler::willCut(RCShdPtr<BrBrowsable> const& /*item*/) { return false; }

void PbrViewDndHandler::addUiViewItem(LiString const& viewName,
                                      RCShdPtr<DrCarrier> const& carrier) const {
  UiViewIdentifier const view(viewName);
  RCShdPtr<DraggedViewItem> const item(new DraggedViewItem(view, RCShdPtr<SnParts>()));
  carrier->getSelection()->addItem(item);
}

} // namespace Qv
